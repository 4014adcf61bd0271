#pragma once

#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

namespace tessara {

/// A real web server with a certificate of its own authority; https_server.py tells what it can do.
class HttpsServer {
public:
    HttpsServer()
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral("/usr/bin/python3"),
                        {QStringLiteral(HTTPS_SERVER), m_folder.path()});
        while (!m_process.canReadLine() && m_process.waitForReadyRead(30'000)) {
        }
        const QList<QByteArray> ports = m_process.readLine().trimmed().split(' ');
        EXPECT_EQ(ports.size(), 2);
        m_secure = ports.value(0).toInt();
        m_plain = ports.value(1).toInt();
    }
    ~HttpsServer()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    /// The path of the next request that has arrived; empty if there is none yet.
    QByteArray takeRequest()
    {
        return m_process.canReadLine() ? m_process.readLine().trimmed() : QByteArray();
    }

    /// Where a file is put to be served.
    QString filePath(const char* name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }

    QUrl url(const QString& path, const QString& host = QStringLiteral("localhost")) const
    {
        return QUrl(QStringLiteral("https://%1:%2%3").arg(host).arg(m_secure).arg(path));
    }
    QUrl plainUrl(const QString& path) const
    {
        return QUrl(QStringLiteral("http://localhost:%1%2").arg(m_plain).arg(path));
    }

    /// Trusts the server's authority and nobody else.
    QSslConfiguration trusting() const
    {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setCaCertificates(QSslCertificate::fromPath(filePath("ca.pem")));
        return configuration;
    }

private:
    QTemporaryDir m_folder;
    QProcess m_process;
    int m_secure = 0;
    int m_plain = 0;
};

} // namespace tessara
