#include "platform/KnownFolders.h"

#include <QDir>
#include <QStandardPaths>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

/// First absolute folder of a colon-separated search path; relative entries are invalid there and skipped.
QString firstSearchFolder(const char* variable, const char* fallback)
{
    const auto folders = qEnvironmentVariable(variable).split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString& folder : folders) {
        if (QDir::isAbsolutePath(folder)) {
            return QDir::cleanPath(folder);
        }
    }
    return QString::fromLatin1(fallback);
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
        return QDir(firstSearchFolder("XDG_DATA_DIRS", "/usr/local/share"))
            .filePath(QStringLiteral("pictures"));
    }
    return {};
}

QString machineWideConfigBase()
{
    return firstSearchFolder("XDG_CONFIG_DIRS", "/etc/xdg");
}

} // namespace TOLVAN_NAMESPACE::Platform
