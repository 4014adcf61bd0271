#pragma once

#include "foundation/UserPrompt.h"
#include "foundation/WorkerThreads.h"

#include <QObject>
#include <QString>

#include <functional>

namespace tessara {

/// Work on files that the user waits for: each piece on a thread of its own, under a progress
/// panel, with an alert if it fails. Lives on the main thread, and waits for its threads when it
/// goes.
class FileWork final : public QObject {
    Q_OBJECT

public:
    explicit FileWork(UserPrompt& prompt)
        : m_prompt(prompt)
    {
    }

    /// @param message what the progress panel says
    /// @param failure what an alert says before the reason
    /// @param work runs on the thread; gives the reason why it failed, or an empty text
    /// @param success runs on the main thread if it did not fail
    void start(
        const QString& message, const QString& failure, std::function<QString()> work,
        std::function<void()> success = [] {});

private:
    UserPrompt& m_prompt;
    WorkerThreads m_threads;
};

} // namespace tessara
