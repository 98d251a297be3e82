#include "AssertionReport.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/TemporarySettings.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <memory>

static QVariant onDisk(const QString& path, const char* key)
{
    return QSettings(path, QSettings::IniFormat).value(text(key));
}

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
        QVERIFY(QFile::permissions(settings.tempSettingsPath()) & QFile::WriteOwner);
        QCOMPARE(settings.value(text("seeded")).toInt(), 1);
        settings.setValue(text("seeded"), 2);
        QCOMPARE(onDisk(settings.tempSettingsPath(), "seeded").toInt(), 2);
        QCOMPARE(onDisk(seed, "seeded").toInt(), 1);
        QVERIFY(QFile::setPermissions(seed, QFile::ReadOwner | QFile::WriteOwner));

        QVERIFY(!CTemporarySettings("/nowhere/program").contains(text("seeded")));
    }

    void writesThroughAtOnce()
    {
        CTemporarySettings settings(nullptr);
        const QString path = settings.tempSettingsPath();
        settings.setValue(text("a"), 1);
        settings.setValue(text("b"), 2);
        QVERIFY(contentOf(path).contains("a=1")); // of the file: settings of one process share a cache
        settings.remove(text("a"));
        QVERIFY(!contentOf(path).contains("a=1") && contentOf(path).contains("b=2"));
        settings.clear();
        QVERIFY(!contentOf(path).contains("b=2"));
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
        const QByteArray usual = qgetenv(variable);
        qputenv(variable, QFile::encodeName(QCoreApplication::applicationFilePath())); // no folder
        verifyReport("CTemporarySettings::CTemporarySettings", "TemporarySettings", 25,
                     "Temporary folder is not valid!", [] {
                         CTemporarySettings settings(nullptr);
                         settings.setValue(text("lost"), 1); // without a crash
                         QVERIFY(!onDisk(settings.tempSettingsPath(), "lost").isValid());
                     });
        qputenv(variable, usual);
    }
};

TOLVAN_CORE_TEST_MAIN(TemporarySettingsTest)
#include "tst_temporarysettings.moc"
