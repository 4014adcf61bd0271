#pragma once

#include "foundation/UserPrompt.h"

#include <QObject>

#include <map>

class QDialog;
class QFileDialog;
class QMessageBox;
class QWidget;

namespace tessara {

class TSProgressWindow;

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
    ProgressId beginCancellableProgress(const QString& message,
                                        const std::function<void()>& cancel) override;
    void setProgress(ProgressId progress, double done) override;
    void beginSavePanel(const FileKind& kind, const FileAnswer& answer) override;
    void beginOpenPanel(const FileKind& kind, const FileAnswer& answer) override;

private:
    QMessageBox* makeSheet(const TSAlert& alert);
    /// Shows a sheet until it is answered or ended.
    AlertId open(QMessageBox* box, Answer answer);
    ProgressId show(TSProgressWindow* progress);
    QFileDialog* makePanel(const FileKind& kind);
    void openSavePanel(const FileKind& kind, const QString& path, const FileAnswer& answer);

    QWidget& m_window;
    std::map<AlertId, QDialog*> m_sheets; ///< those that are showing
    AlertId m_lastAlert = 0;
};

} // namespace tessara
