#include <utilsDll/LogStatement.h>
#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>

#include <QCoreApplication>
#include <QFile>

using namespace TOLVAN_NAMESPACE;

namespace Lens
{

bool load(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        TOLVAN_LOG(LogLevel::Warning) << "cannot read " << path << ": " << file.errorString();
        return false;
    }
    TOLVAN_LOG(LogLevel::Debug) << path << " has " << file.size() << " bytes";
    return true;
}

} // namespace Lens

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (!initLoggerForUtilsDll(nullptr, QStringLiteral("LensModule"))) {
        return 1; // the reason is on standard error
    }
    installQtMessageLog();
    Lens::load(QStringLiteral("no such file"));
    qWarning("a message of Qt is in the log as well");
    removeQtMessageLog();
    return QFile::exists(CStorageLocation::loggerFilesPath() + QStringLiteral("LensModule.log")) ? 0 : 1;
}
