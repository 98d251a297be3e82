#include "StatePage.h"

#include "Pages.h"

#include <utilsDll/ProcessInformation.h>
#include <utilsDll/SharedUtils.h>

#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

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

} // namespace

QWidget* makeStatePage(QWidget* parent)
{
    return new StatePage(parent);
}

StatePage::StatePage(QWidget* parent)
    : PageWidget(parent)
{
    const auto yesNo = [](bool value) { return value ? tr("yes") : tr("no"); };
    auto* const launches = addForm();
    addFact(launches, QT_TR_NOOP("First launch on this profile"), [=] { return yesNo(isFirstLaunch()); });
    addFact(launches, QT_TR_NOOP("Mode of the last launch"), [] {
        const QString last = getLastLaunchMode();
        return last.isEmpty() ? tr("none yet") : last;
    });
    addFact(launches, QT_TR_NOOP("Identifier of this user"), [] { return getUserID(); });
    addFact(launches, QT_TR_NOOP("Reseller"), [] { return getResellerID(); });
    addFact(launches, QT_TR_NOOP("Results saved as actions"), [=] { return yesNo(useActionSave()); });
    addFact(launches, QT_TR_NOOP("Crash reports may be sent"),
            [=] { return yesNo(crashReportSendingAllowed()); });
    addTitle(QT_TR_NOOP("Process"));
    auto* const process = addForm();
    addFact(process, QT_TR_NOOP("Program"), [] { return UtilsDll::currentProcessName(); });
    addFact(process, QT_TR_NOOP("File version"), [] {
        const QString version = versionOfThisProcess();
        return version == QLatin1String("0.0.0.0") ? tr("unknown: the file carries no version") : version;
    });
    addFact(process, QT_TR_NOOP("Process number"),
            [] { return QString::number(QCoreApplication::applicationPid()); });
    addFact(process, QT_TR_NOOP("Folder of the Qt plug-ins"), [] { return getQtPluginsDir(false); });
    addCrashCounter();
    column()->addStretch();
}

void StatePage::addFact(QFormLayout* form, const char* name, std::function<QString()> value)
{
    auto* const label = new QLabel(this);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    say(label, std::move(value));
    addRow(form, name, label);
}

void StatePage::addCrashCounter()
{
    addTitle(QT_TR_NOOP("Crash counter"));
    addText(
        QT_TR_NOOP("A module counts up before risky work and resets the counter after it. What is left after "
                   "a crash is seen at the next start."));
    auto* const form = addForm();
    m_crashes = new QLabel(this);
    addRow(form, QT_TR_NOOP("Runs that ended abnormally"), m_crashes);
    const auto count = [] { return QString::number(crashCounterForPlugin(mode)); };
    say(m_crashes, count);
    addButtons({makeButton(QT_TR_NOOP("Count up"),
                           [=] {
                               setLastLaunchMode(mode);
                               incrementCrashCounter();
                               say(m_crashes, count);
                               answer([] { return tr("Counted up: work is under way."); });
                           }),
                makeButton(QT_TR_NOOP("Reset the counter"), [=] {
                    crashCounterReset(mode);
                    say(m_crashes, count);
                    answer([] { return tr("Reset: the work ended well."); });
                })});
    addAnswer();
}
