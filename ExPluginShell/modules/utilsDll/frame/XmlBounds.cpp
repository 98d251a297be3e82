#include "XmlBounds.h"

#include <QXmlStreamReader>

namespace TOLVAN_NAMESPACE
{

namespace
{

/// Position of the ">" that ends the tag begun at \a from, which may also stand in a quoted attribute value.
int endOfTag(const QString& xml, int from)
{
    QChar quote;
    for (int at = from; at < xml.size(); ++at) {
        const QChar c = xml.at(at);
        if (!quote.isNull()) {
            quote = c == quote ? QChar() : quote;
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            quote = c;
        } else if (c == QLatin1Char('>')) {
            return at;
        }
    }
    return xml.size();
}

/// Where the markup that is no element, begun at \a from, ends.
int endOfNonElement(const QString& xml, int from)
{
    const QStringRef rest = xml.midRef(from, 9);
    const QLatin1String end = rest.startsWith(QLatin1String("<!--"))        ? QLatin1String("-->")
                              : rest.startsWith(QLatin1String("<![CDATA[")) ? QLatin1String("]]>")
                                                                            : QLatin1String("?>");
    const int at = xml.indexOf(end, from);
    return at < 0 ? xml.size() : at;
}

/// Upper bound of the depth for texts without a document type, whose entities could hide elements.
bool mayNestDeeperThan(const QString& xml, int limit)
{
    int depth = 0;
    int at = xml.indexOf(QLatin1Char('<'));
    while (at >= 0 && at < xml.size()) {
        const QChar next = at + 1 < xml.size() ? xml.at(at + 1) : QChar();
        if (next == QLatin1Char('/')) {
            depth = qMax(0, depth - 1);
        } else if (xml.midRef(at, 9) == QLatin1String("<!DOCTYPE")) {
            return true;
        } else if (next == QLatin1Char('!') || next == QLatin1Char('?')) {
            at = endOfNonElement(xml, at);
        } else {
            at = endOfTag(xml, at);
            const bool isEmptyElement = xml.at(at - 1) == QLatin1Char('/');
            if (!isEmptyElement && ++depth > limit) {
                return true;
            }
        }
        at = xml.indexOf(QLatin1Char('<'), at + 1);
    }
    return false;
}

} // namespace

bool nestsDeeperThan(const QString& xml, int limit)
{
    if (!mayNestDeeperThan(xml, limit)) {
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
