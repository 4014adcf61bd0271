#pragma once

#include "foundation/Localized.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

namespace tessara {

/// Something that the user must know or decide.
struct TSAlert {
    enum class Style { kWarning, kInformational, kCritical };
    /// What an answer is reported as: the first button, the second, the third.
    static constexpr int kFirstButton = 1000;
    static constexpr int kSecondButton = 1001;
    static constexpr int kThirdButton = 1002;

    QString messageText;
    QString informativeText;
    QStringList buttons; ///< from the default button on
    Style style = Style::kWarning;
    QString accessoryHtml = {}; ///< a line with links below the text; a window alone shows it
};

/// A kind of file that the user may be asked for.
struct FileKind {
    QString name;      ///< in the plural, "Results"
    QString extension; ///< without the dot
};

/// Asks the user. The window answers with sheets, the command line with lines on standard error,
/// a test with what it wants to see happen.
class UserPrompt {
public:
    using Answer = std::function<void(int returnCode)>;
    using SuppressibleAnswer = std::function<void(int returnCode, bool suppressed)>;
    using FileAnswer = std::function<void(const QString& path)>;
    using AlertId = int;
    using ProgressId = int;

    virtual ~UserPrompt() = default;

    /// Shows an alert and returns at once; `answer` is called later, on the main thread.
    virtual AlertId beginAlert(const TSAlert& alert, Answer answer) = 0;
    /// An alert with nothing to decide.
    void inform(const QString& messageText, const QString& informativeText)
    {
        beginAlert({.messageText = messageText,
                    .informativeText = informativeText,
                    .buttons = {localized("OK")},
                    .style = TSAlert::Style::kInformational},
                   [](int) {});
    }
    /// Takes an alert away without an answer; nothing happens if it is gone already.
    virtual void endAlert(AlertId alert) = 0;

    /// Shows an alert with a check box by which the user asks not to be asked again; `answer`
    /// gets its state too. A prompt without check boxes asks without one.
    virtual AlertId beginSuppressibleAlert(const TSAlert& alert, SuppressibleAnswer answer)
    {
        return beginAlert(alert, [answer = std::move(answer)](int code) { answer(code, false); });
    }

    /// Shows that something goes on that the user waits for, until `endProgress`.
    virtual ProgressId beginProgress(const QString& /*message*/) { return 0; }
    virtual void endProgress(ProgressId /*progress*/) {}
    /// The same for work whose progress is known and that the user may put an end to: `cancel` is
    /// then called.
    virtual ProgressId beginCancellableProgress(const QString& message,
                                                const std::function<void()>& /*cancel*/)
    {
        return beginProgress(message);
    }
    /// @param done how much of the work, from 0 to 1
    virtual void setProgress(ProgressId /*progress*/, double /*done*/) {}

    /// Ask for the path of a file to be written, or of one to be read. `answer` is called only if
    /// there is one; a path to be written has the extension of its kind, and the user agrees to
    /// replace what stands there.
    virtual void beginSavePanel(const FileKind& /*kind*/, const FileAnswer& /*answer*/) {}
    virtual void beginOpenPanel(const FileKind& /*kind*/, const FileAnswer& /*answer*/) {}

    /// Tells of something that needs no answer, in the desktop's notification area.
    /// @return false if there is none; the caller then shows an alert
    virtual bool deliverNotification(const QString& /*title*/, const QString& /*text*/)
    {
        return false;
    }
};

} // namespace tessara
