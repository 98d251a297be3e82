#include "Sandbox.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/ApplicationState.h>
#include <utilsDll/Settings.h>
#include <utilsDll/StorageLocation.h>

#include <QFile>
#include <QProcess>
#include <QSettings>

#include <cstdio>
#include <memory>

using namespace TOLVAN_NAMESPACE;

/// Every value, checked in the store itself.
class ApplicationStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { IsolatedProfile::clearStores(); }

    void storedForms()
    {
        const auto check = [](const char* key, auto get, const QVariant& before, const char* stored,
                              const QVariant& after, auto set) {
            QCOMPARE(QVariant(get()), before);
            QVERIFY2(!store()->contains(text(key)), key); // reading stores nothing
            set();
            QCOMPARE(store()->value(text(key)).toString(), text(stored));
            QCOMPARE(QVariant(get()), after);
        };
        const QString tolvan = text("Tolvan");
        check("app_launched", &isFirstLaunch, true, "1", false, &setNotFirstLaunch);
        check("app_launchMode", &getLastLaunchMode, text(""), "M", text("M"),
              [] { setLastLaunchMode(text("M")); });
        check("loggerLevel", &getLogLevel, text("D"), "W", text("W"), [] { setLogLevel(text("W")); });
        check("loggerEnabled", &isLoggerEnabled, true, "0", false, [] { setLoggerEnabled(false); });
        check("TolvanSentCrashReport", &crashReportSendingAllowed, true, "0", false,
              [] { allowCrashReportSending(false); });
        QVERIFY(useActionSave());
        CSettings().setValue(text("UseActionSave"), 0);
        QVERIFY(!useActionSave());
        check("resellerId", &getResellerID, tolvan, "Shop", tolvan, [] { setResellerID(text("Shop")); });
    }

    void crashCounters()
    {
        QCOMPARE(crashCounterForPlugin(text("X")), 0);
        setLastLaunchMode(text("X"));
        incrementCrashCounter();
        incrementCrashCounter();
        setLastLaunchMode(text("Y"));
        incrementCrashCounter();
        QCOMPARE(crashCounterForPlugin(text("X")), 2);
        QCOMPARE(store()->value(text("crashCounter_Y")).toInt(), 1);
        crashCounterReset(text("X"));
        QCOMPARE(crashCounterForPlugin(text("X")), 0);
        QVERIFY(!store()->contains(text("crashCounter_X")) && store()->contains(text("crashCounter_Y")));
    }

    void userIdentifier()
    {
#ifdef Q_OS_WIN
        QSettings company(text("HKEY_CURRENT_USER\\Software\\Tolvan\\"), QSettings::NativeFormat);
#else
        QSettings company(text("Tolvan"));
#endif
        const QString id = getUserID();
        QVERIFY(QRegularExpression(text("^[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$")).match(id).hasMatch());
        company.sync();
        QCOMPARE(company.value(text("UserID")).toString(), id);
        QCOMPARE(getUserID(), id);
    }

    void processesAgreeOnTheUserIdentifier()
    {
        QProcess processes[8];
        for (QProcess& process : processes) {
            process.start(QCoreApplication::applicationFilePath(), {text("--user-id")});
        }
        for (QProcess& process : processes) {
            QVERIFY(process.waitForFinished());
            QCOMPARE(process.readAll(), getUserID().toUtf8());
        }
    }

    void userIdentifierOfAReadOnlyProfile()
    {
#ifndef Q_OS_WIN
        const QString folder = qEnvironmentVariable("XDG_CONFIG_HOME");
        const auto usual = QFile::permissions(folder);
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther |
                                                  QFile::ExeOther));
        QString id;
        {
            const OrdinaryUser user;
            id = getUserID();
            QCOMPARE(getUserID(), id);
        }
        QVERIFY(QFile::setPermissions(folder, usual));
        QCOMPARE(getUserID(), id);
        QCOMPARE(QSettings(text("Tolvan")).value(text("UserID")).toString(), id);
#endif
    }

    void pluginsFolderIsKept()
    {
        QCOMPARE(getQtPluginsDir(true), QString()); // no connector is loaded
        QCOMPARE(getQtPluginsDir(false), QCoreApplication::applicationDirPath());
        QCOMPARE(getQtPluginsDir(true), QCoreApplication::applicationDirPath());
    }

    void statisticsAreSentInAnyCase()
    {
        QVERIFY(CStorageLocation::ensureOstraGlobalConfigFolder());
        setStatisticSent(false);
        QVERIFY(isStatisticSent());
        QCOMPARE(
            CSettings::getSettingFromOstraGlobalConfigFile(text("Instrumentation"), text("AllowSending"), {}),
            text("0"));
        QVERIFY(QFile::remove(CStorageLocation::getOstraGlobalConfigFileLocation()));
    }

private:
    static std::unique_ptr<QSettings> store()
    {
        return std::make_unique<QSettings>(text("Tolvan"), text("Trelio Frame"));
    }
};

int main(int argc, char* argv[])
{
    if (argc == 2 && qstrcmp(argv[1], "--user-id") == 0) {
        const QCoreApplication application(argc, argv);
        std::fputs(qPrintable(getUserID()), stdout);
        return 0;
    }
    return TestMain::run<QCoreApplication, ApplicationStateTest>(argc, argv);
}

#include "tst_applicationstate.moc"
