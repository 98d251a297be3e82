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
const QByteArray Filling(200, 'f');

// Folders and names may have any letters.
const QString Name = text("протокол é 日本");

QString loggerLibrary()
{
    return QDir(QCoreApplication::applicationDirPath())
        .absoluteFilePath(QStringLiteral("LoggerDllTrelioFrame.dll"));
}

// Every object loads the library anew and unloads it again, which also closes the file.
class CLoadedLogger
{
public:
    CLoadedLogger()
        : m_library(loggerLibrary())
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
QList<QByteArray> loggedTexts(const QString& folder, const QString& name = Name)
{
    const QRegularExpression head(
        QStringLiteral(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z \[.\] \[\d+:\d+\] )"));
    QList<QByteArray> texts;
    for (const char* suffix : {".4.log", ".3.log", ".2.log", ".1.log", ".log"}) {
        const QString path = folder + QLatin1Char('/') + name + text(suffix);
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
    static const CLoadedLogger* loaded = nullptr;
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
    const int lines = arguments.value(5).toInt();
    for (int line = 0; line < lines; ++line) {
        logger->log('I', QByteArray(what.toUtf8() + ' ' + QByteArray::number(line) + Filling).constData());
    }
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
        const QDateTime before = QDateTime::currentDateTimeUtc();
        CLoadedLogger logger;
        logger.init(m_folder);
        logger->log('W', Text);
        const QRegularExpression format(
            QStringLiteral(R"(\A(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z) \[W\] \[%1:\d+\] the text\n\z)")
                .arg(QCoreApplication::applicationPid()));
        const auto match = format.match(QString::fromUtf8(contentOf(m_file)));
        QVERIFY2(match.hasMatch(), contentOf(m_file));
        const auto time = QDateTime::fromString(match.captured(1), Qt::ISODateWithMs);
        QVERIFY(time >= before.addMSecs(-1) && time <= QDateTime::currentDateTimeUtc());
    }

    void minimumLevel_data()
    {
        QTest::addColumn<char>("minimum");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("debug") << 'D' << QByteArray("DIWE?x");
        QTest::newRow("warning") << 'W' << QByteArray("WE?x");
        QTest::newRow("error") << 'E' << QByteArray("E?x");
        QTest::newRow("unknown letter") << 'e' << QByteArray("DIWE?x");
    }
    void minimumLevel()
    {
        QFETCH(char, minimum);
        {
            CLoadedLogger logger;
            logger.init(m_folder, Name, minimum);
            for (const char level : QByteArray("DIWE\nx")) {
                logger->log(level, Text);
            }
        }
        QByteArray levels;
        for (const QByteArray& line : contentOf(m_file).split('\n')) {
            levels += line.mid(line.indexOf('[') + 1, line.isEmpty() ? 0 : 1);
        }
        QTEST(levels, "written");
    }

    void texts_data()
    {
        QTest::addColumn<QByteArray>("given");
        QTest::addColumn<QByteArray>("written");
        const QByteArray longest(64 * 1024, 'l');
        QTest::newRow("formats are no formats")
            << QByteArray("100% %s %n {} {0:>99999} {{ }") << QByteArray("100% %s %n {} {0:>99999} {{ }");
        QTest::newRow("no UTF-8") << QByteArray("日 \xff\xfe\x80") << QByteArray("日 \xff\xfe\x80");
        QTest::newRow("empty") << QByteArray("") << QByteArray("");
        QTest::newRow("longest") << longest << longest;
        QTest::newRow("6 MB") << longest.repeated(96) << longest + " [cut, 6291456 bytes]";
        QTest::newRow("cut before a letter")
            << longest.mid(1) + "ü" << longest.mid(1) + " [cut, 65537 bytes]";
        const QByteArray forged = "2026-03-05T10:11:12.345Z [E] [1:1] forged";
        QTest::newRow("forged record") << "one\n" + forged + "\r\nthree\rfour\n\n"
                                       << "one\n    " + forged + "\n    three\n    four";
    }

    void texts()
    {
        QFETCH(QByteArray, given);
        CLoadedLogger logger;
        logger.init(m_folder);
        logger->log('I', given.constData());
        logger->log('I', "next");
        QFETCH(QByteArray, written);
        QCOMPARE(loggedTexts(m_folder), QList<QByteArray>({written, "next"}));
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

    /// Threads, or processes of which one is killed again and again, write one log past several rotations.
    void writersShareALog_data()
    {
        QTest::addColumn<bool>("isThreaded");
        QTest::newRow("threads") << true;
        QTest::newRow("processes") << false;
    }

    void writersShareALog()
    {
        QFETCH(bool, isThreaded);
        constexpr int Writers = 3;
        constexpr int Lines = 20000;
        {
            CLoadedLogger logger;
            std::vector<std::thread> threads;
            std::vector<std::unique_ptr<CChild>> children;
            if (isThreaded) {
                logger.init(m_folder);
            }
            for (int writer = 0; writer < Writers; ++writer) {
                if (!isThreaded) {
                    children.push_back(std::make_unique<CChild>(
                        m_folder, QStringList{QString::number(writer), QString::number(Lines)}));
                    continue;
                }
                threads.emplace_back([&logger, writer] {
                    for (int line = 0; line < Lines; ++line) {
                        logger->log('I', QByteArray(QByteArray::number(writer) + ' ' +
                                                    QByteArray::number(line) + Filling)
                                             .constData());
                    }
                });
            }
            for (std::thread& thread : threads) {
                thread.join();
            }
            for (const auto& child : children) {
                CChild victim(m_folder, {text("killed"), QString::number(Lines)});
                QVERIFY(!victim.waitForFinished(100) || victim.exitCode() == 0);
                victim.kill();
                QVERIFY(victim.waitForFinished() && child->waitForFinished(120000));
            }
        }
        QVector<int> next(Writers, 0);
        for (const QByteArray& line : loggedTexts(m_folder)) {
            const int blank = line.indexOf(' ');
            if (line.startsWith("killed ") || line.startsWith("late ")) {
                continue;
            }
            QVERIFY2(line.endsWith(Filling) && line.at(0) >= '0' && line.at(0) < '0' + Writers, line);
            const int number = line.mid(blank + 1, line.size() - blank - 1 - Filling.size()).toInt();
            QCOMPARE(number, next[line.at(0) - '0']++);
        }
        QCOMPARE(next, QVector<int>(Writers, Lines));
        QVERIFY(largestFile(m_folder) <= 5 * 1024 * 1024 + 64 * 1024);
    }

    void crashAndExitLoseNothing()
    {
        CChild crash(m_folder, {text("crash")});
        QVERIFY(crash.waitForFinished() && crash.exitStatus() == QProcess::CrashExit);
        QCOMPARE(loggedTexts(m_folder), QList<QByteArray>({Text, Text}));
        CChild exit(m_folder, {text("0"), text("1")});
        QVERIFY(exit.waitForFinished() && exit.exitCode() == 0);
        QCOMPARE(loggedTexts(m_folder).mid(2),
                 QList<QByteArray>({"0 0" + Filling, "late detail", "late error"}));
    }

    void secondInitMovesToAnotherFile()
    {
        const QString second = m_folder + QStringLiteral("/second");
        {
            CLoadedLogger logger;
            logger->log('E', "before any file");
            logger.init(m_folder, Name, 'W');
            logger->log('W', "first");
            logger.init(second, QStringLiteral("other"), 'D');
            QCOMPARE(loggedTexts(m_folder), QList<QByteArray>{"first"});
            logger->log('D', "second");
            logger->log('D', nullptr);
        }
        QCOMPARE(loggedTexts(second, QStringLiteral("other")), QList<QByteArray>{"second"});
    }

    void unusableTargetIsReportedOnce_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("reports");
        const QString name = QStringLiteral("name");
        QTest::newRow("usable") << QStringLiteral("%1/folder") << name << 0;
        QTest::newRow("file in the way") << QStringLiteral("%1/file") << name << 1;
        QTest::newRow("file above the folder") << QStringLiteral("%1/file/folder") << name << 1;
        QTest::newRow("folder in place of the file") << QStringLiteral("%1") << QStringLiteral("taken") << 1;
        QTest::newRow("no folder") << QString() << name << 1;
        QTest::newRow("no name") << QStringLiteral("%1") << QString() << 1;
        QTest::newRow("name leads up") << QStringLiteral("%1/x") << QStringLiteral("../name") << 1;
        QTest::newRow("name leads up, backslash")
            << QStringLiteral("%1/x") << QStringLiteral("..\\name") << 1;
        QTest::newRow("name of a stream") << QStringLiteral("%1/x") << QStringLiteral("a:b") << 1;
    }
    void unusableTargetIsReportedOnce()
    {
        QFETCH(QString, folder);
        QFETCH(QString, name);
        QFETCH(int, reports);
        QFile file(m_temporary->filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QDir(m_temporary->path()).mkdir(QStringLiteral("taken.log")));

        folder.replace(QStringLiteral("%1"), m_temporary->path());
        CChild child(folder, {text("0"), text("2")}, name);
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 0);
        const QByteArray errors = child.readAllStandardError().replace("\r\n", "\n");
        QCOMPARE(errors.count('\n'), reports);
        QCOMPARE(errors.startsWith("***ERROR*** log file could not be written: " + folder.toUtf8() + '/' +
                                   name.toUtf8() + ".log ("),
                 reports == 1);
        QCOMPARE(QDir(m_temporary->path()).entryList(QDir::Files), QStringList(QStringLiteral("file")));
    }

#ifndef Q_OS_WIN
    void deletedFolderIsNoticed()
    {
        CLoadedLogger logger;
        logger.init(m_folder);
        logger->log('I', "first");
        QVERIFY(QDir(m_folder).removeRecursively());
        logger->log('I', "second");
        QCOMPARE(loggedTexts(m_folder), QList<QByteArray>{"second"});
    }

    void linesAreDroppedAndCountedOnAFullDisk()
    {
        QVERIFY2(m_volume.problem().isEmpty() || getuid() != 0, qPrintable(m_volume.problem()));
        if (!m_volume.problem().isEmpty()) {
            QSKIP("only root can mount a small disk");
        }
        m_folder = m_volume.path();
        CLoadedLogger logger;
        logger.init(m_folder);
        const QByteArray filling(60 * 1024, 'f');
        for (int line = 0; line < 40; ++line) {
            logger->log('D', filling.constData());
        }
        const QList<QByteArray> written = loggedTexts(m_folder);
        QVERIFY(QFile::resize(m_folder + QLatin1Char('/') + Name + text(".log"), 100));
        const auto backAgain = [&] {
            logger->log('E', "back");
            return contentOf(m_folder + QLatin1Char('/') + Name + text(".log")).contains("] back\n");
        };
        QTRY_VERIFY_WITH_TIMEOUT(backAgain(), 15000);
        const QByteArray content = contentOf(m_folder + QLatin1Char('/') + Name + text(".log"));
        const QRegularExpression count(text("lines that could not be written: (\\d+)\n.* back\n"));
        const int dropped = count.match(QString::fromUtf8(content)).captured(1).toInt();
        QVERIFY2(dropped >= 40 - written.size() && dropped > 20, content.right(300));
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
