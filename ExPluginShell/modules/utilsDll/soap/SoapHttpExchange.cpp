#include "SoapHttpExchange.h"

#include "frame/QtVersion.h"
#include "qtsoapsimpletype.h"
#include "SoapTrace.h"

#include <private/qobject_p.h>
#include <QRegularExpression>
#include <utility>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int wholeTimeouts = 10; ///< how many time-outs an exchange that keeps moving may last
constexpr int maximumTimeout = 24 * 60 * 60 * 1000;
constexpr qint64 readAhead = 1024 * 1024; ///< bytes that may wait for a caller who is busy
constexpr int headLines = 500;            ///< services send about ten
constexpr int headBytes = 64 * 1024;
constexpr int quotedText = 200; ///< characters of a header in an error text
constexpr int quotedBody = 500;

using Head = QList<QPair<QByteArray, QByteArray>>;

bool isTooLarge(const Head& head)
{
    int bytes = 0;
    for (const auto& line : head) {
        bytes += line.first.size() + line.second.size();
    }
    return head.size() > headLines || bytes > headBytes;
}

QString headIsTooLarge()
{
    return QStringLiteral("The head of the answer has more than %1 lines or %2 KiB")
        .arg(headLines)
        .arg(headBytes / 1024);
}

} // namespace

SoapHttpExchange::SoapHttpExchange(QNetworkReply* reply, int timeout, const QtSoapLimits& limits)
    : QObject(reply)
    , m_reply(reply)
    , m_limits(limits)
{
    reply->installEventFilter(this);
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
    const Head head = m_reply->rawHeaderPairs();
    if (isTooLarge(head) || (head.isEmpty() && QtVersion::dropsLongHeads())) {
        giveUp(headIsTooLarge());
    }
}

bool SoapHttpExchange::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_reply && event->type() == QEvent::MetaCall) {
        // The thread that receives hands the head over in a queued call of this slot; Qt has no other place to look
        // at it before each line is joined with all lines of the same name.
        auto* const call = static_cast<QMetaCallEvent*>(event);
        const QMetaMethod method = m_reply->metaObject()->method(call->id());
        if (method.name() == "replyDownloadMetaData" && method.parameterType(0) == qMetaTypeId<Head>() &&
            isTooLarge(*static_cast<const Head*>(call->args()[1]))) {
            m_reason = headIsTooLarge();
            QMetaObject::invokeMethod(m_reply, "abort", Qt::QueuedConnection);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

/// Takes over what has arrived. A body that is too large or damaged ends the exchange.
void SoapHttpExchange::receive()
{
    const QByteArray piece = m_reply->readAll();
    const QByteArray packing = m_reply->rawHeader("Content-Encoding").trimmed().toLower();
    if (packing.isEmpty() || packing == "identity") {
        m_body += piece;
    } else if (packing != "gzip" && packing != "x-gzip" && packing != "deflate") {
        m_reason = QStringLiteral("The answer is packed as \"%1\"")
                       .arg(QString::fromLatin1(packing.left(quotedText)));
    } else if (!m_unpacker.unpack(piece, m_body, m_limits.documentBytes)) {
        m_reason = QStringLiteral("The packed answer is damaged");
    }
    if (m_body.size() > m_limits.documentBytes) {
        m_reason =
            QStringLiteral("The answer is larger than %1 MiB").arg(m_limits.documentBytes / (1024 * 1024));
    }
}

void SoapHttpExchange::onReceived()
{
    onProgress();
    if (!m_reason.isEmpty()) {
        return;
    }
    const qint64 announced = m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    if (m_body.isEmpty() && announced <= m_limits.documentBytes) {
        m_body.reserve(static_cast<int>(announced));
    }
    receive();
    if (announced > m_limits.documentBytes) {
        m_reason =
            QStringLiteral("The answer is larger than %1 MiB").arg(m_limits.documentBytes / (1024 * 1024));
    }
    if (!m_reason.isEmpty()) {
        giveUp(std::exchange(m_reason, QString()));
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

/// Puts the character set of the HTTP header into the body. It only counts for a document that names none itself.
void SoapHttpExchange::declareEncoding()
{
    static const QRegularExpression charset(QStringLiteral("charset\\s*=\\s*\"?([A-Za-z0-9._-]{1,40})"),
                                            QRegularExpression::CaseInsensitiveOption);
    const auto match = charset.match(m_reply->header(QNetworkRequest::ContentTypeHeader).toString());
    const QByteArray start = m_body.left(quotedText).trimmed();
    const bool decided = !start.startsWith('<') || start.startsWith("<?xml");
    if (!decided && match.hasMatch() &&
        !match.captured(1).startsWith(QLatin1String("utf"), Qt::CaseInsensitive)) {
        m_body.prepend("<?xml version=\"1.0\" encoding=\"" + match.captured(1).toLatin1() + "\"?>");
    }
}

/// What is wrong with an exchange that brought no message.
QString SoapHttpExchange::failure(const QtSoapMessage& answer) const
{
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QString phrase =
        m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString().left(quotedText);
    const QString type = m_reply->header(QNetworkRequest::ContentTypeHeader).toString().left(quotedText);
    if (status >= 200 && status < 300) {
        if (m_reply->error() != QNetworkReply::NoError) {
            return QStringLiteral("The answer is not complete: %1")
                .arg(m_reply->errorString().left(quotedBody));
        }
        return QStringLiteral("The answer (%1, %2 bytes) is no SOAP message: %3")
            .arg(type.isEmpty() ? QStringLiteral("no content type") : type)
            .arg(m_body.size())
            .arg(m_body.isEmpty() ? QStringLiteral("it is empty") : answer.errorString());
    }
    const QString target =
        soapTraceUrl(m_reply->header(QNetworkRequest::LocationHeader).toUrl()).left(quotedText);
    if (status > 0) {
        return QStringLiteral("The server answered with the status %1 %2 and no SOAP message%3")
            .arg(status)
            .arg(phrase, target.isEmpty() ? QString() : QStringLiteral("; it redirects to ") + target);
    }
    return QStringLiteral("The server could not be asked: %1").arg(m_reply->errorString().left(quotedBody));
}

/// A fault whose detail has what is known of the answer.
QtSoapMessage SoapHttpExchange::fault(QtSoapMessage::FaultCode code, const QString& text,
                                      const QString& parserError) const
{
    QtSoapMessage message;
    message.setFaultCode(code);
    message.setFaultString(text);
    const auto add = [&message](const char* name, const QString& content) {
        if (!content.isEmpty()) {
            message.addFaultDetail(new QtSoapSimpleType(QtSoapQName(QLatin1String(name)), content));
        }
    };
    add("status", m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toString());
    add("reason", m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString().left(quotedText));
    add("location", soapTraceUrl(m_reply->header(QNetworkRequest::LocationHeader).toUrl()).left(quotedText));
    if (m_reply->error() != QNetworkReply::NoError) {
        add("network", m_reply->errorString().left(quotedBody));
    }
    add("parser", parserError);
    add("body", QString::fromUtf8(m_body.left(4 * quotedBody)).left(quotedBody));
    return message;
}

QtSoapMessage SoapHttpExchange::message()
{
    m_idle.stop();
    m_whole.stop();
    if (m_reason.isEmpty() && m_reply->isOpen()) { // else it was aborted
        receive();
    }
    QtSoapMessage answer;
    answer.setLimits(m_limits);
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (!m_reason.isEmpty()) {
        answer = fault(QtSoapMessage::Other, m_reason, QString());
    } else if ((status == 202 || status == 204) && m_body.trimmed().isEmpty()) {
        // taken on, without an answer
    } else {
        declareEncoding();
        if (m_body.isEmpty() || !answer.setContent(m_body)) {
            const bool notSoap = status >= 200 && status < 300 &&
                                 m_reply->error() == QNetworkReply::NoError && !m_body.isEmpty();
            answer = fault(notSoap ? answer.faultCode() : QtSoapMessage::Other, failure(answer),
                           answer.errorString());
        }
    }
    trace(answer);
    m_body.clear();
    return answer;
}

void SoapHttpExchange::trace(const QtSoapMessage& answer) const
{
    if (isSoapTraced()) {
        traceSoapAnswer(m_reply, m_body, answer);
    }
}

} // namespace TOLVAN_NAMESPACE
