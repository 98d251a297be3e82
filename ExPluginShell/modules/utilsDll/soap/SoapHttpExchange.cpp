#include "SoapHttpExchange.h"

#include "SoapLimits.h"

#include <QRegularExpression>
#include <utility>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int wholeTimeouts = 10; ///< how many time-outs an exchange that keeps moving may last
constexpr int maximumTimeout = 24 * 60 * 60 * 1000;
constexpr qint64 readAhead = 1024 * 1024; ///< bytes that may wait for a caller who is busy

QtSoapMessage fault(QtSoapMessage::FaultCode code, const QString& text)
{
    QtSoapMessage message;
    message.setFaultCode(code);
    message.setFaultString(text);
    return message;
}

} // namespace

SoapHttpExchange::SoapHttpExchange(QNetworkReply* reply, int timeout)
    : QObject(reply)
    , m_reply(reply)
{
    connect(reply, SIGNAL(uploadProgress(qint64, qint64)), this, SLOT(onProgress()));
    connect(reply, SIGNAL(metaDataChanged()), this, SLOT(onHead()));
    connect(reply, SIGNAL(readyRead()), this, SLOT(onReceived()));
    // Not now: the thread that receives is started by the event loop, and a size set before never reaches it.
    QMetaObject::invokeMethod(this, "limitReadAhead", Qt::QueuedConnection);
    for (QTimer* timer : {&m_idle, &m_whole}) {
        timer->setSingleShot(true);
        connect(timer, SIGNAL(timeout()), this, SLOT(onTimeout()));
    }
    if (timeout > 0) {
        m_idle.start(qMin(timeout, maximumTimeout));
        m_whole.start(qMin(timeout, maximumTimeout) * wholeTimeouts);
    }
}

SoapHttpExchange* SoapHttpExchange::of(QNetworkReply* reply)
{
    return reply->findChild<SoapHttpExchange*>(QString(), Qt::FindDirectChildrenOnly);
}

void SoapHttpExchange::onProgress()
{
    if (m_idle.isActive()) {
        m_idle.start();
    }
}

/// What does not fit stays on the way.
void SoapHttpExchange::limitReadAhead()
{
    m_reply->setReadBufferSize(readAhead);
}

void SoapHttpExchange::onHead()
{
    limitReadAhead(); // for a start that had to wait, for a connection of the system say
    onProgress();
}

void SoapHttpExchange::onReceived()
{
    onProgress();
    if (!m_reason.isEmpty()) {
        return;
    }
    m_body += m_reply->readAll();
    const qint64 announced = m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    if (qMax<qint64>(m_body.size(), announced) > SoapLimits::DocumentBytes) {
        giveUp(QStringLiteral("The answer is larger than %1 MiB")
                   .arg(SoapLimits::DocumentBytes / (1024 * 1024)));
    }
}

void SoapHttpExchange::onTimeout()
{
    giveUp(m_whole.isActive()
               ? QStringLiteral("The server did not answer within %1 s").arg(m_idle.interval() / 1000.0)
               : QStringLiteral("The answer was not complete after %1 s").arg(m_whole.interval() / 1000.0));
}

void SoapHttpExchange::giveUp(const QString& reason)
{
    if (!m_reason.isEmpty() || m_reply->isFinished()) {
        return;
    }
    m_reason = reason;
    m_body.clear();
    m_idle.stop();
    m_whole.stop();
    m_reply->abort();
}

/// The body with the character set of the HTTP header, which only counts for a document that names none
/// itself.
QByteArray SoapHttpExchange::declared(const QByteArray& body) const
{
    static const QRegularExpression charset(QStringLiteral("charset\\s*=\\s*\"?([A-Za-z0-9._-]+)"),
                                            QRegularExpression::CaseInsensitiveOption);
    const auto match = charset.match(m_reply->header(QNetworkRequest::ContentTypeHeader).toString());
    const bool decided = !body.startsWith('<') || body.startsWith("<?xml");
    if (decided || !match.hasMatch() ||
        match.captured(1).startsWith(QLatin1String("utf"), Qt::CaseInsensitive)) {
        return body;
    }
    return "<?xml version=\"1.0\" encoding=\"" + match.captured(1).toLatin1() + "\"?>" + body;
}

/// What is wrong with an exchange that brought no message.
QString SoapHttpExchange::failure(const QByteArray& body, const QString& notSoap) const
{
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QString phrase = m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
    const QString type = m_reply->header(QNetworkRequest::ContentTypeHeader).toString();
    if (status >= 200 && status < 300) {
        if (m_reply->error() != QNetworkReply::NoError) {
            return QStringLiteral("The answer is not complete: %1").arg(m_reply->errorString());
        }
        return QStringLiteral("The answer (%1, %2 bytes) is no SOAP message: %3")
            .arg(type.isEmpty() ? QStringLiteral("no content type") : type)
            .arg(body.size())
            .arg(notSoap);
    }
    if (status > 0) {
        return QStringLiteral("The server answered with the status %1 %2 and no SOAP message")
            .arg(status)
            .arg(phrase);
    }
    return QStringLiteral("The server could not be asked: %1").arg(m_reply->errorString());
}

QtSoapMessage SoapHttpExchange::message()
{
    m_idle.stop();
    m_whole.stop();
    if (!m_reason.isEmpty()) {
        return fault(QtSoapMessage::Other, m_reason);
    }
    if (m_reply->isOpen()) { // else the caller aborted it
        m_body += m_reply->readAll();
    }
    const QByteArray body = std::exchange(m_body, QByteArray());
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    QtSoapMessage message;
    if ((status == 202 || status == 204) && body.trimmed().isEmpty()) {
        return message; // taken on, nothing to say
    }
    if (!body.isEmpty() && message.setContent(declared(body))) {
        return message;
    }
    const bool notSoap =
        status >= 200 && status < 300 && m_reply->error() == QNetworkReply::NoError && !body.isEmpty();
    const QString reason = body.isEmpty() ? QStringLiteral("it is empty") : message.errorString();
    return fault(notSoap ? message.faultCode() : QtSoapMessage::Other, failure(body, reason));
}

} // namespace TOLVAN_NAMESPACE
