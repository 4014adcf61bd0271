#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace tessara {

/// Turns the signals that ask a process to end (SIGINT, SIGTERM, SIGHUP) into a call on the
/// event loop. There is one of it in a process, made before other threads are.
class QuitSignals final : public QObject {
    Q_OBJECT

public:
    QuitSignals();
    ~QuitSignals() override;

Q_SIGNALS:
    void quitRequested();

private:
    QSocketNotifier m_notifier;
};

} // namespace tessara
