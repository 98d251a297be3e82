#include "FolderTest.h"

#include <utilsDll/FileManagement.h>

#include <QDBusConnection>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>
#include <QUrl>

using namespace TOLVAN_NAMESPACE;

/// The desktop's file manager, as far as this library talks to it.
class FileManagerStub : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public Q_SLOTS:
    Q_SCRIPTABLE void ShowItems(const QStringList& uris, const QString& startupId)
    {
        Q_EMIT asked(uris + QStringList{startupId});
    }

Q_SIGNALS:
    void asked(const QStringList& uris);
};

class RevealTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void open(const QUrl& url) { m_opened += url; } // stands for the program that opens folders
    void initTestCase() { QDesktopServices::setUrlHandler(text("file"), this, "open"); }

    void init()
    {
        FolderTest::init();
        m_opened.clear();
    }

    void withoutABus()
    {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", folder().toLocal8Bit());
        folderIsOpened();
        m_opened.clear();
        selectFilesInShell(folder(), {}); // nothing to show: nothing opens
        QVERIFY(m_opened.isEmpty());
    }

    void busWithoutFileManager()
    {
        startBus();
        folderIsOpened();
    }

    /// One that answers at once, and one that is still starting and has received the request.
    void fileManagerShows()
    {
        for (const bool answers : {true, false}) {
            startBus();
            FileManagerStub stub;
            if (answers) { // else it lives in this thread, which does not answer while it asks
                stub.moveToThread(&m_thread);
                m_thread.start();
            }
            QStringList shown;
            connect(&stub, &FileManagerStub::asked, this,
                    [&shown](const QStringList& uris) { shown = uris; });
            const QString name = text("stub"), place = text("/org/freedesktop/FileManager1");
            QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
            QVERIFY(bus.registerObject(place, &stub, QDBusConnection::ExportScriptableSlots));
            QVERIFY(bus.registerService(text("org.freedesktop.FileManager1")));

            QStringList files;
            for (const char* file : {"a b", "a#b", "100%", "a%20b", "q?x=1&y", "ä日", "a;b'c\"[d]"}) {
                files += FileTree::write(path(file));
            }
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression(text("there is no file .*missing")));
            QElapsedTimer time;
            time.start();
            selectFilesInShell(folder(), files + QStringList{path("missing"), QString()});
            QVERIFY2(time.elapsed() < 10000, "the bus's own patience is 25 seconds");
            QStringList expected;
            for (const char* uri : {"a%20b", "a%23b", "100%25", "a%2520b", "q%3Fx%3D1%26y", "%C3%A4%E6%97%A5",
                                    "a%3Bb%27c%22%5Bd%5D"}) {
                expected += text("file://") + folder() + QLatin1Char('/') + text(uri);
            }
            QTRY_COMPARE(shown, expected + QStringList{QString()});
            QVERIFY(m_opened.isEmpty());
            bus.unregisterObject(place);
            QDBusConnection::disconnectFromBus(name);
            m_thread.quit();
            QVERIFY(m_thread.wait(10000));
        }
    }

    void busThatDied()
    {
        startBus();
        m_bus.terminate();
        QVERIFY(m_bus.waitForFinished(10000));
        folderIsOpened();
    }

private:
    void startBus()
    {
        if (m_bus.state() == QProcess::NotRunning) {
            m_bus.start(text("dbus-daemon"), {text("--session"), text("--nofork"), text("--print-address")});
            QVERIFY2(m_bus.waitForReadyRead(30000), "dbus-daemon does not start");
            qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
        }
    }

    /// Without a file manager the folder is opened, within a second.
    void folderIsOpened()
    {
        const QString file = FileTree::write(path("a"));
        qint64 quickest = std::numeric_limits<qint64>::max(); // a busy machine may delay any single one
        for (int i = 0; i < 3; ++i) {
            QElapsedTimer time;
            time.start();
            selectFilesInShell(folder(), {file});
            quickest = std::min(quickest, time.elapsed());
        }
        QVERIFY2(quickest < 1000, qPrintable(QString::number(quickest)));
        const QUrl opened = QUrl::fromLocalFile(folder());
        QCOMPARE(m_opened, QList<QUrl>({opened, opened, opened}));
    }

    QList<QUrl> m_opened;
    QProcess m_bus;
    QThread m_thread;
};

TOLVAN_GUI_TEST_MAIN(RevealTest)
#include "tst_reveal.moc"
