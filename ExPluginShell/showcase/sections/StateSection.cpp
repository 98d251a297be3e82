#include "Report.h"
#include "Sections.h"

#include <utilsDll/ProcessInformation.h>
#include <utilsDll/SharedUtils.h>

#include <QCoreApplication>
#include <QFileInfo>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QString mode = QStringLiteral("Showcase");

QString yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

void showLaunch(Report& report)
{
    report.row(QStringLiteral("first launch on this profile"), yesNo(isFirstLaunch()));
    setNotFirstLaunch();
    report.check(QStringLiteral("first launch from now on"), yesNo(isFirstLaunch()), !isFirstLaunch());
    report.row(QStringLiteral("mode of the last launch"), getLastLaunchMode());
    setLastLaunchMode(mode);
    report.check(QStringLiteral("mode of this launch"), getLastLaunchMode(), getLastLaunchMode() == mode);
}

void showCrashCounter(Report& report)
{
    const int before = crashCounterForPlugin(mode);
    report.row(QStringLiteral("runs that ended abnormally"), QString::number(before));
    incrementCrashCounter();
    const int during = crashCounterForPlugin(mode);
    report.check(QStringLiteral("counter while work is under way"), QString::number(during),
                 during == before + 1);
    crashCounterReset(mode);
    report.check(QStringLiteral("counter after a good end"), QString::number(crashCounterForPlugin(mode)),
                 crashCounterForPlugin(mode) == 0);
}

void showProcess(Report& report)
{
    const QString name = UtilsDll::currentProcessName();
    report.check(QStringLiteral("currentProcessName"), name,
                 name == QFileInfo(QCoreApplication::applicationFilePath()).fileName());
    const auto version = UtilsDll::binaryFileVersionByProcessName(name);
    report.row(QStringLiteral("its file version"), QStringLiteral("%1.%2.%3.%4")
                                                       .arg(version.major)
                                                       .arg(version.minor)
                                                       .arg(version.build)
                                                       .arg(version.revision));
}

} // namespace

void showState(Report& report)
{
    showLaunch(report);
    showCrashCounter(report);
    const QString id = getUserID();
    report.check(QStringLiteral("getUserID"), id, id.size() == 36 && getUserID() == id);
    report.check(QStringLiteral("getResellerID"), getResellerID(),
                 getResellerID() == QStringLiteral("Tolvan"));
    report.row(QStringLiteral("log level"), getLogLevel());
    report.row(QStringLiteral("results saved as actions"), yesNo(useActionSave()));
    report.row(QStringLiteral("crash reports may be sent"), yesNo(crashReportSendingAllowed()));
    const QString plugins = getQtPluginsDir(false);
    report.check(QStringLiteral("getQtPluginsDir"), plugins,
                 plugins == QCoreApplication::applicationDirPath());
    showProcess(report);
}
