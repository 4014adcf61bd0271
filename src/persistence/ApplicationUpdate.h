#pragma once

#include "foundation/Clock.h"
#include "foundation/UserPrompt.h"
#include "persistence/HttpsGet.h"
#include "persistence/UpdateCheck.h"

#include <QBuffer>
#include <QObject>

#include <memory>
#include <optional>

namespace tessara {

/// Asks the publisher's server which version is the newest, and says what it found. Installing it
/// is the business of whatever has installed this one. Belongs to the main thread and never blocks
/// it.
class ApplicationUpdate final : public QObject {
    Q_OBJECT

public:
    /// The publisher's server; what it sends is a text that is the number of a version.
    static UpdateSource standardSource();

    ApplicationUpdate(UserPrompt& prompt, Clock& clock, UpdateSource source = standardSource())
        : m_prompt(prompt)
        , m_clock(clock)
        , m_source(std::move(source))
    {
    }

    /// As the user has asked for it: says whatever it finds.
    void checkForUpdates();
    /// If the settings ask for it and it is time again: says only that there is a newer version.
    void checkForUpdatesIfDue();

private:
    void check(bool interactive);
    void didFinish(bool interactive);

    UserPrompt& m_prompt;
    Clock& m_clock;
    const UpdateSource m_source;
    std::optional<UserPrompt::ProgressId> m_progress;
    QBuffer m_answer;
    std::unique_ptr<HttpsGet> m_check; ///< under way
};

} // namespace tessara
