#include "FileTree.h"
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

/// Stands for whatever program opens folders.
class FolderOpener : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened += url; }
};

class RevealTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void withoutABus();
    void busWithoutFileManager();
    void exactAddresses();
    void slowFileManager();
    void busThatDied();

private:
    void startBus();
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
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
    m_opener.opened.clear();
}

void RevealTest::startBus()
{
    if (m_bus.state() != QProcess::NotRunning) {
        return;
    }
    m_bus.start(QStringLiteral("dbus-daemon"),
                {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    QVERIFY2(m_bus.waitForReadyRead(10000), "dbus-daemon does not start");
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
}

void RevealTest::withoutABus()
{
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit());
    const QString file = FileTree::write(path(QStringLiteral("a")));
    QElapsedTimer time;
    time.start();
    selectFilesInShell(m_folder.path(), {file});
    QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(m_opener.opened, QList<QUrl>({QUrl::fromLocalFile(m_folder.path())}));
    m_opener.opened.clear();
    selectFilesInShell(m_folder.path(), {}); // nothing to show: nothing opens
    QVERIFY(m_opener.opened.isEmpty());
}

void RevealTest::busWithoutFileManager()
{
    startBus();
    selectFilesInShell(m_folder.path(), {FileTree::write(path(QStringLiteral("a")))});
    QCOMPARE(m_opener.opened.size(), 1);
}

void RevealTest::exactAddresses()
{
    startBus();
    FileManagerStub stub;
    stub.moveToThread(&m_thread);
    m_thread.start();
    const QString name = QStringLiteral("stub");
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    QVERIFY2(bus.isConnected(), qPrintable(bus.lastError().message()));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &stub,
                               QDBusConnection::ExportScriptableSlots));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));

    QStringList files;
    for (const char* file :
         {"a b", "a#b", "100%", "a%20b", "q?x=1&y", "\xC3\xA4\xE6\x97\xA5", "a;b'c\"[d]"}) {
        files += FileTree::write(path(QString::fromUtf8(file)));
    }
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("there is no file .*missing")));
    selectFilesInShell(m_folder.path(), files + QStringList{path(QStringLiteral("missing")), QString()});
    const QString root = QStringLiteral("file://") + m_folder.path() + QLatin1Char('/');
    QStringList expected;
    for (const char* uri :
         {"a%20b", "a%23b", "100%25", "a%2520b", "q%3Fx%3D1%26y", "%C3%A4%E6%97%A5", "a%3Bb%27c%22%5Bd%5D"}) {
        expected += root + QLatin1String(uri);
    }
    QCOMPARE(stub.shown(), expected + QStringList{QString()});
    QVERIFY(m_opener.opened.isEmpty());

    bus.unregisterObject(QStringLiteral("/org/freedesktop/FileManager1"));
    QDBusConnection::disconnectFromBus(name);
    m_thread.quit();
    QVERIFY(m_thread.wait(10000));
}

/// One that is still starting has got the request: nothing else is opened, and nobody waits for it.
void RevealTest::slowFileManager()
{
    startBus();
    const QString name = QStringLiteral("slow");
    FileManagerStub stub; // lives in this thread, which does not answer while it asks
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &stub,
                               QDBusConnection::ExportScriptableSlots));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    QElapsedTimer time;
    time.start();
    selectFilesInShell(m_folder.path(), {FileTree::write(path(QStringLiteral("a")))});
    QVERIFY2(time.elapsed() < 1500, qPrintable(QString::number(time.elapsed())));
    QVERIFY(m_opener.opened.isEmpty());
    QTRY_COMPARE(stub.shown().size(), 2);
    QDBusConnection::disconnectFromBus(name);
}

void RevealTest::busThatDied()
{
    startBus();
    m_bus.terminate();
    QVERIFY(m_bus.waitForFinished(10000));
    QElapsedTimer time;
    time.start();
    selectFilesInShell(m_folder.path(), {FileTree::write(path(QStringLiteral("a")))});
    QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(m_opener.opened.size(), 1);
}

TOLVAN_GUI_TEST_MAIN(RevealTest)
#include "tst_reveal.moc"
