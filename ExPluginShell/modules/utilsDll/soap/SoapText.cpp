#include "SoapText.h"

#include <cmath>
#include <limits>
#include <QDateTime>
#include <QDebug>
#include <QStringList>

namespace TOLVAN_NAMESPACE::SoapText
{

namespace
{

QVariant number(const QString& text, bool ok, const QVariant& value)
{
    return ok ? value : QVariant(text);
}

QVariant toDouble(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed == QLatin1String("INF") || trimmed == QLatin1String("+INF")) {
        return std::numeric_limits<double>::infinity();
    }
    if (trimmed == QLatin1String("-INF")) {
        return -std::numeric_limits<double>::infinity();
    }
    if (trimmed == QLatin1String("NaN")) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    bool ok = false;
    const double value = trimmed.toDouble(&ok);
    return number(text, ok && std::isfinite(value), value); // "inf" is a number for Qt, not for XML Schema
}

QVariant toBool(const QString& text)
{
    const QString trimmed = text.trimmed();
    if (trimmed == QLatin1String("true") || trimmed == QLatin1String("1")) {
        return true;
    }
    if (trimmed == QLatin1String("false") || trimmed == QLatin1String("0")) {
        return false;
    }
    return text;
}

/// Whether XML 1.0 has the character at \a at, which may be half of a surrogate pair.
bool isCarriable(const QString& text, int at)
{
    const QChar c = text.at(at);
    if (c.unicode() < 0x20) {
        return c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
    }
    if (c.isHighSurrogate()) {
        return at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    }
    if (c.isLowSurrogate()) {
        return at > 0 && text.at(at - 1).isHighSurrogate();
    }
    return c.unicode() < 0xFFFE;
}

bool isNameCharacter(QChar c, bool first)
{
    if (c.isLetter() || c == QLatin1Char('_')) {
        return c.unicode() < 0x80 || (c.unicode() >= 0xC0 && c.unicode() < 0x2000 && c.unicode() != 0xD7);
    }
    return !first && (c == QLatin1Char('-') || c == QLatin1Char('.') ||
                      (c >= QLatin1Char('0') && c <= QLatin1Char('9')));
}

} // namespace

QVariant toVariant(QtSoapType::Type type, const QString& text)
{
    bool ok = false;
    switch (type) {
    case QtSoapType::Boolean:
        return toBool(text);
    case QtSoapType::Int:
    case QtSoapType::Short:
    case QtSoapType::Byte: {
        const int value = text.toInt(&ok);
        return number(text, ok, value);
    }
    case QtSoapType::UnsignedInt:
    case QtSoapType::UnsignedShort:
    case QtSoapType::UnsignedByte: {
        const uint value = text.toUInt(&ok);
        return number(text, ok, value);
    }
    case QtSoapType::Long: {
        const qlonglong value = text.toLongLong(&ok);
        return number(text, ok, value);
    }
    case QtSoapType::UnsignedLong: {
        const qulonglong value = text.toULongLong(&ok);
        return number(text, ok, value);
    }
    case QtSoapType::Float:
    case QtSoapType::Double:
        return toDouble(text);
    default:
        return text.isNull() ? QVariant(QString(QLatin1String(""))) : QVariant(text);
    }
}

QString lexical(QtSoapType::Type type, const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return QString::fromLatin1(type == QtSoapType::HexBinary ? bytes.toHex().toUpper()
                                                                 : bytes.toBase64());
    }
    case QMetaType::QDateTime: {
        const QDateTime moment =
            value.toDateTime(); // without its offset, another time zone would read another moment
        const QDateTime local = moment.timeSpec() == Qt::LocalTime || moment.timeSpec() == Qt::TimeZone
                                    ? moment.toOffsetFromUtc(moment.offsetFromUtc())
                                    : moment;
        return local.toString(moment.time().msec() != 0 ? Qt::ISODateWithMs : Qt::ISODate);
    }
    case QMetaType::QDate:
        return value.toDate().toString(Qt::ISODate);
    case QMetaType::QTime:
        return value.toTime().toString(value.toTime().msec() != 0 ? Qt::ISODateWithMs : Qt::ISODate);
    default:
        return fromVariant(value);
    }
}

QString fromVariant(const QVariant& value)
{
    const int type = value.userType();
    if (type == QMetaType::Double || type == QMetaType::Float) {
        const double number = value.toDouble();
        if (std::isnan(number)) {
            return QStringLiteral("NaN");
        }
        if (std::isinf(number)) {
            return number > 0 ? QStringLiteral("INF") : QStringLiteral("-INF");
        }
    }
    return value.toString();
}

QString elementName(const QString& name, const QString& fallback)
{
    if (name.isEmpty()) {
        return fallback;
    }
    if (isElementName(name)) {
        return name;
    }
    QString safe;
    for (int at = 0; at < name.size(); ++at) {
        if (isNameCharacter(name.at(at), at == 0)) {
            safe += name.at(at);
        } else {
            safe += QStringLiteral("_x%1_").arg(name.at(at).unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return safe;
}

bool isElementName(const QString& name)
{
    for (int at = 0; at < name.size(); ++at) {
        if (!isNameCharacter(name.at(at), at == 0)) {
            return false;
        }
    }
    return !name.isEmpty();
}

bool isOwnPrefix(const QString& prefix)
{
    static const QStringList fixed{QStringLiteral("SOAP-ENV"), QStringLiteral("SOAP-ENC"),
                                   QStringLiteral("xsi"), QStringLiteral("xsd")};
    return isElementName(prefix) && !prefix.startsWith(QLatin1String("xml"), Qt::CaseInsensitive) &&
           !fixed.contains(prefix);
}

void appendEscaped(QString& xml, const QString& text)
{
    int done = 0;
    const auto replace = [&](int at, QLatin1String with) {
        xml.append(text.constData() + done, at - done);
        xml.append(with);
        done = at + 1;
    };
    for (int at = 0; at < text.size(); ++at) {
        const ushort c = text.at(at).unicode();
        if (c == '&') {
            replace(at, QLatin1String("&amp;"));
        } else if (c == '<') {
            replace(at, QLatin1String("&lt;"));
        } else if (c == '>') {
            replace(at, QLatin1String("&gt;"));
        } else if (c == '"') {
            replace(at, QLatin1String("&quot;"));
        } else if (c == '\r') { // a plain one would come back as a line feed
            replace(at, QLatin1String("&#13;"));
        } else if ((c < 0x20 || c >= 0xD800) && !isCarriable(text, at)) {
            replace(at, QLatin1String());
            xml.append(QChar(QChar::ReplacementCharacter));
        }
    }
    xml.append(text.constData() + done, text.size() - done);
}

QString carriable(const QString& text)
{
    QString result = text;
    for (int at = 0; at < text.size(); ++at) {
        if (!isCarriable(text, at)) {
            result[at] = QChar(QChar::ReplacementCharacter);
        }
    }
    return result;
}

void warn(const QString& text)
{
    qWarning().noquote() << "SOAP:" << text;
}

} // namespace TOLVAN_NAMESPACE::SoapText
