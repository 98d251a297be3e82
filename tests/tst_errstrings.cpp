#include "FatalBoxes.h"
#include "TestMain.h"

#include <utilsDll/ErrStrings.h>

#include <QProcess>
#include <QTranslator>

#include <memory>
#include <thread>

#ifndef Q_OS_WIN
#include "AllocationCounter.h"

#include <fcntl.h>
#include <unistd.h>
#endif

using TOLVAN_NAMESPACE::CErrStrings;

namespace
{

enum Message { Space, Memory, Host, Exception };

void (CErrStrings::*const show[])() const = {
    &CErrStrings::ShowSmallFreeSpaceDialog, &CErrStrings::ShowOutOfMemoryDialog,
    &CErrStrings::ShowOutOfMemoryInPhotoshopDialog, &CErrStrings::ShowUnhandledExceptionDialog};

const char hostKey[] =
    "Trelio Frame has run out of memory. The application may now become unstable. Please close "
    "Trelio Frame and Photoshop, quit all other programs running, and try again.";

/// What stands for the drive: "C:\" where there are drives, else the temporary folder.
QString drive()
{
    const QString folder = QDir::tempPath();
    const int colon = folder.indexOf(QLatin1Char(':'));
    return colon < 0 ? folder : folder.left(colon) + QStringLiteral(":\\");
}

std::unique_ptr<QTranslator> installed(const QString& language)
{
    auto translator = std::make_unique<QTranslator>();
    if (!language.isEmpty()) {
        translator->load(QStringLiteral(":/translations/tolvan_%1.qm").arg(language));
        QCoreApplication::installTranslator(translator.get());
    }
    return translator;
}

const char childArgument[] = "--without-application";

} // namespace

class ErrStringsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void driveOfTemporaryFolder();
    void copies();
    void otherThread();
    void withoutApplication();
#ifndef Q_OS_WIN
    void messagePrograms_data();
    void messagePrograms();
    void standardError_data();
    void standardError();
    void nothingIsAllocated_data();
    void nothingIsAllocated();
#endif
};

void ErrStringsTest::texts_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("message");
    QTest::addColumn<QString>("box");
    const auto add = [](const char* name, const char* language, Message message, const char* caption,
                        const QString& text) {
        QTest::newRow(name) << QString::fromLatin1(language) << int(message)
                            << QString::fromUtf8(caption) + QLatin1Char('|') + text;
    };
    add("key of space", "", Space, "Error",
        QStringLiteral("Windows small space message on drive %1").arg(drive()));
    add("key of memory", "", Memory, "Error", QStringLiteral("Out of memory. Program will be closed."));
    add("key of host", "", Host, "Error", QString::fromLatin1(hostKey));
    add("key of exception", "", Exception, "Error",
        QStringLiteral("Unhandled exception. Program will be closed."));
    add("English space", "en", Space, "Error",
        QStringLiteral("Trelio Frame cannot start since there is not enough free space on disk %1.\n"
                       "Please remove unnecessary files from the disk and try again.")
            .arg(drive()));
    add("English memory", "en", Memory, "Error",
        QStringLiteral("Trelio Frame must close because there is not enough memory available.\n"
                       "Please close some other programs and try to start Trelio Frame again."));
    add("English host", "en", Host, "Error", QString::fromLatin1(hostKey));
    add("English exception", "en", Exception, "Error",
        QStringLiteral("Trelio Frame must close because of an unhandled exception."));
    add("German exception", "de", Exception, "Fehler",
        QString::fromUtf8(
            "Trelio Frame muss wegen eines nicht abgefangenen Ausnahmefehlers beendet werden."));
    add("Japanese exception", "ja", Exception, "エラー",
        QString::fromUtf8("処理されない例外が発生したため、Trelio Frame を終了します。"));
}

void ErrStringsTest::texts()
{
    QFETCH(QString, language);
    QFETCH(int, message);
    FatalBoxes boxes;
    const auto translator = installed(language);
    const CErrStrings strings;
    (strings.*show[message])();
    QTEST(boxes.take().join(QLatin1Char('/')), "box");
}

void ErrStringsTest::driveOfTemporaryFolder()
{
#ifdef Q_OS_WIN
    const char variable[] = "TMP";
    const QString folder = QStringLiteral("D:/temp");
    const QString expected = QStringLiteral("D:\\");
#else
    const char variable[] = "TMPDIR";
    const QTemporaryDir root;
    const QString folder = root.filePath(QStringLiteral("D:/temp:1"));
    const QString expected = root.filePath(QStringLiteral("D:\\"));
    QVERIFY(QDir().mkpath(folder));
#endif
    const QByteArray before = qgetenv(variable);
    FatalBoxes boxes;
    qputenv(variable, QFile::encodeName(folder));
    const CErrStrings strings;
    qputenv(variable, before);
    strings.ShowSmallFreeSpaceDialog();
    QCOMPARE(boxes.take(),
             QStringList(QStringLiteral("Error|Windows small space message on drive ") + expected));
}

void ErrStringsTest::copies()
{
    FatalBoxes boxes;
    auto original = std::make_unique<CErrStrings>();
    const CErrStrings copy(*original);
    CErrStrings assigned;
    assigned = *original;
    {
        const auto translator = installed(QStringLiteral("de"));
        original->Retranslate();
    }
    original->ShowUnhandledExceptionDialog();
    original.reset();
    copy.ShowUnhandledExceptionDialog();
    assigned.ShowOutOfMemoryDialog();
    const QStringList captions =
        boxes.take().replaceInStrings(QRegularExpression(QStringLiteral("\\|.*")), {});
    QStringList expected{QStringLiteral("Fehler"), QStringLiteral("Error"), QStringLiteral("Error")};
    QCOMPARE(captions, expected);
}

void ErrStringsTest::otherThread()
{
    FatalBoxes boxes;
    const CErrStrings strings;
    std::thread([&strings] { strings.ShowOutOfMemoryDialog(); }).join();
    QCOMPARE(boxes.take(), QStringList(QStringLiteral("Error|Out of memory. Program will be closed.")));
}

void ErrStringsTest::withoutApplication()
{
    FatalBoxes boxes;
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QCoreApplication::applicationFilePath(), {QLatin1String(childArgument)});
    QVERIFY(child.waitForFinished());
#ifdef Q_OS_WIN
    QCOMPARE(child.exitCode(), 0); // it watches its own boxes
#else
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(boxes.take(), QStringList(QStringLiteral("Error|Unhandled exception. Program will be closed.")));
#endif
}

#ifndef Q_OS_WIN

namespace
{

/// Gathers what the process writes to standard error while it lives.
class StandardError
{
public:
    StandardError()
        : m_saved(dup(STDERR_FILENO))
    {
        QVERIFY(m_file.open());
        dup2(m_file.handle(), STDERR_FILENO);
    }
    ~StandardError() { restore(); }

    QString take()
    {
        restore();
        QFile file(m_file.fileName());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    void restore()
    {
        if (m_saved >= 0) {
            dup2(m_saved, STDERR_FILENO);
            close(m_saved);
            m_saved = -1;
        }
    }

    QTemporaryFile m_file;
    int m_saved;
};

} // namespace

void ErrStringsTest::messagePrograms_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("kdialog") << "--title|Error|--error|Out of memory. Program will be closed.";
    QTest::newRow("zenity")
        << "--error|--no-markup|--title|Error|--text|Out of memory. Program will be closed.";
    QTest::newRow("xmessage") << "-center|-title|Error|Out of memory. Program will be closed.";
}

void ErrStringsTest::messagePrograms()
{
    FatalBoxes boxes(QString::fromLatin1(QTest::currentDataTag()));
    const CErrStrings strings;
    StandardError standardError;
    strings.ShowOutOfMemoryDialog();
    QCOMPARE(standardError.take(), QString());
    const QList<QStringList> calls = boxes.takeArguments();
    QCOMPARE(calls.size(), 1);
    QTEST(calls.first().join(QLatin1Char('|')), "arguments");
}

void ErrStringsTest::standardError_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<bool>("display");
    QTest::addColumn<bool>("removed");
    QTest::newRow("no message program") << QString() << true << false;
    QTest::newRow("no display") << QStringLiteral("zenity") << false << false;
    QTest::newRow("program gone since") << QStringLiteral("zenity") << true << true;
}

void ErrStringsTest::standardError()
{
    QFETCH(QString, program);
    QFETCH(bool, display);
    QFETCH(bool, removed);
    FatalBoxes boxes(program);
    if (!display) {
        qunsetenv("DISPLAY");
        qunsetenv("WAYLAND_DISPLAY");
    }
    const auto translator = installed(QStringLiteral("ja"));
    const CErrStrings strings;
    if (removed) {
        boxes.removeProgram();
    }
    StandardError standardError;
    strings.ShowUnhandledExceptionDialog();
    QCOMPARE(standardError.take(),
             QString::fromUtf8("エラー\n処理されない例外が発生したため、Trelio Frame を終了します。\n"));
    QCOMPARE(boxes.take(), QStringList());
}

void ErrStringsTest::nothingIsAllocated_data()
{
    QTest::addColumn<QString>("program");
    for (const char* program : {"kdialog", "zenity", "xmessage"}) {
        QTest::newRow(program) << QString::fromLatin1(program);
    }
    QTest::newRow("standard error") << QString();
}

void ErrStringsTest::nothingIsAllocated()
{
    QFETCH(QString, program);
    FatalBoxes boxes(program);
    const auto translator = installed(QStringLiteral("ja"));
    const CErrStrings strings;
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    StandardError standardError;
    std::size_t allocations = 0;
    {
        const AllocationCounter counter;
        strings.ShowSmallFreeSpaceDialog();
        strings.ShowOutOfMemoryDialog();
        strings.ShowOutOfMemoryInPhotoshopDialog();
        strings.ShowUnhandledExceptionDialog();
        allocations = counter.count();
    }
    QCOMPARE(allocations, std::size_t(0));
    QCOMPARE(boxes.take().size(), program.isEmpty() ? 0 : 4);
    QCOMPARE(standardError.take().isEmpty(), !program.isEmpty());
    // The counter itself sees what it should.
    const AllocationCounter counter;
    const QString text = QString::number(std::rand());
    QVERIFY(counter.count() > 0);
}

#endif

namespace
{

/// The box of a process that has no application object.
int runWithoutApplication()
{
#ifdef Q_OS_WIN
    FatalBoxes boxes;
#endif
    const CErrStrings strings;
    strings.ShowUnhandledExceptionDialog();
#ifdef Q_OS_WIN
    return boxes.take() == QStringList(QStringLiteral("Error|Unhandled exception. Program will be closed."))
               ? 0
               : 1;
#else
    return 0;
#endif
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc == 2 && qstrcmp(argv[1], childArgument) == 0) {
        return runWithoutApplication();
    }
    return TestMain::run<QApplication, ErrStringsTest>(argc, argv);
}

#include "tst_errstrings.moc"
