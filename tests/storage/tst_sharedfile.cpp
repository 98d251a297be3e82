#include "Sandbox.h"
#include "TestMain.h"
#include "Texts.h"

#include <utilsDll/Settings.h>

#include <QDir>
#include <QFile>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <memory>
#include <stdexcept>

namespace
{

/// The operations on any file, which the class keeps for itself.
class AnyFile : public TOLVAN_NAMESPACE::CSettings
{
public:
    static bool write(const QString& path, int length)
    try {
        writeSettingToConfigFile(path, text("G"), text("K"), QString(length, QLatin1Char('x')), text("T"));
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
    static int lengthIn(const QString& path)
    {
        return getSettingFromConfigFile(path, text("G"), text("K"), {}).size();
    }
};

constexpr int small = 1000;
constexpr int large = 600 * 1024;

} // namespace

/// A file that is replaced on full disks, below size limits, for other users and under locks.
class SharedFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { makeFileIn(QDir::tempPath()); }

#ifndef Q_OS_WIN
    /// A write that doesn't fit leaves the old text and nothing beside it.
    void noRoom_data()
    {
        QTest::addColumn<bool>("isDiskFull"); // or else the process's limit is reached
        QTest::addColumn<bool>("isInPlace");
        QTest::newRow("full disk") << true << false;
        QTest::newRow("full disk, in place") << true << true;
        QTest::newRow("size limit") << false << false;
        QTest::newRow("size limit, in place") << false << true;
    }

    void noRoom()
    {
        QFETCH(bool, isDiskFull);
        QFETCH(bool, isInPlace);
        const bool hasVolume = m_volume.problem().isEmpty();
        QVERIFY2(hasVolume || getuid() != 0, qPrintable(m_volume.problem()));
        makeFileIn(isDiskFull && hasVolume ? m_volume.path() : QDir::tempPath());
        QCOMPARE(chmod(QFile::encodeName(m_file), 0666), 0);
        QCOMPARE(chmod(QFile::encodeName(m_folder.path()), isInPlace ? 0555 : 0777), 0);
        rlimit before = {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit limit{isDiskFull && hasVolume ? before.rlim_cur : large / 2, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
        bool written = true;
        {
            const OrdinaryUser user;
            written = AnyFile::write(m_file, isDiskFull ? 2 * large : large);
        }
        QCOMPARE(chmod(QFile::encodeName(m_folder.path()), 0777), 0);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        QVERIFY(!written);
        QCOMPARE(AnyFile::lengthIn(m_file), small);
        QCOMPARE(m_folder.entryList(QDir::Files), QStringList(text("suite.cfg")));
    }

    /// Whoever may write the file does so, and everybody has the rights of before afterwards.
    void rightsAreKept_data()
    {
        QTest::addColumn<int>("owner");
        QTest::addColumn<int>("fileMode");
        QTest::addColumn<int>("folderMode");
        QTest::addColumn<bool>("asRoot");
        QTest::newRow("root replaces a user's file") << 65534 << 0640 << 0755 << true;
        QTest::newRow("a member of the group") << 0 << 0664 << 0777 << false;
        QTest::newRow("own file") << 65534 << 0604 << 0777 << false;
        QTest::newRow("sticky folder") << 0 << 0666 << 01777 << false;
        QTest::newRow("folder is read-only") << 65534 << 0600 << 0555 << false;
    }

    void rightsAreKept()
    {
        QFETCH(int, owner);
        QFETCH(int, fileMode);
        QFETCH(int, folderMode);
        QFETCH(bool, asRoot);
        if (getuid() != 0) {
            QSKIP("files of two users can only be made by root");
        }
        const QByteArray path = QFile::encodeName(m_file);
        QCOMPARE(chown(path, static_cast<uid_t>(owner), 65534), 0);
        QCOMPARE(chmod(path, static_cast<mode_t>(fileMode)), 0);
        QCOMPARE(chmod(QFile::encodeName(m_folder.path()), static_cast<mode_t>(folderMode)), 0);
        {
            const std::unique_ptr<OrdinaryUser> user(asRoot ? nullptr : new OrdinaryUser);
            QVERIFY(AnyFile::write(m_file, large));
            QVERIFY(AnyFile::write(m_file, small)); // shorter: what was there is cut off
        }
        QCOMPARE(AnyFile::lengthIn(m_file), small);
        struct stat now = {};
        QCOMPARE(stat(path, &now), 0);
        QCOMPARE(int(now.st_uid), owner);
        QCOMPARE(int(now.st_gid), 65534);
        QCOMPARE(int(now.st_mode & 07777), fileMode);
    }
#else
    /// A program that forbids replacing, but not writing, and an access list of the file's own.
    void lockedFileAndAccessList()
    {
        const auto* const path = reinterpret_cast<const wchar_t*>(m_file.utf16());
        const HANDLE lock = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
        QVERIFY(lock != INVALID_HANDLE_VALUE);
        QVERIFY(AnyFile::write(m_file, large));
        CloseHandle(lock);
        QCOMPARE(AnyFile::lengthIn(m_file), large);
        QCOMPARE(m_folder.entryList(QDir::Files), QStringList(text("suite.cfg")));
    }
#endif

    void linkIsFollowed()
    {
#ifndef Q_OS_WIN
        const QString link = m_folder.filePath(text("link.cfg"));
        QVERIFY(QFile::link(text("suite.cfg"), link));
        QVERIFY(AnyFile::write(link, large));
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(AnyFile::lengthIn(m_file), large);
#endif
        const QString longest = m_folder.filePath(QString(200, QLatin1Char('n')));
        QVERIFY(AnyFile::write(longest, small) && AnyFile::write(longest, large));
    }

private:
    void makeFileIn(const QString& parent)
    {
        m_folder.setPath(parent + text("/folder"));
        QVERIFY(m_folder.removeRecursively() && m_folder.mkpath(text(".")));
        m_file = m_folder.filePath(text("suite.cfg"));
        QVERIFY(AnyFile::write(m_file, small));
    }

    const SecondVolume m_volume{"mode=777,size=1m"};
    QDir m_folder;
    QString m_file;
};

TOLVAN_CORE_TEST_MAIN(SharedFileTest)
#include "tst_sharedfile.moc"
