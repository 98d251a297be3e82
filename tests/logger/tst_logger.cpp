#include "Sandbox.h"
#include "Texts.h"

#include <utilsDll/ILoggerInterface.h>

#include <QLibrary>
#include <QtTest>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>
#include <vector>

#ifndef Q_OS_WIN
#include <unistd.h>
#endif

namespace
{

const char* const Text = "the text";
const QByteArray Filling(1000, 'f');

// Folders and names may have any letters.
const QString Name = text("протокол é 日本");

// Every object loads the library anew and unloads it again, which also closes the file.
class CLoadedLogger
{
public:
    CLoadedLogger()
        : m_library(QCoreApplication::applicationDirPath() + text("/LoggerDllTrelioFrame.dll"))
    {
        using Instance = ILoggerInterface* (*)();
        const auto instance = reinterpret_cast<Instance>(m_library.resolve("loggerInstance"));
        if (instance == nullptr) {
            qFatal("%s", qPrintable(m_library.errorString()));
        }
        m_logger = instance();
    }
    ~CLoadedLogger() { m_library.unload(); }
    Q_DISABLE_COPY(CLoadedLogger)

    ILoggerInterface* operator->() const { return m_logger; }
    void init(const QString& folder, const QString& name = Name, char level = 'D') const
    {
        m_logger->init(folder.toStdString(), name.toStdString(), level);
    }

private:
    QLibrary m_library;
    ILoggerInterface* m_logger;
};

// The texts of all records of a log, oldest first. A continued line belongs to its record.
QList<QByteArray> loggedTexts(const QString& folder)
{
    const QRegularExpression head(
        QStringLiteral(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z \[.\] \[\d+:\d+\] )"));
    QList<QByteArray> texts;
    for (const char* suffix : {".4.log", ".3.log", ".2.log", ".1.log", ".log"}) {
        const QString path = folder + QLatin1Char('/') + Name + text(suffix);
        QList<QByteArray> lines = QFile::exists(path) ? contentOf(path).split('\n') : QList<QByteArray>{""};
        lines.removeLast();
        for (const QByteArray& line : lines) {
            const int length = head.match(QString::fromLatin1(line)).capturedLength();
            if (length == 0 && !texts.isEmpty() && line.startsWith("    ")) {
                texts.last() += '\n' + line;
            } else {
                texts += length == 0 ? "torn: " + line : line.mid(length);
            }
        }
    }
    return texts;
}

qint64 largestFile(const QString& folder)
{
    const auto files = QDir(folder).entryInfoList(QDir::Files, QDir::Size);
    return files.isEmpty() ? 0 : files.first().size();
}

// What a child process of this test does: "--child folder name what".
int runChild(const QStringList& arguments)
{
    static ILoggerInterface* logger = nullptr;
    static const CLoadedLogger* volatile loaded = nullptr; // stays reachable: no leak
    const QString what = arguments.value(4);
    if (what == QStringLiteral("wait")) {
        return std::getchar() == EOF ? 0 : 1;
    }
    std::atexit([] {
        logger->log('D', "late detail");
        logger->log('E', "late error");
    });
    loaded = new CLoadedLogger; // is closed before the function above is called
    logger = loaded->operator->();
    loaded->init(arguments.value(2), arguments.value(3));
    if (what == QStringLiteral("crash")) {
        logger->log('D', Text);
        logger->log('I', Text);
        std::abort();
    }
    std::puts("writing");
    std::fflush(stdout);
    const auto write = [&](const char* thread) {
        for (int line = 0; line < arguments.value(5).toInt(); ++line) {
            logger->log('I', (what.toUtf8() + thread + ' ' + QByteArray::number(line) + Filling).constData());
        }
    };
    std::thread second(write, "b");
    write("a");
    second.join();
    return 0;
}

// A child process, which is started at once.
class CChild : public QProcess
{
public:
    CChild(const QString& folder, const QStringList& arguments, const QString& name = Name)
    {
        start(QCoreApplication::applicationFilePath(),
              QStringList{QStringLiteral("--child"), folder, name} + arguments);
        if (!waitForStarted()) {
            qFatal("the test program can't be started");
        }
    }
};

} // namespace

class TestLogger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_temporary.reset(new QTemporaryDir);
        m_folder = m_temporary->filePath(text("made/by the logger/Журнал ü"));
        m_file = m_folder + QLatin1Char('/') + Name + text(".log");
    }

    void recordNamesTimeLevelProcessAndThread()
    {
        const QDateTime before = QDateTime::currentDateTimeUtc().addMSecs(-1);
        CLoadedLogger logger;
        logger.init(m_folder);
        logger->log('W', Text);
        QCOMPARE(loggedTexts(m_folder), QList<QByteArray>{Text}); // behind a whole head
        const QByteArray record = contentOf(m_file);
        QVERIFY2(record.contains(" [W] [" + QByteArray::number(QCoreApplication::applicationPid()) + ':'),
                 record);
        const auto time = QDateTime::fromString(QString::fromUtf8(record.left(24)), Qt::ISODateWithMs);
        QVERIFY(time >= before && time <= QDateTime::currentDateTimeUtc());
    }

    void minimumLevel()
    {
        for (const char* const levels : {"DIWE?x", "WE?x", "E?x"}) {
            const QString name{QLatin1Char(levels[0])};
            CLoadedLogger logger;
            logger.init(m_folder, name, levels[0]);
            for (const char level : QByteArray("DIWE\nx")) {
                logger->log(level, Text);
            }
            QByteArray written;
            for (const QByteArray& line :
                 contentOf(m_folder + QLatin1Char('/') + name + text(".log")).split('\n')) {
                written += line.mid(line.indexOf('[') + 1, line.isEmpty() ? 0 : 1);
            }
            QCOMPARE(written, QByteArray(levels));
        }
    }

    void texts()
    {
        const QByteArray longest(64 * 1024, 'l'), formats("100% %s %n {} {0:>99999} {{ }"),
            noUtf8("日 \xff\xfe\x80"), forged("2026-03-05T10:11:12.345Z [E] [1:1] forged");
        const QPair<QByteArray, QByteArray> rows[] = {
            {formats, formats},
            {noUtf8, noUtf8},
            {longest, longest},
            {longest.repeated(96), longest + " [cut, 6291456 bytes]"},
            {longest.mid(1) + "ü", longest.mid(1) + " [cut, 65537 bytes]"}, // not within a letter
            {"one\n" + forged + "\r\nthree\rfour\n\n", "one\n    " + forged + "\n    three\n    four"}};
        QList<QByteArray> expected;
        CLoadedLogger logger;
        logger.init(m_folder, Name, 'X'); // no level: everything is written
        for (const auto& [given, written] : rows) {
            logger->log('D', given.constData());
            expected += written;
        }
        QCOMPARE(loggedTexts(m_folder), expected);
    }

    void filesAreBoundedInSizeAndNumber()
    {
        constexpr int Lines = 700;
        const QByteArray filling(60 * 1024, 'f');
        {
            CLoadedLogger logger;
            logger.init(m_folder);
            CChild child(m_folder, {text("wait")}); // inherits no file, which would be in the way on Windows
            for (int number = 0; number < Lines; ++number) {
                logger->log('D', QByteArray(QByteArray::number(number) + ' ' + filling).constData());
            }
            child.closeWriteChannel();
            QVERIFY(child.waitForFinished());
        }
        QCOMPARE(QDir(m_folder).entryList(QDir::Files).size(), 5);
        QVERIFY(largestFile(m_folder) <= 5 * 1024 * 1024);
        const QList<QByteArray> texts = loggedTexts(m_folder);
        QVERIFY2(texts.size() > 300, "the older files kept too little");
        int expected = Lines;
        for (auto line = texts.rbegin(); line != texts.rend(); ++line) {
            QCOMPARE(line->left(line->indexOf(' ')).toInt(), --expected);
        }
    }

    /// Threads of several processes, of which one is killed again and again, write one log past rotations.
    void writersShareALog()
    {
        constexpr int Lines = 1500;
        std::vector<std::unique_ptr<CChild>> children;
        for (const char* writer : {"1", "2", "3"}) {
            children.push_back(
                std::make_unique<CChild>(m_folder, QStringList{text(writer), QString::number(Lines)}));
        }
        for (const auto& child : children) {
            CChild victim(m_folder, {text("killed"), QString::number(Lines)});
            QVERIFY(victim.waitForReadyRead(60000)); // it is writing
            victim.kill();
            QVERIFY(victim.waitForFinished() && child->waitForFinished(120000));
        }
        QMap<QByteArray, int> next;
        for (const QByteArray& line : loggedTexts(m_folder)) {
            const QByteArray writer = line.left(line.indexOf(' '));
            if (line.startsWith("late ")) {
                continue;
            }
            QVERIFY2(line.endsWith(Filling) && (writer.size() == 2 || writer.startsWith("killed")), line);
            const int number = line.mid(writer.size() + 1).chopped(Filling.size()).toInt();
            QVERIFY2(writer.size() != 2 || number == next[writer]++, line);
        }
        QCOMPARE(next.values(), QList<int>({Lines, Lines, Lines, Lines, Lines, Lines}));
        QVERIFY(QFileInfo::exists(m_folder + QLatin1Char('/') + Name + text(".1.log")));
        QVERIFY(largestFile(m_folder) <= 10 * 1024 * 1024); // the lines of those who wait for a rotation
    }

    void crashAndExitLoseNothing()
    {
        CChild crash(m_folder, {text("crash")});
        QVERIFY(crash.waitForFinished() && // Windows reports abort() as an exit code
                (crash.exitStatus() == QProcess::CrashExit || crash.exitCode() == 3));
        QCOMPARE(loggedTexts(m_folder), QList<QByteArray>({Text, Text}));
        CChild exit(m_folder, {text("exit")});
        QVERIFY(exit.waitForFinished() && exit.exitCode() == 0);
        QCOMPARE(loggedTexts(m_folder).mid(2), QList<QByteArray>({"late detail", "late error"}));
    }

    void secondInitMovesToAnotherFile()
    {
        CLoadedLogger logger;
        logger->log('E', "before any file");
        logger.init(m_folder, Name, 'W');
        logger->log('W', "first");
        logger.init(m_folder + text("/second"));
        logger->log('D', "second");
        logger->log('D', nullptr);
        QCOMPARE(loggedTexts(m_folder), QList<QByteArray>{"first"});
        QCOMPARE(loggedTexts(m_folder + text("/second")), QList<QByteArray>{"second"});
    }

    void unusableTargetIsReportedOnce()
    {
        QFile file(m_temporary->filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QDir(m_temporary->path()).mkdir(QStringLiteral("taken.log")));
        const QPair<const char*, const char*> targets[] = {{"/file", "name"}, // file in the way
                                                           {"", "taken"},     // folder in place of the file
                                                           {"", ""},          // no name
                                                           {"/x", "../name"}, // leads up
                                                           {"/x", "a:b"}};    // a stream of a file
        for (const auto& [folder, name] : targets) {
            CChild child(m_temporary->path() + text(folder), {text("exit")}, text(name));
            QVERIFY(child.waitForFinished() && child.exitCode() == 0);
            const QByteArray errors = child.readAllStandardError();
            QCOMPARE(errors.count('\n'), 1);
            QVERIFY2(errors.startsWith("***ERROR*** log file could not be written: " +
                                       m_temporary->path().toUtf8() + folder + '/' + name + ".log ("),
                     errors);
        }
        QCOMPARE(QDir(m_temporary->path()).entryList(QDir::Files), QStringList(QStringLiteral("file")));
    }

#ifndef Q_OS_WIN
    void deletedFolderIsNoticed()
    {
        CLoadedLogger logger;
        logger.init(m_folder);
        logger->log('I', "first");
        QVERIFY(QDir(m_folder).removeRecursively());
        QTRY_VERIFY((logger->log('I', "second"), loggedTexts(m_folder).contains("second")));
    }

    void linesAreDroppedAndCountedOnAFullDisk()
    {
        QVERIFY2(m_volume.problem().isEmpty() || getuid() != 0, qPrintable(m_volume.problem()));
        if (!m_volume.problem().isEmpty()) {
            QSKIP("only root can mount a small disk");
        }
        m_folder = m_volume.path();
        m_file = m_folder + QLatin1Char('/') + Name + text(".log");
        CLoadedLogger logger;
        logger.init(m_folder);
        const QByteArray filling(60 * 1024, 'f');
        for (int line = 0; line < 40; ++line) {
            logger->log('D', filling.constData());
        }
        const int written = loggedTexts(m_folder).size(); // the last one is cut off
        QVERIFY(written > 10 && QFile::resize(m_file, 100));
        const auto backAgain = [&] {
            logger->log('E', "back");
            return contentOf(m_file).contains("] back\n");
        };
        QTRY_VERIFY_WITH_TIMEOUT(backAgain(), 15000);
        const QRegularExpression count(text("lines that could not be written: (\\d+)\n.* back\n"));
        const auto match = count.match(QString::fromUtf8(contentOf(m_file)));
        QVERIFY(match.captured(1).toInt() > 40 - written);
    }
#endif

    /// The newest older file can't be replaced. The log grows to twice its size, then lines are dropped.
    void comesBackAfterAFailedMove()
    {
        const QDir folder(m_folder);
        for (const char* older : {".1.log", ".2.log", ".3.log", ".4.log"}) {
            QVERIFY(folder.mkpath(Name + text(older) + text("/obstacle")));
        }
        CLoadedLogger logger;
        logger.init(m_folder);
        const QByteArray filling(60 * 1024, 'f');
        for (int line = 0; line < 200; ++line) {
            logger->log('D', filling.constData());
        }
        QVERIFY(largestFile(m_folder) > 9 * 1024 * 1024 && largestFile(m_folder) <= 10 * 1024 * 1024);
        QVERIFY(QDir(folder.filePath(Name + text(".1.log"))).removeRecursively());
        QTRY_VERIFY_WITH_TIMEOUT((logger->log('E', "back"), loggedTexts(m_folder).contains("back")), 15000);
    }

private:
    const SecondVolume m_volume{"mode=777,size=1m"};
    QScopedPointer<QTemporaryDir> m_temporary;
    QString m_folder;
    QString m_file;
};

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QStringLiteral("--child")) {
        return runChild(arguments);
    }
    TestLogger test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logger.moc"
