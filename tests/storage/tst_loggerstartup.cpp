#include "RecordingLogger.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/LoggerStartup.h>
#include <utilsDll/Settings.h>
#include <utilsDll/StorageLocation.h>
#include <utilsDll/TemporarySettings.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>

#include <cstdio>

namespace
{

#ifdef Q_OS_WIN
const QByteArray lineEnd = "\r\n";
#else
const QByteArray lineEnd = "\n";
#endif

const QByteArray missing =
    "***ERROR*** logger dll could not be loaded from  LoggerDllTrelioFrame.dll" + lineEnd;

struct PrintingLogger : ILoggerInterface {
    void init(const std::string&, const std::string&, char) override {}
    void log(char, const char* line) override { std::puts(line); }
};

/// Prints what is logged when the temporary settings are a static object.
int destroyStaticSettings()
{
    static PrintingLogger printer;
    static CTemporarySettings temporary(nullptr);
    TOLVAN_NAMESPACE::initLoggerForUtilsDll(&printer, QString());
    TOLVAN_NAMESPACE::CSettings::setTemporarySettings(temporary);
    static const auto* const settings = new TOLVAN_NAMESPACE::CSettings; // still there at the end
    return settings ? 0 : 1;
}

/// Starts the logger twice and notes what it got in "result.txt".
int startLogger(bool isGiven)
{
    RecordingLogger host;
    RecordingLogger* const given = isGiven ? &host : nullptr;
    QByteArray got;
    for (const char* const logName : {"my log", "again"}) {
        const ILoggerInterface* const logger = TOLVAN_NAMESPACE::initLoggerForUtilsDll(given, text(logName));
        got += !logger ? "null " : logger == &host ? "host " : "library ";
    }
    QFile result(text("result.txt"));
    const QString folder = TOLVAN_NAMESPACE::CStorageLocation::loggerFilesPath();
    return result.open(QIODevice::WriteOnly) &&
                   result.write(got + QByteArray::number(host.take().size()) + ' ' + folder.toUtf8()) > 0
               ? 0
               : 1;
}

} // namespace

/// Every outcome of the start-up, each in a process of its own with a program folder of its own.
class LoggerStartupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { IsolatedProfile::clearStores(); }

    void outcomes_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QByteArray>("logger");
        QTest::newRow("fake_logger") << text("host") << QByteArray("host");
        for (const char* library : {"", "fake_logger_no_export", "fake_logger_null", "fake_logger_throws"}) {
            QTest::newRow(library) << text("none") << QByteArray("null");
        }
    }

    void outcomes()
    {
        QFETCH(QString, mode);
        QFETCH(QByteArray, logger);
        const Outcome outcome = start(text(QTest::currentDataTag()), mode);
        QCOMPARE(outcome.result.mid(0, 3),
                 QList<QByteArray>({logger, logger, "0"})); // nothing reached the host logger
        QCOMPARE(outcome.err, logger == "host" ? QByteArray() : missing + missing);
        QCOMPARE(outcome.loggerCalls, QByteArray("(unreadable)")); // there is no such file
    }

    void switchedOff()
    {
        store("loggerEnabled", text("0"));
        const Outcome outcome = start(text("fake_logger"), text("host"));
        QCOMPARE(outcome.result.mid(0, 3), QList<QByteArray>({"null", "null", "0"}));
        QCOMPARE(outcome.out + outcome.err, QByteArray());
    }

    void startUpLines()
    {
        const Outcome outcome = start(text("fake_logger"), text("none"));
        QCOMPARE(outcome.result.mid(0, 3), QList<QByteArray>({"library", "library", "0"}));
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.out, "Initializing logger in " + outcome.logFolder + " / my log" + lineEnd);
        QVERIFY(QDir(QString::fromUtf8(outcome.logFolder)).exists());

        const QList<QByteArray> lines = outcome.loggerCalls.split('\n'); // one set, for two calls
        QCOMPARE(lines.size(), 7);
        QCOMPARE(lines.at(0), "init " + outcome.logFolder + "|my log|68");
        const QStringList expected{text("D Current time \\(UTC\\): \\d.*Z"),
                                   text("D Trelio Frame Version: 5.0.5.1"), text("D UID: [0-9a-f-]{36}"),
                                   text("D CE version: 10.0.12.220711210"),
                                   text("I Starting QZ application for branch 'HEAD', hash '377e5e6a6'")};
        for (int i = 0; i < expected.size(); ++i) {
            const QString line =
                QString::fromUtf8(lines.at(i + 1)).remove(text("TOLVAN_NAMESPACE::initLogger: "));
            const QString pattern = QRegularExpression::anchoredPattern(expected.at(i));
            QVERIFY2(QRegularExpression(pattern).match(line).hasMatch(), qPrintable(line));
        }
    }

    /// The settings object outlives the static objects that were constructed after it.
    void staticTemporarySettings()
    {
        const Outcome outcome = start(QString(), text("static"));
        QVERIFY2(QRegularExpression(text("to be destoyed: .+TrelioFrame.ini\\r?\n.*Persistent settings"))
                     .match(QString::fromLocal8Bit(outcome.out))
                     .hasMatch(),
                 outcome.out);
    }

private:
    struct Outcome {
        QByteArray out, err, loggerCalls, logFolder;
        QList<QByteArray> result;
    };

    /// What a copy of this program makes of \a library beside it; \a mode is "host", "none" or "static".
    static Outcome start(const QString& library, const QString& mode)
    {
        const QTemporaryDir folder;
        const QDir program(folder.path());
        const QFileInfo own(QCoreApplication::applicationFilePath());
        const QString executable = program.filePath(own.fileName());
        Outcome outcome;
        if (!QFile::copy(own.filePath(), executable) ||
            (!library.isEmpty() && !QFile::copy(own.dir().filePath(library + text(".dll")),
                                                program.filePath(text("LoggerDllTrelioFrame.dll"))))) {
            return outcome;
        }
        QProcess process;
        process.setWorkingDirectory(folder.path());
        process.start(executable, {text("--start"), mode});
        if (process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit &&
            process.exitCode() == 0) {
            outcome.result = contentOf(program.filePath(text("result.txt"))).split(' ');
            outcome.logFolder = outcome.result.mid(3).join(' ');
        }
        outcome.out = process.readAllStandardOutput();
        outcome.err = process.readAllStandardError();
        outcome.loggerCalls = contentOf(program.filePath(text("logger.txt")));
        return outcome;
    }

    // A store of its own for each value: clearing the stores may invalidate those that are open.
    static void store(const char* key, const QString& value)
    {
        QSettings(text("Tolvan"), text("Trelio Frame")).setValue(text(key), value);
    }
};

int main(int argc, char* argv[])
{
    if (argc == 3 && qstrcmp(argv[1], "--start") == 0) {
        const QCoreApplication application(argc, argv);
        return qstrcmp(argv[2], "static") == 0 ? destroyStaticSettings()
                                               : startLogger(qstrcmp(argv[2], "host") == 0);
    }
    return TestMain::run<QCoreApplication, LoggerStartupTest>(argc, argv);
}

#include "tst_loggerstartup.moc"
