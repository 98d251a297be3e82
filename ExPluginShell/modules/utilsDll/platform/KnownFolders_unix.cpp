#include "platform/KnownFolders.h"

#include <QDir>
#include <QStandardPaths>
#include <QStringList>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

/// Absolute folders of a colon-separated search path; relative ones are invalid there. Never empty.
QStringList searchFolders(const char* variable, const char* fallback)
{
    QStringList folders;
    for (const QString& folder : qEnvironmentVariable(variable).split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        if (QDir::isAbsolutePath(folder)) {
            folders += QDir::cleanPath(folder);
        }
    }
    return folders.isEmpty() ? QStringList(QString::fromLatin1(fallback)) : folders;
}

} // namespace

QString knownFolder(KnownFolder folder)
{
    switch (folder) {
    case KnownFolder::LocalAppData:
        return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    case KnownFolder::ProgramData:
        return machineWideConfigBase();
    case KnownFolder::CommonPictures:
        return QDir(searchFolders("XDG_DATA_DIRS", "/usr/local/share").first())
            .filePath(QStringLiteral("pictures"));
    }
    return {};
}

QString machineWideConfigBase()
{
    // Desktop sessions put folders of their own first; the last one is the machine's own.
    return searchFolders("XDG_CONFIG_DIRS", "/etc/xdg").last();
}

} // namespace TOLVAN_NAMESPACE::Platform
