#pragma once

#include "foundation/UserPrompt.h"

#include <QObject>

#include <map>

class QDialog;
class QMessageBox;
class QWidget;

namespace tessara {

/// Asks the user with sheets: message boxes that block their window alone and let everything
/// else, the scan included, go on.
class SheetPrompt final : public QObject, public UserPrompt {
    Q_OBJECT

public:
    /// @param window what the sheets belong to
    explicit SheetPrompt(QWidget& window);

    AlertId beginAlert(const TSAlert& alert, Answer answer) override;
    void endAlert(AlertId alert) override;
    AlertId beginSuppressibleAlert(const TSAlert& alert, SuppressibleAnswer answer) override;
    ProgressId beginProgress(const QString& message) override;
    void endProgress(ProgressId progress) override { endAlert(progress); }

private:
    QMessageBox* makeSheet(const TSAlert& alert);
    /// Shows a sheet until it is answered or ended.
    AlertId open(QMessageBox* box, Answer answer);

    QWidget& m_window;
    std::map<AlertId, QDialog*> m_sheets; ///< those that are showing
    AlertId m_lastAlert = 0;
};

} // namespace tessara
