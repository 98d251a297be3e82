#include "FileTree.h"
#include "FolderTest.h"
#include "TestMain.h"

#include <utilsDll/FileManagement.h>

#include <QDBusConnection>
#include <QDBusError>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QMutex>
#include <QProcess>
#include <QThread>
#include <QUrl>

using namespace TOLVAN_NAMESPACE;

/// The desktop's file manager, as far as this library talks to it. Answers in a thread of its own.
class FileManagerStub : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_uris;
    }

public Q_SLOTS:
    Q_SCRIPTABLE void ShowItems(const QStringList& uris, const QString& startupId)
    {
        const QMutexLocker lock(&m_mutex);
        m_uris = uris;
        m_uris += startupId;
    }

private:
    mutable QMutex m_mutex;
    QStringList m_uris;
};

/// Stands for the program that opens folders.
class FolderOpener : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened += url; }
};

class RevealTest : public FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void withoutABus();
    void busWithoutFileManager();
    void exactAddresses();
    void slowFileManager();
    void busThatDied(); // the last: the bus library knows one address in the life of a process

private:
    void startBus();
    void folderIsOpened();
    static QDBusConnection fileManager(const QString& name, FileManagerStub& stub);

    FolderOpener m_opener;
    QProcess m_bus;
    QThread m_thread;
};

void RevealTest::initTestCase()
{
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_opener, "open");
}

void RevealTest::init()
{
    FolderTest::init();
    m_opener.opened.clear();
}

QDBusConnection RevealTest::fileManager(const QString& name, FileManagerStub& stub)
{
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    if (!bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &stub,
                            QDBusConnection::ExportScriptableSlots) ||
        !bus.registerService(QStringLiteral("org.freedesktop.FileManager1"))) {
        qFatal("%s", qPrintable(bus.lastError().message()));
    }
    return bus;
}

void RevealTest::startBus()
{
    if (m_bus.state() == QProcess::NotRunning) {
        m_bus.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                    QStringLiteral("--print-address")});
        QVERIFY2(m_bus.waitForReadyRead(30000), "dbus-daemon does not start");
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
    }
}

/// Without a file manager the folder is opened, within a second.
void RevealTest::folderIsOpened()
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
    QCOMPARE(m_opener.opened, QList<QUrl>({opened, opened, opened}));
}

void RevealTest::withoutABus()
{
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", folder().toLocal8Bit());
    folderIsOpened();
    m_opener.opened.clear();
    selectFilesInShell(folder(), {}); // nothing to show: nothing opens
    QVERIFY(m_opener.opened.isEmpty());
}

void RevealTest::busWithoutFileManager()
{
    startBus();
    folderIsOpened();
}

void RevealTest::exactAddresses()
{
    startBus();
    FileManagerStub stub;
    stub.moveToThread(&m_thread);
    m_thread.start();
    const QString name = QStringLiteral("stub");
    QDBusConnection bus = fileManager(name, stub);

    QStringList files;
    for (const char* file :
         {"a b", "a#b", "100%", "a%20b", "q?x=1&y", "\xC3\xA4\xE6\x97\xA5", "a;b'c\"[d]"}) {
        files += FileTree::write(path(QString::fromUtf8(file)));
    }
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("there is no file .*missing")));
    selectFilesInShell(folder(), files + QStringList{path("missing"), QString()});
    const QString root = QStringLiteral("file://") + folder() + QLatin1Char('/');
    QStringList expected;
    for (const char* uri :
         {"a%20b", "a%23b", "100%25", "a%2520b", "q%3Fx%3D1%26y", "%C3%A4%E6%97%A5", "a%3Bb%27c%22%5Bd%5D"}) {
        expected += root + QLatin1String(uri);
    }
    QTRY_COMPARE(stub.shown(), expected + QStringList{QString()});
    QVERIFY(m_opener.opened.isEmpty());

    bus.unregisterObject(QStringLiteral("/org/freedesktop/FileManager1"));
    QDBusConnection::disconnectFromBus(name);
    m_thread.quit();
    QVERIFY(m_thread.wait(10000));
}

/// A file manager that is still starting has received the request: nothing else opens, and nothing waits.
void RevealTest::slowFileManager()
{
    startBus();
    const QString name = QStringLiteral("slow");
    FileManagerStub stub; // lives in this thread, which does not answer while it asks
    const QDBusConnection bus = fileManager(name, stub);
    QElapsedTimer time;
    time.start();
    selectFilesInShell(folder(), {FileTree::write(path("a"))});
    QVERIFY2(time.elapsed() < 10000, "the bus's own patience is 25 seconds");
    QVERIFY(m_opener.opened.isEmpty());
    QTRY_COMPARE(stub.shown().size(), 2);
    QDBusConnection::disconnectFromBus(name);
}

void RevealTest::busThatDied()
{
    startBus();
    m_bus.terminate();
    QVERIFY(m_bus.waitForFinished(10000));
    folderIsOpened();
}

TOLVAN_GUI_TEST_MAIN(RevealTest)
#include "tst_reveal.moc"
