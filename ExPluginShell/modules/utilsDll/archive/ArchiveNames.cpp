#include "ArchiveNames.h"

#include <QDir>

#include <algorithm>

namespace TOLVAN_NAMESPACE
{

namespace
{

bool isSeparator(QChar c)
{
    return c == QLatin1Char('/') || c == QLatin1Char('\\');
}

/// Whether the name begins with a drive. On Unix "a:1.jpg" is a plain name, "a:/1.jpg" was a path on Windows.
bool hasDrive(const QString& name, NameRules rules)
{
    const auto isLetter = [](QChar c) {
        return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
               (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
    };
    return name.size() >= 2 && name.at(1) == QLatin1Char(':') && isLetter(name.at(0)) &&
           (rules == NameRules::Windows || (name.size() >= 3 && isSeparator(name.at(2))));
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

bool leadsOutside(const QString& name, NameRules rules)
{
    QString slashes = name;
    slashes.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QString& start = rules == NameRules::Windows ? slashes : name;
    return hasDrive(name, rules) || start.startsWith(QLatin1Char('/')) ||
           slashes.split(QLatin1Char('/')).contains(QLatin1String(".."));
}

QStringList safeParts(const QString& name, NameRules rules)
{
    if (leadsOutside(name, rules)) {
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
