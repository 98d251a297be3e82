#include <utilsDll/Settings.h>
#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>
#include <utilsDll/TemporarySettings.h>

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace
{

int failures = 0;

void check(bool ok, const char* what)
{
    std::printf("%s: %s\n", ok ? "ok" : "FAILED", what);
    failures += ok ? 0 : 1;
}

} // namespace

// Uses the installed library as the README shows it.
int main(int argc, char* argv[])
{
    using namespace TOLVAN_NAMESPACE;
    const QCoreApplication application(argc, argv);
    CTemporarySettings temporary(argv[0]);
    CSettings::setTemporarySettings(temporary);
    setLastLaunchMode(QStringLiteral("Package"));
    check(getLastLaunchMode() == QStringLiteral("Package"), "settings are read back");

    ILoggerInterface* const logger = initLoggerForUtilsDll(nullptr, QStringLiteral("package"));
    check(logger, "the logger is found beside the library");
    if (logger) {
        logger->log(LogLevel::Error, "consumer");
        check(QFile::exists(CStorageLocation::loggerFilesPath() + QStringLiteral("package.log")),
              "it writes its file");
    }
    return failures;
}
