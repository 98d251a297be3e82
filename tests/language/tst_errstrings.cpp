#include "FatalBoxes.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/ErrStrings.h>

#include <QTranslator>

#include <memory>

#ifndef Q_OS_WIN
#include <unistd.h>

extern thread_local std::size_t allocations; // of AllocationCounter.cpp
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
    if (translator->load(QStringLiteral(":/translations/tolvan_%1.qm").arg(language))) {
        QCoreApplication::installTranslator(translator.get());
    }
    return translator;
}

} // namespace

class ErrStringsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts()
    {
        FatalBoxes boxes;
        const CErrStrings strings;
        for (const auto& message : show) {
            (strings.*message)();
        }
        const QStringList keys{
            QStringLiteral("Error|Windows small space message on drive %1").arg(drive()),
            QStringLiteral("Error|Out of memory. Program will be closed."),
            QStringLiteral(
                "Error|Trelio Frame has run out of memory. The application may now become unstable. "
                "Please close Trelio Frame and Photoshop, quit all other programs running, and try "
                "again."),
            QStringLiteral("Error|Unhandled exception. Program will be closed.")};
        QCOMPARE(boxes.take(), keys);
    }

    void driveOfTemporaryFolder()
    {
#ifdef Q_OS_WIN
        const char variable[] = "TMP";
        const QString folder = QStringLiteral("D:/temp");
        const QString expected = QStringLiteral("D:\\");
#else
        const char variable[] = "TMPDIR";
        const QTemporaryDir root;
        const QString folder = root.filePath(QStringLiteral("𠮷 D:/temp:1"));
        const QString expected = root.filePath(QStringLiteral("𠮷 D:\\"));
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

    void copies()
    {
        FatalBoxes boxes;
        auto original = std::make_unique<CErrStrings>();
        const CErrStrings copy(*original);
        {
            const auto translator = installed(QStringLiteral("ja"));
            original->Retranslate();
        }
        original->ShowUnhandledExceptionDialog();
        original.reset();
        copy.ShowUnhandledExceptionDialog();
        const QStringList expected{
            QStringLiteral("エラー|処理されない例外が発生したため、Trelio Frame を終了します。"),
            QStringLiteral("Error|Unhandled exception. Program will be closed.")};
        QCOMPARE(boxes.take(), expected);
    }

#ifndef Q_OS_WIN
    void messagePrograms_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("arguments");
        QTest::newRow("kdialog") << "kdialog"
                                 << "--title|%1|--error|%2";
        QTest::newRow("zenity") << "zenity"
                                << "--error|--no-markup|--title|%1|--text|%2";
        QTest::newRow("xmessage") << "xmessage"
                                  << "-center|-title|%1|%2";
        QTest::newRow("no message program") << QString() << QString();
        QTest::newRow("no display") << "zenity" << QString();
        QTest::newRow("program gone since") << "zenity" << QString();
    }

    void messagePrograms()
    {
        QFETCH(QString, program);
        QFETCH(QString, arguments);
        const QByteArray row = QTest::currentDataTag();
        FatalBoxes boxes(program);
        if (row == "no display") {
            qunsetenv("DISPLAY");
            qunsetenv("WAYLAND_DISPLAY");
        }
        const auto translator = installed(QStringLiteral("ja"));
        const CErrStrings strings;
        if (row == "program gone since") {
            QVERIFY(QFile::remove(qEnvironmentVariable("PATH") + QStringLiteral("/zenity")));
        }
        QWidget window;
        window.show();
        QApplication::setActiveWindow(&window);
        QTemporaryFile standardError;
        QVERIFY(standardError.open());
        const int usual = dup(STDERR_FILENO);
        dup2(standardError.handle(), STDERR_FILENO);
        const std::size_t before = allocations;
        for (const auto& message : show) {
            (strings.*message)();
        }
        const std::size_t after = allocations;
        dup2(usual, STDERR_FILENO);
        close(usual);
        QVERIFY(before > 0); // it does count
        QCOMPARE(after, before);
        // Also written where a program has been started: it may have refused to show the box.
        const QString written = QString::fromUtf8(contentOf(standardError.fileName()));
        const QString caption = QStringLiteral("エラー");
        const QString text = QStringLiteral("処理されない例外が発生したため、Trelio Frame を終了します。");
        QCOMPARE(written.count(caption), 4);
        QVERIFY(written.endsWith(QStringLiteral("\n%1\n%2\n").arg(caption, text)));
        const QList<QStringList> calls = boxes.takeArguments();
        QCOMPARE(calls.size(), arguments.isEmpty() ? 0 : 4);
        QVERIFY(calls.isEmpty() || calls.last().join(QLatin1Char('|')) == arguments.arg(caption, text));
    }
#endif
};

TOLVAN_GUI_TEST_MAIN(ErrStringsTest)
#include "tst_errstrings.moc"
