#include "SoapDocumentCheck.h"

#include "SoapLimits.h"

#include <cstring>
#include <QTextCodec>

namespace TOLVAN_NAMESPACE
{

namespace
{

bool startsWith(const char* at, const char* end, const char* text)
{
    const auto length = static_cast<std::ptrdiff_t>(std::strlen(text));
    return end - at >= length && std::memcmp(at, text, static_cast<std::size_t>(length)) == 0;
}

/// Behind the next \a text, or the end.
const char* behind(const char* at, const char* end, const char* text)
{
    const auto length = std::strlen(text);
    while (at < end) {
        at = static_cast<const char*>(std::memchr(at, text[0], static_cast<std::size_t>(end - at)));
        if (!at) {
            break;
        }
        if (startsWith(at, end, text)) {
            return at + length;
        }
        ++at;
    }
    return end;
}

/// Behind the tag that begins at \a at; a '>' in quotes does not end it.
const char* behindTag(const char* at, const char* end)
{
    char quote = 0;
    for (; at < end; ++at) {
        if (quote ? *at == quote : (*at == '"' || *at == '\'')) {
            quote = quote ? 0 : *at;
        } else if (!quote && *at == '>') {
            return at + 1;
        }
    }
    return end;
}

QString checkTags(const QByteArray& document)
{
    const char* const end = document.constData() + document.size();
    for (const char* at = document.constData(); at < end;) {
        at = static_cast<const char*>(std::memchr(at, '<', static_cast<std::size_t>(end - at)));
        if (!at) {
            break;
        }
        if (startsWith(at, end, "<!--")) {
            at = behind(at + 4, end, "-->");
        } else if (startsWith(at, end, "<![CDATA[")) {
            at = behind(at, end, "]]>");
        } else if (startsWith(at, end, "<?")) {
            at = behind(at, end, "?>");
        } else if (startsWith(at, end, "<!DOCTYPE")) {
            return QStringLiteral("A document type declaration is not allowed in a SOAP message");
        } else {
            const char* const limit = end - at > SoapLimits::TagBytes ? at + SoapLimits::TagBytes : end;
            at = behindTag(at, limit);
            if (at == limit && limit != end) {
                return QStringLiteral("A tag is longer than %1 bytes").arg(SoapLimits::TagBytes);
            }
        }
    }
    return QString();
}

bool isWide(const QByteArray& document)
{
    return document.startsWith("\xFE\xFF") || document.startsWith("\xFF\xFE") ||
           (document.size() > 1 && (document.at(0) == 0 || document.at(1) == 0));
}

} // namespace

QString checkSoapDocument(const QByteArray& document, QString* unicode)
{
    if (document.size() > SoapLimits::DocumentBytes) {
        return QStringLiteral("The document is larger than %1 MiB")
            .arg(SoapLimits::DocumentBytes / (1024 * 1024));
    }
    if (!isWide(document)) {
        return checkTags(document);
    }
    // without a byte order mark the first character is '<', so the zero tells the order
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
