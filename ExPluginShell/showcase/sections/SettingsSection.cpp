#include "Report.h"
#include "Sections.h"

#include <utilsDll/Settings.h>
#include <utilsDll/StorageLocation.h>
#include <utilsDll/TemporarySettings.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QString runsKey = QStringLiteral("showcase/runs");
const QString lastRunKey = QStringLiteral("showcase/lastRun");
const QString group = QStringLiteral("Showcase");
const QString key = QStringLiteral("lastRun");

void showRuns(Report& report)
{
    CSettings settings;
    const int runs = settings.value(runsKey, 0).toInt();
    const QString lastRun = settings.value(lastRunKey, QStringLiteral("never")).toString();
    report.row(QStringLiteral("earlier runs on this profile"), QString::number(runs));
    report.row(QStringLiteral("last run"), lastRun);
    settings.setValue(runsKey, runs + 1);
    settings.setValue(lastRunKey, QDateTime::currentDateTime().toString(Qt::ISODate));
    settings.sync();
    report.check(QStringLiteral("setValue, read by another instance"), CSettings().value(runsKey).toString(),
                 CSettings().value(runsKey).toInt() == runs + 1);
}

/// While settings are kept in a temporary file.
void showTemporaryMode(Report& report)
{
    CSettings current;
    CSettings persistent(nullptr, true);
    const QString seed = current.value(QStringLiteral("showcaseSeed")).toString();
    report.check(QStringLiteral("value from the seed file"), seed, !seed.isEmpty());
    current.beginGroup(QStringLiteral("A"));
    current.setValue(QStringLiteral("k"), 1);
    report.check(QStringLiteral("a group begun: value(\"k\")"), QStringLiteral("not set, as documented"),
                 !current.value(QStringLiteral("k")).isValid() && current.contains(QStringLiteral("k")));
    current.endGroup();
    report.check(QStringLiteral("the group ended: value(\"A/k\")"),
                 current.value(QStringLiteral("A/k")).toString(),
                 current.value(QStringLiteral("A/k")).toInt() == 1);
    report.check(QStringLiteral("a persistent-only instance"), QStringLiteral("stays on the native store"),
                 !persistent.usingTemporarySettings() && !persistent.contains(QStringLiteral("A/k")));
}

/// Both modes: a run on the native store turns to a temporary file for a moment.
void showModes(Report& report)
{
    CSettings settings;
    if (settings.usingTemporarySettings()) {
        report.row(QStringLiteral("mode"), QStringLiteral("temporary file"));
        showTemporaryMode(report);
        return;
    }
    report.row(QStringLiteral("mode"), QStringLiteral("native store"));
    {
        const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
        CTemporarySettings temporary(program.constData());
        CSettings::setTemporarySettings(temporary);
        report.check(QStringLiteral("turned to a temporary file"), temporary.tempSettingsPath(),
                     settings.usingTemporarySettings());
        showTemporaryMode(report);
    }
    report.check(QStringLiteral("the temporary file gone"), QStringLiteral("native store again"),
                 !settings.usingTemporarySettings() && !settings.contains(QStringLiteral("A/k")));
}

void showSuiteFile(Report& report)
{
    const QString path = CStorageLocation::getOstraUserConfigFileLocation();
    CStorageLocation::ensureOstraUserConfigFolder();
    report.row(QStringLiteral("suite file, value of the last run"),
               CSettings::getSettingFromOstraUserConfigFile(group, key, QStringLiteral("(none)")));
    const QString now = QDateTime::currentDateTime().toString(Qt::ISODateWithMs);
    const bool written =
        CSettings::writeSettingToOstraUserConfigFile(group, key, now, QStringLiteral("string"));
    report.check(QStringLiteral("suite file written"), written ? path : QStringLiteral("failed"), written);
    const QString read = CSettings::getSettingFromOstraUserConfigFile(group, key, QString());
    report.check(QStringLiteral("suite file read back"), read, read == now);
}

} // namespace

void showSettings(Report& report)
{
    showModes(report);
    showRuns(report);
    showSuiteFile(report);
    const QVariant language = CSettings::getLanguageFromOstraConfiguration();
    report.check(QStringLiteral("language of the family"), language.toString(),
                 QVector<int>({0, 2, 5, 12, 13}).contains(language.toInt()));
}
