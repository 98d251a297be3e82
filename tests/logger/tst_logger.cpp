#include "Texts.h"

#include <utilsDll/ILoggerInterface.h>

#include <QLibrary>
#include <QtTest>

#include <cstdlib>
#include <thread>
#include <vector>

namespace
{

const char* const Text = "the text";

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

// The texts behind time, level and thread, one per line of the file.
QList<QByteArray> loggedTexts(const QString& path)
{
    QList<QByteArray> texts = contentOf(path).split('\n');
    texts.removeLast();
    for (QByteArray& line : texts) {
        line.remove(0, line.indexOf("] ", line.indexOf("] ") + 2) + 2);
    }
    return texts;
}

// What a child process of this test does with a logger whose standard error is watched.
int runChild(const QStringList& arguments)
{
    static ILoggerInterface* logger = nullptr;
    std::atexit([] { logger->log('E', Text); });
    static const CLoadedLogger* const loaded = new CLoadedLogger;
    logger = loaded->operator->();
    loaded->init(arguments.value(2), arguments.value(3));
    logger->log('D', Text);
    logger->log('E', Text);
    return 0;
}

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

    // An error writes out the lines before it as well.
    void linesCarryTimeLevelAndThread()
    {
        const QDateTime before = QDateTime::currentDateTimeUtc();
        CLoadedLogger logger;
        logger.init(m_folder);
        logger->log('W', Text);
        logger->log('E', Text);
        const QRegularExpression format(QStringLiteral(
            R"(\A(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z) \[W\] \[\d+\] the text\n.*\[E\].*\n\z)"));
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
        QTest::newRow("information") << 'I' << QByteArray("IWE?x");
        QTest::newRow("warning") << 'W' << QByteArray("WE?x");
        QTest::newRow("error") << 'E' << QByteArray("E?x");
        QTest::newRow("no letter") << '\0' << QByteArray("DIWE?x");
        QTest::newRow("unknown letter") << 'X' << QByteArray("DIWE?x");
        QTest::newRow("lower case is unknown") << 'e' << QByteArray("DIWE?x");
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

    void textIsTakenAsItIs()
    {
        const QList<QByteArray> lines = {
            "100% %s %n %*d %",      "{} {0:>99999} {{ }", "Größe 日本", "\xff\xfe\x80", "",
            QByteArray(300000, 'l'), "one\ntwo\n"};
        {
            CLoadedLogger logger;
            logger.init(m_folder);
            for (const QByteArray& line : lines) {
                logger->log('I', line.constData());
            }
        }
        const QByteArray written = contentOf(m_file);
        int at = 0;
        for (const QByteArray& line : lines) {
            at = written.indexOf("] " + line + '\n', at) + 1;
            QVERIFY2(at > 0, line.left(100));
        }
    }

    void filesAreBoundedInSizeAndNumber()
    {
        constexpr int Lines = 700;
        const QByteArray filling(64 * 1024, 'f');
        {
            CLoadedLogger logger;
            logger.init(m_folder);
            for (int number = 0; number < Lines; ++number) {
                logger->log('D', QByteArray(QByteArray::number(number) + ' ' + filling).constData());
            }
        }
        QDir folder(m_folder);
        const QStringList newestFirst{Name + text(".log"), Name + text(".1.log"), Name + text(".2.log"),
                                      Name + text(".3.log"), Name + text(".4.log")};
        QCOMPARE(folder.entryList(QDir::Files).toSet(), newestFirst.toSet());
        int expected = Lines;
        for (const QString& name : newestFirst) {
            QVERIFY(QFileInfo(folder.filePath(name)).size() <= 5 * 1024 * 1024);
            const QList<QByteArray> texts = loggedTexts(folder.filePath(name));
            for (auto line = texts.rbegin(); line != texts.rend(); ++line) {
                QCOMPARE(line->left(line->indexOf(' ')).toInt(), --expected);
            }
        }
        QVERIFY2(expected < Lines - 300, "the older files kept too little");
    }

    void linesOfManyThreadsStayWhole()
    {
        constexpr int Threads = 8;
        constexpr int Lines = 2000;
        {
            CLoadedLogger logger;
            logger.init(m_folder);
            std::vector<std::thread> threads;
            for (int thread = 0; thread < Threads; ++thread) {
                threads.emplace_back([&logger, thread] {
                    for (int line = 0; line < Lines; ++line) {
                        const auto words =
                            QByteArray::number(thread) + ' ' + QByteArray::number(line) + " end";
                        logger->log(line % 100 == 0 ? 'E' : 'D', words.constData());
                    }
                });
            }
            for (std::thread& thread : threads) {
                thread.join();
            }
        }
        QVector<int> next(Threads, 0);
        for (const QByteArray& line : loggedTexts(m_file)) {
            const QList<QByteArray> words = line.split(' ');
            QVERIFY2(words.size() == 3 && words[2] == "end", line);
            QCOMPARE(words[1].toInt(), next[words[0].toInt()]++);
        }
        QCOMPARE(next, QVector<int>(Threads, Lines));
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
            QCOMPARE(loggedTexts(m_file), QList<QByteArray>{"first"});
            logger->log('D', "second");
            logger->log('D', nullptr);
        }
        QCOMPARE(loggedTexts(second + QStringLiteral("/other.log")), QList<QByteArray>{"second"});
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

        QProcess child;
        folder.replace(QStringLiteral("%1"), m_temporary->path());
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--child"), folder, name});
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

    void comesBackAfterAFailedMove()
    {
        // The oldest file can't be replaced, so moving the files on fails.
        QDir folder(m_folder);
        QVERIFY(folder.mkpath(Name + text(".4.log/obstacle")));
        QFile older(folder.filePath(Name + text(".3.log")));
        QVERIFY(older.open(QIODevice::WriteOnly));
        older.close();

        CLoadedLogger logger;
        logger.init(m_folder);
        const QByteArray filling(512 * 1024, 'f');
        for (int line = 0; line < 12; ++line) {
            logger->log('D', filling.constData());
        }
        const auto backAgain = [&] {
            logger->log('E', "back");
            return loggedTexts(m_file).contains("back");
        };
        QVERIFY(!backAgain());
        QVERIFY(QDir(folder.filePath(Name + text(".4.log"))).removeRecursively());
        QTRY_VERIFY_WITH_TIMEOUT(backAgain(), 15000);
    }

private:
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
