#pragma once

#include "foundation/Clock.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>

#include <memory>

class QIODevice;

namespace tessara {

/// One file asked of a web server, in the background. Certificates are verified, a redirection to
/// an address without encryption is not followed, and a server that is silent, slow or talks
/// without end is left.
class HttpsGet final : public QObject {
    Q_OBJECT

public:
    struct Limits {
        double silence;  ///< seconds without a byte
        double duration; ///< seconds for the whole
        qint64 size;     ///< bytes of the file
    };

    /// Sends the request.
    /// @param body where the file goes; null to end as soon as the server has said what it has
    HttpsGet(Clock& clock, const QNetworkRequest& request, const Limits& limits, QIODevice* body);
    ~HttpsGet() override;

    /// Once finished: why there is no file, in one line; empty if the server had it (status 200).
    const QString& error() const { return m_error; }
    /// A header of the answer as it came; empty without it.
    QByteArray header(const QByteArray& name) const { return m_reply->rawHeader(name); }

Q_SIGNALS:
    void finished();

private:
    int status() const;
    void readHeaders();
    void readBody();
    void watchTime();
    void finish();
    void giveUp(const QString& reason);

    Clock& m_clock;
    const Limits m_limits;
    QIODevice* const m_body;
    const double m_begin;
    double m_lastByte;
    QString m_error;
    QNetworkAccessManager m_network;
    std::unique_ptr<QNetworkReply> m_reply;
    std::unique_ptr<RepeatingTimer> m_timer;
};

} // namespace tessara
