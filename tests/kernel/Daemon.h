#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

namespace tessara::kernel {

/// A program that runs beside the test, and ends with it.
class Daemon {
public:
    /// Starts the program and waits until it has printed `ready`.
    Daemon(const QString& program, const QStringList& arguments, const QByteArray& ready);
    /// Ends it, and waits until it has ended.
    ~Daemon();

    bool isReady() const { return m_isReady; }
    /// What it has printed so far.
    std::string output() const { return m_output.toStdString(); }

private:
    QProcess m_process;
    QByteArray m_output;
    bool m_isReady = false;
};

/// What a command of the shell prints.
QString outputOf(const QString& command);

/// Handles events until a condition holds. False if it does not within twenty seconds, far longer
/// than anything here takes.
bool eventually(const std::function<bool()>& condition);

} // namespace tessara::kernel
