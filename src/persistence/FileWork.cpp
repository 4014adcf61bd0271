#include "persistence/FileWork.h"

#include "foundation/Localized.h"

#include <new>

namespace tessara {

namespace {

/// A file may be larger than the memory that is left.
QString reasonOf(const std::function<QString()>& work)
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return localized("There is not enough memory for this.");
    }
}

} // namespace

void FileWork::start(const QString& message, const QString& failure, std::function<QString()> work,
                     std::function<void()> success)
{
    const UserPrompt::ProgressId progress = m_prompt.beginProgress(message);
    m_threads.start(
        [this, progress, failure, work = std::move(work), success = std::move(success)] {
            const QString reason = reasonOf(work);
            const auto finish = [this, progress, failure, reason, success] {
                m_prompt.endProgress(progress);
                if (reason.isEmpty())
                    success();
                else
                    m_prompt.beginAlert({.messageText = failure,
                                         .informativeText = reason,
                                         .buttons = {localized("OK")}},
                                        [](int) {});
            };
            QMetaObject::invokeMethod(this, finish, Qt::QueuedConnection);
        });
}

} // namespace tessara
