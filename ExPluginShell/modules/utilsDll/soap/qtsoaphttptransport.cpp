#include "qtsoaphttptransport.h"

#include "SoapHttpExchange.h"

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int defaultTimeout = 60 * 1000;

QByteArray quoted(const QString& action)
{
    const QByteArray text = QUrl::toPercentEncoding(action, "!#$%&'()*+,/:;=?@[]\"{}| ");
    const bool isQuoted = text.size() > 1 && text.startsWith('"') && text.endsWith('"');
    return isQuoted ? text : '"' + text + '"';
}

} // namespace

QtSoapHttpTransport::QtSoapHttpTransport(QObject* parent)
    : QObject(parent)
    , m_timeout(defaultTimeout)
{
    m_url.setScheme(QStringLiteral("http"));
    connect(&m_manager, SIGNAL(finished(QNetworkReply*)), this, SLOT(readResponse(QNetworkReply*)));
}

QtSoapHttpTransport::~QtSoapHttpTransport()
{
    const auto pending = m_pending;
    m_pending.clear();
    for (const auto& reply : pending) {
        if (reply) {
            reply->abort();
        }
    }
}

void QtSoapHttpTransport::setHost(const QString& host, bool useSecureHTTP, int port)
{
    m_url = QUrl();
    m_url.setScheme(useSecureHTTP ? QStringLiteral("https") : QStringLiteral("http"));
    m_url.setHost(host);
    if (port > 0) {
        m_url.setPort(port);
    }
}

void QtSoapHttpTransport::setHost(const QString& host, int port)
{
    setHost(host, false, port);
}

void QtSoapHttpTransport::setAction(const QString& action)
{
    m_action = action;
}

int QtSoapHttpTransport::timeout() const
{
    return m_timeout;
}

void QtSoapHttpTransport::setTimeout(int msec)
{
    m_timeout = qMax(0, msec);
}

void QtSoapHttpTransport::submitRequest(QtSoapMessage& request, const QString& path)
{
    const int query = path.indexOf(QLatin1Char('?'));
    m_url.setPath(query < 0 ? path : path.left(query));
    m_url.setQuery(query < 0 ? QString() : path.mid(query + 1));

    QNetworkRequest post(m_url);
    post.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("text/xml;charset=utf-8"));
    post.setRawHeader("SOAPAction", quoted(m_action));
    post.setRawHeader("Accept-Encoding", "identity"); // a packed answer could unfold to any size

    if (m_reply && !m_pending.contains(m_reply)) {
        m_reply->deleteLater();
    }
    m_reply = m_manager.post(post, request.toXmlString().toUtf8());
    m_pending.append(m_reply);
    new SoapHttpExchange(m_reply, m_timeout);
}

const QtSoapMessage& QtSoapHttpTransport::getResponse() const
{
    return m_response;
}

QNetworkAccessManager* QtSoapHttpTransport::networkAccessManager()
{
    return &m_manager;
}

QNetworkReply* QtSoapHttpTransport::networkReply()
{
    return m_reply;
}

void QtSoapHttpTransport::readResponse(QNetworkReply* reply)
{
    if (!m_pending.contains(reply)) { // a request of the client's own, made with the manager
        return;
    }
    // Queued: a slot of the client may delete the transport, and QNetworkAccessManager must not be deleted
    // inside its own signal.
    const auto later = [this, finished = QPointer<QNetworkReply>(reply)] { deliver(finished); };
    QMetaObject::invokeMethod(this, later, Qt::QueuedConnection);
}

void QtSoapHttpTransport::deliver(QNetworkReply* reply)
{
    if (!reply || !m_pending.removeOne(reply)) {
        return;
    }
    if (reply != m_reply) {
        reply->deleteLater();
    }
    const QtSoapMessage response = SoapHttpExchange::of(reply)->message();
    m_response = response;
    // a slot may submit the next request, or destroy the transport
    const QPointer<QtSoapHttpTransport> self(this);
    Q_EMIT responseReady();
    if (self) {
        Q_EMIT responseReady(response);
    }
}

} // namespace TOLVAN_NAMESPACE
