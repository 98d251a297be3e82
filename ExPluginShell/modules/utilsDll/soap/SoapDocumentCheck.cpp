#include "SoapDocumentCheck.h"

#include "frame/XmlBounds.h"
#include "SoapLimits.h"

#include <QTextCodec>

namespace TOLVAN_NAMESPACE
{

namespace
{

QString checkTags(const QByteArray& document)
{
    const XmlBounds bounds = XmlBounds::of(document);
    if (bounds.longestTag > SoapLimits::TagBytes) {
        return QStringLiteral("A tag is longer than %1 bytes").arg(SoapLimits::TagBytes);
    }
    return bounds.hasDocumentType ? documentTypeRefusal() : QString();
}

bool isWide(const QByteArray& document)
{
    return document.startsWith("\xFE\xFF") || document.startsWith("\xFF\xFE") ||
           (document.size() > 1 && (document.at(0) == 0 || document.at(1) == 0));
}

} // namespace

QString documentTypeRefusal()
{
    return QStringLiteral("A document type declaration is not allowed in a SOAP message");
}

QString checkSoapDocument(const QByteArray& document, QString* unicode)
{
    if (document.size() > SoapLimits::DocumentBytes) {
        return QStringLiteral("The document is larger than %1 MiB")
            .arg(SoapLimits::DocumentBytes / (1024 * 1024));
    }
    if (!isWide(document)) {
        return checkTags(document);
    }
    // Without a byte order mark the first character is '<', and the place of its zero byte gives the order.
    QTextCodec* const fallback = QTextCodec::codecForName(document.at(0) == 0 ? "UTF-16BE" : "UTF-16LE");
    *unicode = QTextCodec::codecForUtfText(document, fallback)->toUnicode(document);
    return checkTags(unicode->toUtf8());
}

bool isSoapEncoding(const QStringRef& encoding)
{
    const QString name = encoding.toString().toLower();
    return name.isEmpty() || name == QLatin1String("utf-8") || name == QLatin1String("utf8") ||
           name == QLatin1String("us-ascii") || name == QLatin1String("ascii") ||
           name.startsWith(QLatin1String("iso-8859-")) || name.startsWith(QLatin1String("windows-125"));
}

} // namespace TOLVAN_NAMESPACE
