#include "Sandbox.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/ApplicationState.h>
#include <utilsDll/ProcessInformation.h>
#include <utilsDll/Settings.h>
#include <utilsDll/StorageLocation.h>
#include <utilsDll/TemporarySettings.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QThread>

#include <cstdio>
#include <functional>
#include <memory>

using namespace TOLVAN_NAMESPACE;
using Setter = std::function<void()>;
using Getter = std::function<QVariant()>;
Q_DECLARE_METATYPE(Setter)
Q_DECLARE_METATYPE(Getter)

/// Every value in normal and in temporary mode, checked in the store itself.
class ApplicationStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("temporary");
        QTest::newRow("native store") << false;
        QTest::newRow("temporary file") << true;
    }

    void init()
    {
        IsolatedProfile::clearStores();
        QFETCH_GLOBAL(bool, temporary);
        if (temporary) {
            m_temporary = std::make_unique<CTemporarySettings>(nullptr);
            CSettings::setTemporarySettings(*m_temporary);
        }
    }

    void cleanup()
    {
        CSettings::resetTemporarySettings();
        m_temporary.reset();
    }

    void storedForms_data()
    {
        QTest::addColumn<Getter>("get");
        QTest::addColumn<QVariant>("before");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QVariant>("after");
        QTest::addColumn<Setter>("set");
        const auto row = [](const char* key, const Getter& get, const QVariant& before, const char* stored,
                            const QVariant& after, const Setter& set) {
            QTest::newRow(key) << get << before << text(stored) << after << set;
        };
        row("app_launched", &isFirstLaunch, true, "1", false, &setNotFirstLaunch);
        row("app_launchMode", &getLastLaunchMode, text(""), "M", text("M"),
            [] { setLastLaunchMode(text("M")); });
        row("loggerLevel", &getLogLevel, text("D"), "W", text("W"), [] { setLogLevel(text("W")); });
        row("loggerEnabled", &isLoggerEnabled, true, "0", false, [] { setLoggerEnabled(false); });
        row("TolvanSentCrashReport", &crashReportSendingAllowed, true, "0", false,
            [] { allowCrashReportSending(false); });
        const QString tolvan = text("Tolvan");
        row("resellerId", &getResellerID, tolvan, "Shop", tolvan, [] { setResellerID(text("Shop")); });
    }

    void storedForms()
    {
        const QString key = text(QTest::currentDataTag());
        QFETCH(Getter, get);
        QFETCH(Setter, set);
        QTEST(get(), "before");
        QVERIFY(!store()->contains(key)); // reading stores nothing
        set();
        QTEST(store()->value(key).toString(), "stored");
        QTEST(get(), "after");
    }

    void switches()
    {
        const QPair<QVariant, bool> values[] = {{text("0"), false}, {0, false},    {text(""), true},
                                                {text("00"), true}, {false, true}, {text("no"), true}};
        for (const auto& [stored, expected] : values) {
            for (const char* const key : {"loggerEnabled", "TolvanSentCrashReport", "UseActionSave"}) {
                CSettings().setValue(text(key), stored);
            }
            QCOMPARE(isLoggerEnabled(), expected);
            QCOMPARE(crashReportSendingAllowed(), expected);
            QCOMPARE(useActionSave(), expected);
        }
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
        QVERIFY(!m_temporary || !store()->contains(text("UserID")));
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

    void deliberateAsymmetries()
    {
        QVERIFY(useActionSave()); // nothing stored
        const QString global = CStorageLocation::getOstraGlobalConfigFileLocation();
        QVERIFY(CStorageLocation::ensureOstraGlobalConfigFolder());
        setStatisticSent(false);
        QVERIFY(isStatisticSent());
        const auto stored = [] {
            return CSettings::getSettingFromOstraGlobalConfigFile(text("Instrumentation"),
                                                                  text("AllowSending"), QString());
        };
        QCOMPARE(stored(), text("0"));
        setStatisticSent(true);
        QCOMPARE(stored(), text("1"));
        QVERIFY(QFile::remove(global));
    }

    void crashSenderIsWaitedFor()
    {
        const QTemporaryDir folder;
        const QFileInfo own(QCoreApplication::applicationFilePath());
        QString sender = folder.filePath(text("CrashSender"));
        sender += own.suffix().isEmpty() ? QString() : QLatin1Char('.') + own.suffix();
        QVERIFY(QFile::copy(own.filePath(), sender));
        const QByteArray usual = qgetenv("PATH");
        const QStringList folders = {folder.path(), own.path(), QFile::decodeName(usual)};
        qputenv("PATH", QFile::encodeName(QDir::toNativeSeparators(folders.join(QDir::listSeparator()))));
        startCrashSender();
        qputenv("PATH", usual);
        QCOMPARE(contentOf(folder.filePath(text("ended"))), QByteArray("1")); // without arguments
    }

private:
    std::unique_ptr<QSettings> store() const
    {
        return m_temporary
                   ? std::make_unique<QSettings>(m_temporary->tempSettingsPath(), QSettings::IniFormat)
                   : std::make_unique<QSettings>(text("Tolvan"), text("Trelio Frame"));
    }
    std::unique_ptr<CTemporarySettings> m_temporary;
};

/// A copy of this program is the companion: it takes its time and notes the number of its arguments.
int main(int argc, char* argv[])
{
    if (UtilsDll::currentProcessName().startsWith(text("CrashSender"))) {
        const QCoreApplication sender(argc, argv);
        QThread::msleep(300);
        QFile file(QCoreApplication::applicationDirPath() + text("/ended"));
        return file.open(QIODevice::WriteOnly) && file.write(QByteArray::number(argc)) > 0 ? 0 : 1;
    }
    if (argc == 2 && qstrcmp(argv[1], "--user-id") == 0) {
        const QCoreApplication application(argc, argv);
        std::fputs(qPrintable(getUserID()), stdout);
        return 0;
    }
    return TestMain::run<QCoreApplication, ApplicationStateTest>(argc, argv);
}

#include "tst_applicationstate.moc"
