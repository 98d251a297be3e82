#include "SoapTrace.h"

#include "frame/Logging.h"
#include "qtsoapmessage.h"

#include <QLoggingCategory>
#include <QRegularExpression>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr int longestTrace = 20000; ///< characters of one body

Q_LOGGING_CATEGORY(traceCategory, "tolvan.soap.trace", QtWarningMsg)

QString withoutSecrets(QString xml)
{
    static const QString secret = QStringLiteral(
        "[^\\s<>/=\"']*(?:passw|pwd|secret|token|credential|apikey|session|nonce|pin)[^\\s<>/=\"']*");
    static const QRegularExpression element(
        QStringLiteral("(<") + secret + QStringLiteral("(?:\\s[^<>]*)?>)(?:<!\\[CDATA\\[.*?\\]\\]>|[^<])*"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression attribute(QLatin1Char('(') + secret +
                                                  QStringLiteral("\\s*=\\s*)(\"[^\"]*\"|'[^']*')"),
                                              QRegularExpression::CaseInsensitiveOption);
    xml.truncate(longestTrace);
    return xml.replace(element, QStringLiteral("\\1***")).replace(attribute, QStringLiteral("\\1\"***\""));
}

} // namespace

bool isSoapTraced()
{
    return traceCategory().isDebugEnabled();
}

QString soapTraceUrl(const QUrl& url)
{
    return url.toString(QUrl::RemoveUserInfo);
}

void traceSoapRequest(const QNetworkRequest& request, const QString& xml)
{
    UTILSDLL_LOG(LogLevel::Debug, "TOLVAN_NAMESPACE::QtSoapHttpTransport::submitRequest")
        << "POST " << soapTraceUrl(request.url()) << ", SOAPAction " << request.rawHeader("SOAPAction")
        << ": " << withoutSecrets(xml);
}

void traceSoapAnswer(const QNetworkReply* reply, const QByteArray& body, const QtSoapMessage& answer)
{
    UTILSDLL_LOG(LogLevel::Debug, "TOLVAN_NAMESPACE::QtSoapHttpTransport::readResponse")
        << soapTraceUrl(reply->url()) << " answered with status "
        << reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() << ": "
        << withoutSecrets(body.isEmpty() ? answer.faultString().toString()
                                         : QString::fromUtf8(body.left(4 * longestTrace)));
}

} // namespace TOLVAN_NAMESPACE
