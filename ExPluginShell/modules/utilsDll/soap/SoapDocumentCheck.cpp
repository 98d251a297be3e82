#include "SoapDocumentCheck.h"

#include "frame/XmlBounds.h"
#include "SoapLimits.h"

#include <QTextCodec>

namespace TOLVAN_NAMESPACE
{

namespace
{

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

SoapDocumentCheck::SoapDocumentCheck(const QByteArray& document, const QtSoapLimits& limits)
{
    if (document.size() > limits.documentBytes) {
        error =
            QStringLiteral("The document is larger than %1 MiB").arg(limits.documentBytes / (1024 * 1024));
        return;
    }
    if (isWide(document)) {
        // Without a byte order mark the first character is '<', and the place of its zero byte gives the order.
        QTextCodec* const fallback = QTextCodec::codecForName(document.at(0) == 0 ? "UTF-16BE" : "UTF-16LE");
        utf8 = QTextCodec::codecForUtfText(document, fallback)->toUnicode(document).toUtf8();
    }
    const XmlBounds bounds = XmlBounds::of(utf8.isNull() ? document : utf8);
    if (bounds.longestTag > SoapLimits::TagBytes) {
        error = QStringLiteral("A tag is longer than %1 bytes").arg(SoapLimits::TagBytes);
    } else if (bounds.hasDocumentType) {
        error = documentTypeRefusal();
    }
    text = 2 * static_cast<qint64>(bounds.longestText);
    memory = document.size() + utf8.size() + text;
}

bool isSoapEncoding(QStringView encoding)
{
    const QString name = encoding.toString().toLower();
    return name.isEmpty() || name == QLatin1String("utf-8") || name == QLatin1String("utf8") ||
           name == QLatin1String("us-ascii") || name == QLatin1String("ascii") ||
           name.startsWith(QLatin1String("iso-8859-")) || name.startsWith(QLatin1String("windows-125"));
}

} // namespace TOLVAN_NAMESPACE
