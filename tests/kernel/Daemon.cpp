#include "kernel/Daemon.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace tessara::kernel {

namespace {

constexpr int kPatience = 20'000; ///< milliseconds

} // namespace

Daemon::Daemon(const QString& program, const QStringList& arguments, const QByteArray& ready)
{
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start(program, arguments);
    const QDeadlineTimer deadline(kPatience);
    while (!m_isReady && m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
        m_output += m_process.readAll();
        m_isReady = m_output.contains(ready);
    }
}

Daemon::~Daemon()
{
    m_process.terminate();
    if (!m_process.waitForFinished(kPatience)) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

QString outputOf(const QString& command)
{
    QProcess shell;
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command});
    shell.waitForFinished(kPatience);
    return QString::fromUtf8(shell.readAllStandardOutput());
}

bool eventually(const std::function<bool()>& condition)
{
    const QDeadlineTimer deadline(kPatience);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    return true;
}

} // namespace tessara::kernel
