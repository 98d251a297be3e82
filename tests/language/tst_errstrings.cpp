#include "FatalBoxes.h"
#include "TestMain.h"

#include <utilsDll/ErrStrings.h>

#include <QProcess>
#include <QTranslator>

#include <memory>

#ifndef Q_OS_WIN
#include "AllocationCounter.h"

#include <fcntl.h>
#include <unistd.h>
#endif

using TOLVAN_NAMESPACE::CErrStrings;

namespace
{

void (CErrStrings::*const show[])() const = {
    &CErrStrings::ShowSmallFreeSpaceDialog, &CErrStrings::ShowOutOfMemoryDialog,
    &CErrStrings::ShowOutOfMemoryInPhotoshopDialog, &CErrStrings::ShowUnhandledExceptionDialog};

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
    void texts();
    void driveOfTemporaryFolder();
    void copies();
    void withoutApplication();
#ifndef Q_OS_WIN
    void allocationsAreSeen();
    void messagePrograms_data();
    void messagePrograms();
#endif
};

void ErrStringsTest::texts()
{
    const QString inHost = QStringLiteral(
        "Error|Trelio Frame has run out of memory. The application may now become unstable. Please close "
        "Trelio Frame and Photoshop, quit all other programs running, and try again.");
    const auto shown = [](const QString& language) {
        FatalBoxes boxes;
        const auto translator = installed(language);
        const CErrStrings strings;
        for (const auto& message : show) {
            (strings.*message)();
        }
        return boxes.take();
    };
    const QStringList keys{QStringLiteral("Error|Windows small space message on drive %1").arg(drive()),
                           QStringLiteral("Error|Out of memory. Program will be closed."), inHost,
                           QStringLiteral("Error|Unhandled exception. Program will be closed.")};
    QCOMPARE(shown(QString()), keys);
    const QStringList english{
        QStringLiteral("Error|Trelio Frame cannot start since there is not enough free space on disk %1.\n"
                       "Please remove unnecessary files from the disk and try again.")
            .arg(drive()),
        QStringLiteral("Error|Trelio Frame must close because there is not enough memory available.\n"
                       "Please close some other programs and try to start Trelio Frame again."),
        inHost, QStringLiteral("Error|Trelio Frame must close because of an unhandled exception.")};
    QCOMPARE(shown(QStringLiteral("en")), english);
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
        const auto translator = installed(QStringLiteral("ja"));
        original->Retranslate();
    }
    original->ShowUnhandledExceptionDialog();
    original.reset();
    copy.ShowUnhandledExceptionDialog();
    assigned.ShowOutOfMemoryDialog();
    const QStringList expected{
        QStringLiteral("エラー|処理されない例外が発生したため、Trelio Frame を終了します。"),
        QStringLiteral("Error|Unhandled exception. Program will be closed."),
        QStringLiteral("Error|Out of memory. Program will be closed.")};
    QCOMPARE(boxes.take(), expected);
}

void ErrStringsTest::withoutApplication()
{
    FatalBoxes boxes;
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QCoreApplication::applicationFilePath(), {QLatin1String(childArgument)});
    QVERIFY(child.waitForFinished(-1)); // the limit is that of the whole run
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

void ErrStringsTest::allocationsAreSeen()
{
    const AllocationCounter counter;
    const QString text = QString::number(std::rand());
    QVERIFY(counter.count() > 0);
}

void ErrStringsTest::messagePrograms_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<bool>("display");
    QTest::addColumn<bool>("removed");
    QTest::addColumn<QString>("arguments");
    QTest::newRow("kdialog") << "kdialog" << true << false << "--title|%1|--error|%2";
    QTest::newRow("zenity") << "zenity" << true << false << "--error|--no-markup|--title|%1|--text|%2";
    QTest::newRow("xmessage") << "xmessage" << true << false << "-center|-title|%1|%2";
    QTest::newRow("no message program") << QString() << true << false << QString();
    QTest::newRow("no display") << "zenity" << false << false << QString();
    QTest::newRow("program gone since") << "zenity" << true << true << QString();
}

void ErrStringsTest::messagePrograms()
{
    QFETCH(QString, program);
    QFETCH(bool, display);
    QFETCH(bool, removed);
    QFETCH(QString, arguments);
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
    QWidget window;
    window.show();
    QApplication::setActiveWindow(&window);
    StandardError standardError;
    std::size_t allocations = 0;
    {
        const AllocationCounter counter;
        for (const auto& message : show) {
            (strings.*message)();
        }
        allocations = counter.count();
    }
    const QString written = standardError.take();
    QCOMPARE(allocations, std::size_t(0));
    // Also written where a program has been started: it may have refused to show the box.
    const QString caption = QStringLiteral("エラー");
    const QString text = QStringLiteral("処理されない例外が発生したため、Trelio Frame を終了します。");
    QCOMPARE(written.count(caption), 4);
    QVERIFY(written.endsWith(QStringLiteral("\n%1\n%2\n").arg(caption, text)));
    const QList<QStringList> calls = boxes.takeArguments();
    if (arguments.isEmpty()) {
        QCOMPARE(calls.size(), 0);
    } else {
        QCOMPARE(calls.size(), 4);
        QCOMPARE(calls.last().join(QLatin1Char('|')), arguments.arg(caption, text));
    }
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
