#pragma once

#include <QDialog>

class QProgressBar;
class QPushButton;

namespace tessara {

/// The sheet that stands before a window while work goes on, until the work has ended.
class TSProgressWindow final : public QDialog {
    Q_OBJECT

public:
    TSProgressWindow(const QString& message, QWidget& window);

    /// Offers to put an end to the work, whose progress is known from now on.
    void setCancellable();
    /// @param done how much of the work, from 0 to 1
    void setProgress(double done);

    /// Asks to cancel, where that is offered: the sheet stays until the work has ended.
    void reject() override;

Q_SIGNALS:
    void didCancel();

private:
    QProgressBar* m_bar;
    QPushButton* m_cancel;
};

} // namespace tessara
