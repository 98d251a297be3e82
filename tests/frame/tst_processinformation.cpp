#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/ProcessInformation.h>

#include <QProcess>

#include <cstdio>

namespace
{

const QString unknown = text(" 0.0.0.0");

// The test programs carry a version where the system's executables have version resources.
QString ownVersion()
{
    const QString version = text(TEST_FILE_VERSION);
    return version.isEmpty() ? unknown : QLatin1Char(' ') + version;
}

QString ownName()
{
    return QFileInfo(QCoreApplication::applicationFilePath()).fileName();
}

QString versionOf(const QString& processName)
{
    const auto version = UtilsDll::binaryFileVersionByProcessName(processName);
    return text("%1 %2.%3.%4.%5")
        .arg(version.text)
        .arg(version.major)
        .arg(version.minor)
        .arg(version.build)
        .arg(version.revision);
}

} // namespace

class TestProcessInformation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void currentProcessIsThisProgram() { QCOMPARE(UtilsDll::currentProcessName(), ownName()); }

    void versionByName()
    {
        QCOMPARE(versionOf(ownName()), ownVersion());
        for (const QString& name : {QString(), text("runs nowhere.exe"),
                                    QDir::toNativeSeparators(QCoreApplication::applicationFilePath())}) {
            QCOMPARE(versionOf(name), unknown);
        }
    }

    void versionOfAnotherProcessWhileItRuns()
    {
        // The program stays loaded when it was asked for its version, so the copy may outlive this run.
        const QString name = text("tst Früh.exe");
        const QString copy = QDir(QCoreApplication::applicationDirPath()).filePath(name);
        QFile::remove(copy);
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
        QCOMPARE(versionOf(name), unknown);

        QProcess other;
        other.start(copy, {text("--wait")});
        QVERIFY(other.waitForReadyRead());
        QCOMPARE(versionOf(name), ownVersion());
        QCOMPARE(versionOf(name.toUpper()), ownVersion());

#ifndef Q_OS_WIN
        QVERIFY(QFile::remove(copy)); // a running program may be deleted or replaced
#endif
        other.closeWriteChannel();
        QVERIFY(other.waitForFinished());
        QVERIFY(other.readAll().trimmed().endsWith(".exe"));
        QCOMPARE(other.exitCode(), 0);
        QTRY_COMPARE(versionOf(name), unknown);
    }
};

int main(int argc, char* argv[])
{
    if (argc == 2 && qstrcmp(argv[1], "--wait") == 0) {
        std::puts("ready");
        std::fflush(stdout);
        std::getchar();
        std::puts(UtilsDll::currentProcessName().toUtf8().constData());
        return 0;
    }
    return TestMain::run<QCoreApplication, TestProcessInformation>(argc, argv);
}

#include "tst_processinformation.moc"
