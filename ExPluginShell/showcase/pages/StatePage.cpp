#include "Pages.h"
#include "PageWidget.h"
#include "Report.h"

#include <utilsDll/ProcessInformation.h>
#include <utilsDll/SharedUtils.h>

using namespace TOLVAN_NAMESPACE;

namespace
{
const QString mode = QStringLiteral("Showcase");

//! [code]
QString versionOfThisProcess()
{
    const QString name = UtilsDll::currentProcessName();
    const auto version = UtilsDll::binaryFileVersionByProcessName(name);
    return QStringLiteral("%1.%2.%3.%4")
        .arg(version.major)
        .arg(version.minor)
        .arg(version.build)
        .arg(version.revision);
}
//! [code]

QString crashes()
{
    return QString::number(crashCounterForPlugin(mode));
}

} // namespace

/// What the product keeps about its launches, and the process.
class StatePage : public PageWidget
{
    Q_OBJECT

public:
    explicit StatePage(QWidget* parent)
        : PageWidget(parent)
    {
        addLaunches();
        addProcess();
        addCrashCounter();
        column()->addStretch();
    }

private:
    void addLaunches()
    {
        auto* const form = addForm();
        addFact(form, QT_TR_NOOP("First launch on this profile"), [] { return yesNo(isFirstLaunch()); });
        addFact(form, QT_TR_NOOP("Mode of the last launch"), [] {
            const QString last = getLastLaunchMode();
            return last.isEmpty() ? tr("none yet") : last;
        });
        addFact(form, QT_TR_NOOP("Identifier of this user"), &getUserID);
        addFact(form, QT_TR_NOOP("Reseller"), &getResellerID);
        addFact(form, QT_TR_NOOP("Results saved as actions"), [] { return yesNo(useActionSave()); });
        addFact(form, QT_TR_NOOP("Crash reports may be sent"),
                [] { return yesNo(crashReportSendingAllowed()); });
    }

    void addProcess()
    {
        addTitle(QT_TR_NOOP("Process"));
        auto* const form = addForm();
        addFact(form, QT_TR_NOOP("Program"), [] { return UtilsDll::currentProcessName(); });
        addFact(form, QT_TR_NOOP("File version"), [] {
            const QString version = versionOfThisProcess();
            return version == QLatin1String("0.0.0.0") ? tr("unknown: the file carries no version") : version;
        });
        addFact(form, QT_TR_NOOP("Process number"),
                [] { return QString::number(QCoreApplication::applicationPid()); });
        addFact(form, QT_TR_NOOP("Folder of the Qt plug-ins"), [] { return getQtPluginsDir(false); });
    }

    void addCrashCounter()
    {
        addTitle(QT_TR_NOOP("Crash counter"));
        addText(QT_TR_NOOP(
            "A module counts up before risky work and resets the counter after it. What is left after "
            "a crash is seen at the next start."));
        QLabel* const count = addFact(addForm(), QT_TR_NOOP("Runs that ended abnormally"), &crashes);
        addButtons({makeButton(QT_TR_NOOP("Count up"),
                               [=] {
                                   setLastLaunchMode(mode);
                                   incrementCrashCounter();
                                   say(count, &crashes);
                                   answer([] { return tr("Counted up: work is under way."); });
                               }),
                    makeButton(QT_TR_NOOP("Reset the counter"), [=] {
                        crashCounterReset(mode);
                        say(count, &crashes);
                        answer([] { return tr("Reset: the work ended well."); });
                    })});
        column()->addWidget(makeAnswer());
    }

    static QString yesNo(bool value) { return value ? tr("yes") : tr("no"); }
};

QWidget* makeStatePage(QWidget* parent)
{
    return new StatePage(parent);
}

void walkState(Report& report)
{
    const auto yesNo = [](bool value) { return value ? QStringLiteral("yes") : QStringLiteral("no"); };
    report.row("first launch on this profile", yesNo(isFirstLaunch()));
    setNotFirstLaunch();
    report.check("first launch from now on", yesNo(isFirstLaunch()), !isFirstLaunch());
    report.row("mode of the last launch", getLastLaunchMode());
    setLastLaunchMode(mode);
    report.check("mode of this launch", getLastLaunchMode(), getLastLaunchMode() == mode);
    const int before = crashCounterForPlugin(mode);
    incrementCrashCounter();
    report.check("crash counter while work is under way", crashes(),
                 crashCounterForPlugin(mode) == before + 1);
    crashCounterReset(mode);
    report.check("crash counter after a good end", crashes(), crashCounterForPlugin(mode) == 0);
    const QString id = getUserID();
    report.check("getUserID", id, id.size() == 36 && getUserID() == id);
    report.check("getResellerID", getResellerID(), getResellerID() == QStringLiteral("Tolvan"));
    report.check("getQtPluginsDir", getQtPluginsDir(false),
                 getQtPluginsDir(false) == QCoreApplication::applicationDirPath());
    const QString name = UtilsDll::currentProcessName();
    report.check("currentProcessName", name,
                 name == QFileInfo(QCoreApplication::applicationFilePath()).fileName());
    report.row("its file version", versionOfThisProcess());
}

#include "StatePage.moc"
