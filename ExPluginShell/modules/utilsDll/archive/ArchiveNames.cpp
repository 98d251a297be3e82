#include "ArchiveNames.h"

#include <quazip/quacrc32.h>
#include <quazip/quazipfileinfo.h>

#include <QDir>
#include <QTextCodec>

#include <algorithm>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr quint16 unicodePathField = 0x7075;
constexpr int deepestName = 256; // Deepest nesting accepted: creating folders slows down with depth.

/// The upper half of code page 437, which the zip format takes for unmarked names.
constexpr char16_t upperHalf[] = u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
                                 u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
                                 u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
                                 u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00a0";

QString fromCodePage437(const QByteArray& raw)
{
    QString text;
    text.reserve(raw.size());
    for (const char byte : raw) {
        const auto code = static_cast<unsigned char>(byte);
        text += QChar(code < 0x80 ? char16_t(code) : upperHalf[code - 0x80]);
    }
    return text;
}

/// \return null when the bytes are no valid UTF-8
QString fromStrictUtf8(const QByteArray& raw)
{
    static QTextCodec* const utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state;
    const QString text = utf8->toUnicode(raw.constData(), raw.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 ? text : QString();
}

/// The "Info-ZIP Unicode Path" field: version 1, CRC of the name it stands for, the name in UTF-8.
QString unicodePath(const QByteArray& raw, const QByteArray& extra)
{
    const QList<QByteArray> fields = QuaZipFileInfo64::parseExtraField(extra).value(unicodePathField);
    if (fields.isEmpty() || fields.constFirst().size() < 5 || fields.constFirst().at(0) != 1) {
        return {};
    }
    const QByteArray& field = fields.constFirst();
    quint32 crc = 0;
    for (int i = 4; i >= 1; --i) {
        crc = crc << 8 | static_cast<unsigned char>(field.at(i));
    }
    QuaCrc32 calculator;
    return calculator.calculate(raw) == crc ? fromStrictUtf8(field.mid(5)) : QString();
}

bool isDrive(const QString& name)
{
    const auto isLetter = [](QChar c) {
        return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
               (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
    };
    return name.size() >= 2 && name.at(1) == QLatin1Char(':') && isLetter(name.at(0));
}

bool leadsUp(const QString& name)
{
    QString slashes = name;
    slashes.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return slashes.startsWith(QLatin1Char('/')) ||
           slashes.split(QLatin1Char('/')).contains(QLatin1String(".."));
}

/// A device name with any suffix still names the device.
bool isWindowsDevice(const QString& part)
{
    static const QStringList devices = {
        QStringLiteral("con"),    QStringLiteral("prn"),     QStringLiteral("aux"),   QStringLiteral("nul"),
        QStringLiteral("conin$"), QStringLiteral("conout$"), QStringLiteral("clock$")};
    const QString base = part.section(QLatin1Char('.'), 0, 0).trimmed().toLower();
    return devices.contains(base) ||
           (base.size() == 4 && base.at(3).isDigit() &&
            (base.startsWith(QLatin1String("com")) || base.startsWith(QLatin1String("lpt"))));
}

bool isUsablePart(const QString& part, NameRules rules)
{
    if (part.contains(QChar(0))) {
        return false;
    }
    if (rules == NameRules::Unix) {
        return true;
    }
    const auto isForbidden = [](QChar c) {
        return c.unicode() < 0x20 || QStringLiteral("<>:\"|?*").contains(c);
    };
    // The system drops dots and blanks at the end: the file would have another name than the one checked.
    return std::none_of(part.begin(), part.end(), isForbidden) && !part.endsWith(QLatin1Char('.')) &&
           !part.endsWith(QLatin1Char(' ')) && !isWindowsDevice(part);
}

} // namespace

NameRules nativeNameRules()
{
    return QDir::separator() == QLatin1Char('\\') ? NameRules::Windows : NameRules::Unix;
}

QString decodeUnmarkedName(const QByteArray& raw, const QByteArray& extra)
{
    const QString attached = unicodePath(raw, extra);
    if (!attached.isNull()) {
        return attached;
    }
    const QString utf8 = fromStrictUtf8(raw);
    return utf8.isNull() ? fromCodePage437(raw) : utf8;
}

QStringList safeParts(const QString& name, NameRules rules)
{
    if (isDrive(name) || leadsUp(name)) {
        return {};
    }
    QString slashes = name;
    if (rules == NameRules::Windows) {
        slashes.replace(QLatin1Char('\\'), QLatin1Char('/'));
    }
    QStringList parts = slashes.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    parts.removeAll(QStringLiteral("."));
    const bool usable = std::all_of(parts.begin(), parts.end(),
                                    [rules](const QString& part) { return isUsablePart(part, rules); });
    return usable && parts.size() <= deepestName ? parts : QStringList();
}

bool linkStaysInside(const QStringList& folder, const QString& target)
{
    if (target.isEmpty() || target.startsWith(QLatin1Char('/')) || target.contains(QChar(0))) {
        return false;
    }
    int depth = folder.size();
    bool descending = false;
    for (const QString& part : target.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (part != QLatin1String("..")) {
            descending = descending || part != QLatin1String(".");
        } else if (descending || --depth < 0) {
            return false; // behind another part ".." may follow a link made later
        }
    }
    return true;
}

} // namespace TOLVAN_NAMESPACE
