#include "persistence/HttpsGet.h"

#include "foundation/Localized.h"

#include <QIODevice>

namespace tessara {

namespace {

constexpr int kOK = 200;
constexpr int kFirstError = 400;
constexpr double kWatchInterval = 1.0; // seconds
constexpr qint64 kBlock = 1 << 16;     // bytes read at once, and held back while nobody reads

QNetworkRequest hardened(QNetworkRequest request)
{
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    // The file is packed already, and its length is then the length that is announced.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

} // namespace

HttpsGet::HttpsGet(Clock& clock, const QNetworkRequest& request, const Limits& limits,
                   QIODevice* body)
    : m_clock(clock)
    , m_limits(limits)
    , m_body(body)
    , m_begin(clock.now())
    , m_lastByte(m_begin)
    , m_reply(m_network.get(hardened(request)))
    , m_timer(clock.repeat(kWatchInterval, [this] { watchTime(); }))
{
    m_reply->setReadBufferSize(kBlock);
    connect(m_reply.get(), &QNetworkReply::metaDataChanged, this, &HttpsGet::readHeaders);
    connect(m_reply.get(), &QNetworkReply::readyRead, this, &HttpsGet::readBody);
    connect(m_reply.get(), &QNetworkReply::finished, this, &HttpsGet::finish);
}

HttpsGet::~HttpsGet()
{
    m_reply->disconnect(this);
    m_reply->abort();
}

int HttpsGet::status() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

void HttpsGet::readHeaders()
{
    m_lastByte = m_clock.now();
    if (status() != kOK)
        return;
    if (!m_body)
        m_reply->abort(); // it has said all that is asked for
    else if (m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong() > m_limits.size)
        giveUp(localized("The file is too large."));
}

void HttpsGet::readBody()
{
    m_lastByte = m_clock.now();
    const QByteArray bytes = m_reply->readAll();
    if (!m_body || status() != kOK)
        return;
    if (m_body->size() + bytes.size() > m_limits.size)
        giveUp(localized("The file is too large."));
    else if (m_body->write(bytes) != bytes.size())
        giveUp(m_body->errorString());
}

void HttpsGet::watchTime()
{
    const double now = m_clock.now();
    if (now - m_lastByte >= m_limits.silence || now - m_begin >= m_limits.duration)
        giveUp(localized("The request timed out."));
}

void HttpsGet::giveUp(const QString& reason)
{
    m_error = reason;
    m_reply->abort();
}

void HttpsGet::finish()
{
    m_timer.reset();
    const bool failed = m_reply->error() != QNetworkReply::NoError;
    const bool hasHeaders = !m_body && status() == kOK;
    if (!m_error.isEmpty()) {
        // known already
    } else if (status() >= kFirstError || (!failed && status() != kOK)) {
        const QByteArray phrase =
            m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toByteArray();
        m_error =
            QStringLiteral("HTTP %1 %2").arg(status()).arg(QString::fromUtf8(phrase.left(100)));
    } else if (failed && !hasHeaders) {
        m_error = m_reply->errorString();
    } else if (m_body) {
        readBody(); // what came with the end
    }
    m_error = m_error.simplified();
    Q_EMIT finished();
}

} // namespace tessara
