#include "FileManagement.h"

#include <QDir>
#include <QRegExp>

#include <cstdint>
#include <cstdlib>

namespace
{

/// The name check as its rules are written down, step by step, without regard to speed.
bool isValidByTheRules(const QString& name, bool isPath)
{
    const QString path = QDir::toNativeSeparators(QDir::cleanPath(name));
    if (path.isEmpty() || path.size() >= 32767) {
        return false;
    }
    for (const QString& part : path.split(QDir::separator(), Qt::SkipEmptyParts)) {
        if (part.size() > 260) {
            return false;
        }
    }
    for (const QChar forbidden : isPath ? QStringLiteral("<>\"|?*") : QStringLiteral("<>:\"|?*/\\")) {
        if (path.contains(forbidden, Qt::CaseSensitive)) {
            return false;
        }
    }
    if (path.contains(QStringLiteral(".."))) {
        return false;
    }
    static const QString devices =
        QStringLiteral("CON|PRN|AUX|NUL|COM1|COM2|COM3|COM4|COM5|COM6|COM7|COM8|COM9|"
                       "LPT1|LPT2|LPT3|LPT4|LPT5|LPT6|LPT7|LPT8|LPT9");
    static const QRegExp whole(devices, Qt::CaseInsensitive);
    static const QRegExp last(QStringLiteral(".*[/\\\\](%1)").arg(devices), Qt::CaseInsensitive);
    return !whole.exactMatch(path) && !(isPath && last.exactMatch(path));
}

} // namespace

/// Any text gets the answer of the rules. The first byte chooses between a name and a path.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const bool isPath = data[0] & 1;
    const QString name =
        QString::fromUtf8(reinterpret_cast<const char*>(data + 1), static_cast<int>(size - 1));
    if (TOLVAN_NAMESPACE::validateFileName(name, isPath) != isValidByTheRules(name, isPath)) {
        qCritical("not the answer of the rules for %s \"%s\"", isPath ? "path" : "name", qPrintable(name));
        std::abort();
    }
    return 0;
}
