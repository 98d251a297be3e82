#include "qtsoaphttptransport.h"

#include "SoapHttpExchange.h"
#include "SoapTrace.h"

#include <algorithm>

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
    m_manager.setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy); // Qt 6 would follow
    connect(&m_manager, SIGNAL(finished(QNetworkReply*)), this, SLOT(readResponse(QNetworkReply*)));
    connect(&m_manager, SIGNAL(authenticationRequired(QNetworkReply*, QAuthenticator*)), this,
            SLOT(onAuthentication()));
    connect(&m_manager, SIGNAL(proxyAuthenticationRequired(const QNetworkProxy&, QAuthenticator*)), this,
            SLOT(onAuthentication()));
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
    const QUrl given(host.contains(QLatin1String("://")) ? host : QString());
    const bool isAddress = !given.host().isEmpty();
    m_url.setScheme(useSecureHTTP || given.scheme() == QLatin1String("https") ? QStringLiteral("https")
                                                                              : QStringLiteral("http"));
    // A host may come with its port; several colons without brackets are an IPv6 address.
    if (isAddress || host.count(QLatin1Char(':')) == 1 || host.contains(QLatin1String("]:")) ||
        host.contains(QLatin1Char('@'))) {
        m_url.setAuthority(isAddress ? given.authority() : host);
    } else {
        m_url.setHost(host);
    }
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

QtSoapLimits QtSoapHttpTransport::limits() const
{
    return m_limits;
}

void QtSoapHttpTransport::setLimits(const QtSoapLimits& limits)
{
    m_limits = limits;
}

/// The address of a request; \a path may be an address itself.
QUrl QtSoapHttpTransport::address(const QString& path) const
{
    const QUrl given(path);
    if ((given.scheme() == QLatin1String("http") || given.scheme() == QLatin1String("https")) &&
        !given.host().isEmpty()) {
        return given;
    }
    QUrl url = m_url;
    const int query = path.indexOf(QLatin1Char('?'));
    const QString place = query < 0 ? path : path.left(query);
    url.setPath(place.startsWith(QLatin1Char('/')) ? place : QLatin1Char('/') + place);
    url.setQuery(query < 0 ? QString() : path.mid(query + 1));
    return url;
}

void QtSoapHttpTransport::submitRequest(QtSoapMessage& request, const QString& path)
{
    QNetworkRequest post(address(path));
    post.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("text/xml;charset=utf-8"));
    post.setRawHeader("SOAPAction", quoted(m_action));
    post.setRawHeader("Accept-Encoding", "identity"); // a server may pack its answer even so

    if (m_reply && !m_pending.contains(m_reply)) {
        m_reply->deleteLater();
    }
    // On a kept connection the head and the body leave in two segments, and the second one waits about 40 ms for the
    // delayed acknowledgement of the first. A new connection takes less. One that was authenticated is kept.
    if (post.url().scheme() == QLatin1String("http") && !m_authenticates && isIdle()) {
        m_manager.clearConnectionCache();
    }
    const QString xml = request.toXmlString();
    if (isSoapTraced()) {
        traceSoapRequest(post, xml);
    }
    m_reply = m_manager.post(post, xml.toUtf8());
    m_pending.append(m_reply);
    new SoapHttpExchange(m_reply, m_timeout, m_limits);
}

/// Whether the manager has finished all requests, also those of the client's own.
bool QtSoapHttpTransport::isIdle() const
{
    const auto replies = m_manager.findChildren<QNetworkReply*>();
    return std::all_of(replies.begin(), replies.end(),
                       [](const QNetworkReply* reply) { return reply->isFinished(); });
}

void QtSoapHttpTransport::onAuthentication()
{
    m_authenticates = true;
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
    m_response = response; // both share the contents
    // a slot may submit the next request, or destroy the transport
    const QPointer<QtSoapHttpTransport> self(this);
    Q_EMIT responseReady();
    if (self) {
        Q_EMIT responseReady(response);
    }
}

} // namespace TOLVAN_NAMESPACE
