#include "XmlBounds.h"

#include <QXmlStreamReader>

#include <cstring>
#include <utility>

namespace TOLVAN_NAMESPACE
{

namespace
{

bool startsWith(const char* at, const char* end, const char* text)
{
    const auto length = static_cast<std::ptrdiff_t>(std::strlen(text));
    return end - at >= length && std::memcmp(at, text, static_cast<std::size_t>(length)) == 0;
}

/// Returns the next \a character from \a at on, or \a end.
const char* next(const char* at, const char* end, char character)
{
    const void* const found = std::memchr(at, character, static_cast<std::size_t>(end - at));
    return found ? static_cast<const char*>(found) : end;
}

/// Returns the place behind the next \a text, or \a end.
const char* behind(const char* at, const char* end, const char* text)
{
    for (at = next(at, end, text[0]); at < end; at = next(at + 1, end, text[0])) {
        if (startsWith(at, end, text)) {
            return at + std::strlen(text);
        }
    }
    return end;
}

/// Returns the place behind the tag that begins at \a at; a '>' in quotes does not end it.
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

} // namespace

XmlBounds XmlBounds::of(const QByteArray& xml)
{
    XmlBounds bounds;
    const char* const end = xml.constData() + xml.size();
    const char* text = xml.constData();
    int depth = 0;
    for (const char* at = next(xml.constData(), end, '<'); at < end; at = next(at, end, '<')) {
        if (startsWith(at, end, "<!--")) {
            at = behind(at + 4, end, "-->");
        } else if (startsWith(at, end, "<![CDATA[")) {
            at = behind(at, end, "]]>");
        } else if (startsWith(at, end, "<?")) {
            at = behind(at, end, "?>");
        } else if (startsWith(at, end, "<!DOCTYPE")) {
            bounds.hasDocumentType = true;
            break;
        } else {
            const char* const tag = std::exchange(at, behindTag(at, end));
            bounds.longestText = qMax(bounds.longestText, static_cast<int>(tag - text));
            text = at;
            bounds.longestTag = qMax(bounds.longestTag, static_cast<int>(at - tag));
            if (startsWith(tag, end, "</")) {
                depth = qMax(0, depth - 1);
            } else if (at - tag > 1 && at[-2] != '/') {
                bounds.depth = qMax(bounds.depth, ++depth);
            }
        }
    }
    bounds.longestText = qMax(bounds.longestText, static_cast<int>(end - text));
    return bounds;
}

bool nestsDeeperThan(const QString& xml, int limit)
{
    const XmlBounds bounds = XmlBounds::of(xml.toUtf8());
    if (!bounds.hasDocumentType && bounds.depth <= limit) { // entities of a document type could hide elements
        return false;
    }
    QXmlStreamReader reader(xml);
    int depth = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && ++depth > limit) {
            return true;
        }
        if (token == QXmlStreamReader::EndElement) {
            --depth;
        }
    }
    return false;
}

} // namespace TOLVAN_NAMESPACE
