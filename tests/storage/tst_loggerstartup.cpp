#include "TestMain.h"
#include "Texts.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>

namespace
{

#ifdef Q_OS_WIN
const QString programSuffix = QStringLiteral(".exe");
const QByteArray lineEnd = "\r\n";
#else
const QString programSuffix;
const QByteArray lineEnd = "\n";
#endif

const QString loggerFile = QStringLiteral("LoggerDllTrelioFrame.dll");
const QByteArray missing =
    "***ERROR*** logger dll could not be loaded from  LoggerDllTrelioFrame.dll" + lineEnd;

} // namespace

/// Every outcome of the start-up, each in a process of its own with a program folder of its own.
class LoggerStartupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { IsolatedProfile::clearStores(); }

    void outcomes_data()
    {
        QTest::addColumn<QString>("library");
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QByteArray>("logger");
        const auto row = [](const char* name, const char* library, const char* mode, const char* logger) {
            QTest::newRow(name) << text(library) << text(mode) << QByteArray(logger);
        };
        row("switched off, host logger", "fake_logger", "host", "null");
        row("switched off", "fake_logger", "none", "null");
        row("host logger", "fake_logger", "host", "host");
        row("library missing", "", "none", "null");
        row("library without export", "fake_logger_no_export", "none", "null");
        row("library without logger", "fake_logger_null", "none", "null");
        row("export throws", "fake_logger_throws", "none", "null");
        row("logger throws", "fake_logger_throws_in_init", "none", "null");
    }

    void outcomes()
    {
        QFETCH(QString, library);
        QFETCH(QString, mode);
        QFETCH(QByteArray, logger);
        const bool isOff = QByteArray(QTest::currentDataTag()).startsWith("switched off");
        store("loggerEnabled", text(isOff ? "0" : "1"));
        const Outcome outcome = start(library, mode);
        QCOMPARE(outcome.result.mid(0, 3),
                 QList<QByteArray>({logger, logger, "0"})); // nothing reached the host logger
        QCOMPARE(outcome.out.count("Initializing"), library.contains(text("in_init")) ? 2 : 0);
        QCOMPARE(outcome.err, isOff || logger == "host" ? QByteArray() : missing + missing);
        QCOMPARE(outcome.loggerCalls, QByteArray("(unreadable)")); // there is no such file
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
        const QByteArray prefix = " TOLVAN_NAMESPACE::initLogger: ";
        const QString timeLine = QString::fromUtf8(lines.at(1));
        const QString timePrefix = QString::fromUtf8("D" + prefix + "Current time (UTC): ");
        QVERIFY2(timeLine.startsWith(timePrefix) && timeLine.endsWith(QLatin1Char('Z')),
                 qPrintable(timeLine));
        QCOMPARE(lines.at(2), "D" + prefix + "Trelio Frame Version: 5.0.5.1");
        const QRegularExpression uid(text("^D TOLVAN_NAMESPACE::initLogger: UID: [0-9a-f-]{36}$"));
        QVERIFY(uid.match(QString::fromUtf8(lines.at(3))).hasMatch());
        QCOMPARE(lines.at(4), "D" + prefix + "CE version: 10.0.12.220711210");
        QCOMPARE(lines.at(5), "I" + prefix + "Starting QZ application for branch 'HEAD', hash '377e5e6a6'");
        QCOMPARE(lines.at(6), QByteArray());
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

    void levelLetter()
    {
        const QMap<QString, int> letters = {
            {text("Error"), int('E')}, {text(""), 0}, {text("é"), 0xE9}, {text("日"), 0}};
        for (const QString& stored : letters.keys()) {
            store("loggerLevel", stored);
            const Outcome outcome = start(text("fake_logger"), text("none"));
            QVERIFY2(outcome.loggerCalls.contains("|my log|" + QByteArray::number(letters[stored]) + "\n"),
                     outcome.loggerCalls);
        }
    }

private:
    struct Outcome {
        QByteArray out, err, loggerCalls, logFolder;
        QList<QByteArray> result;
    };
    Outcome start(const QString& library, const QString& mode);

    // A store of its own for each value: clearing the stores may invalidate those that are open.
    static void store(const char* key, const QString& value)
    {
        QSettings(text("Tolvan"), text("Trelio Frame")).setValue(text(key), value);
    }
};

LoggerStartupTest::Outcome LoggerStartupTest::start(const QString& library, const QString& mode)
{
    const QTemporaryDir folder;
    const QDir build(QCoreApplication::applicationDirPath());
    const QDir program(folder.path());
    const QString executable = program.filePath(text("logger_startup_child") + programSuffix);
    Outcome outcome;
    if (!QFile::copy(build.filePath(QFileInfo(executable).fileName()), executable) ||
        (!library.isEmpty() &&
         !QFile::copy(build.filePath(library + text(".dll")), program.filePath(loggerFile)))) {
        return outcome;
    }
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(executable, {mode, text("my log")});
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

TOLVAN_CORE_TEST_MAIN(LoggerStartupTest)
#include "tst_loggerstartup.moc"
