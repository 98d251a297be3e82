#include "InstalledLogger.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/TemporarySettings.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <memory>

namespace
{

QVariant onDisk(const QString& path, const QString& key)
{
    return QSettings(path, QSettings::IniFormat).value(key);
}

} // namespace

class TemporarySettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsFromTheSeed()
    {
        const QTemporaryDir program;
        const QString seed = QDir(program.path()).filePath(text("DefaultTemporarySettings.ini"));
        QSettings(seed, QSettings::IniFormat).setValue(text("seeded"), 1);
        QVERIFY(QFile::setPermissions(seed, QFile::ReadOwner)); // installed read-only
        const QByteArray programPath = QFile::encodeName(QDir(program.path()).filePath(text("program")));

        CTemporarySettings settings(programPath.constData());
        QCOMPARE(QFileInfo(settings.tempSettingsPath()).fileName(), text("TrelioFrame.ini"));
        QCOMPARE(settings.value(text("seeded")).toInt(), 1);
        settings.setValue(text("seeded"), 2);
        QCOMPARE(onDisk(settings.tempSettingsPath(), text("seeded")).toInt(), 2);
        QCOMPARE(onDisk(seed, text("seeded")).toInt(), 1);
        QVERIFY(QFile::setPermissions(seed, QFile::ReadOwner | QFile::WriteOwner));

        QVERIFY(!CTemporarySettings("/nowhere/program").contains(text("seeded")));
    }

    void writesThroughAtOnce()
    {
        CTemporarySettings settings(nullptr);
        const QString path = settings.tempSettingsPath();
        settings.setValue(text("a"), 1);
        QCOMPARE(onDisk(path, text("a")).toInt(), 1);
        settings.remove(text("a"));
        QVERIFY(!onDisk(path, text("a")).isValid());
        settings.setValue(text("b"), 2);
        settings.clear();
        QVERIFY(!onDisk(path, text("b")).isValid());
    }

    void lastObjectGivesTheReportedPath()
    {
        CTemporarySettings first(nullptr);
        const QString firstPath = first.tempSettingsPath();
        QString secondPath;
        {
            CTemporarySettings second(nullptr);
            secondPath = second.tempSettingsPath();
            QVERIFY(secondPath != firstPath);
            QCOMPARE(first.tempSettingsPath(), secondPath);
            first.setValue(text("k"), 1); // still works on its own file
            QVERIFY(onDisk(firstPath, text("k")).isValid() && !onDisk(secondPath, text("k")).isValid());
            first.setSharedSettingsPath(text("shared.ini"));
            QCOMPARE(first.tempSettingsPath(), text("shared.ini"));
            QCOMPARE(second.tempSettingsPath(), secondPath);
        }
        first.setSharedSettingsPath(QString());
        QCOMPARE(first.tempSettingsPath(), secondPath); // of an object that is gone
        QVERIFY(!QFile::exists(secondPath) && QFile::exists(firstPath));
    }

    void nothingIsLeft()
    {
        auto settings = std::make_unique<CTemporarySettings>(nullptr);
        const QString folder = QFileInfo(settings->tempSettingsPath()).path();
        settings->beginWriteArray(text("list"), 3); // not synced by itself: still pending
        settings->endArray();
        QVERIFY(QDir(folder).exists());
        settings.reset();
        QVERIFY(!QDir(folder).exists());
    }

    void unusableFolderIsReported()
    {
#ifdef Q_OS_WIN
        const char* const variable = "TMP";
#else
        const char* const variable = "TMPDIR";
#endif
        installedLogger().take();
        const QByteArray usual = qgetenv(variable);
        qputenv(variable, QFile::encodeName(QCoreApplication::applicationFilePath())); // no folder
        QTest::ignoreMessage(
            QtDebugMsg, "ASSERT_X in ExPluginShell\\modules\\utilsDll\\TemporarySettings line 25: Temporary "
                        "folder is not valid!");
        {
            CTemporarySettings settings(nullptr);
            settings.setValue(text("lost"), 1); // without a crash
            QVERIFY(!onDisk(settings.tempSettingsPath(), text("lost")).isValid());
        }
        qputenv(variable, usual);
        QCOMPARE(
            installedLogger().take(),
            QStringList(text("E CTemporarySettings::CTemporarySettings: ASSERT_X in ExPluginShell\\modules"
                             "\\utilsDll\\TemporarySettings line 25:Temporary folder is not valid!")));
    }
};

TOLVAN_CORE_TEST_MAIN(TemporarySettingsTest)
#include "tst_temporarysettings.moc"
