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
constexpr unsigned nobody = 65534;

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
        QTest::addColumn<unsigned>("folderMode");
        QTest::newRow("full disk") << true << 0777U;
        QTest::newRow("full disk, in place") << true << 0555U;
        QTest::newRow("size limit") << false << 0777U;
        QTest::newRow("size limit, in place") << false << 0555U;
    }

    void noRoom()
    {
        QFETCH(bool, isDiskFull);
        QFETCH(unsigned, folderMode);
        const bool hasVolume = m_volume.problem().isEmpty();
        QVERIFY2(hasVolume || getuid() != 0, qPrintable(m_volume.problem()));
        makeFileIn(isDiskFull && hasVolume ? m_volume.path() : QDir::tempPath());
        setModes(0666, folderMode);
        rlimit before = {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit limit{isDiskFull && hasVolume ? before.rlim_cur : large / 2, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
        bool written = true;
        {
            const OrdinaryUser user;
            written = AnyFile::write(m_file, 2 * large);
        }
        setModes(0666, 0777);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        QVERIFY(!written);
        QCOMPARE(AnyFile::lengthIn(m_file), small);
        QCOMPARE(m_folder.entryList(QDir::Files), QStringList(text("suite.cfg")));
    }

    /// Every user who may write the file does so, and all have the rights of before afterwards.
    void rightsAreKept_data()
    {
        QTest::addColumn<unsigned>("owner");
        QTest::addColumn<unsigned>("fileMode");
        QTest::addColumn<unsigned>("folderMode");
        QTest::addColumn<bool>("isAllowed");
        QTest::newRow("a member of the group") << 0U << 0664U << 0777U << true;
        QTest::newRow("own file") << nobody << 0604U << 0777U << true;
        QTest::newRow("sticky folder") << 0U << 0666U << 01777U << true;
        QTest::newRow("read-only folder") << nobody << 0600U << 0555U << true;
        QTest::newRow("read-only file") << nobody << 0444U << 0777U << false;
    }

    void rightsAreKept()
    {
        QFETCH(unsigned, owner);
        QFETCH(unsigned, fileMode);
        QFETCH(unsigned, folderMode);
        QFETCH(bool, isAllowed);
        if (getuid() != 0) {
            QSKIP("only root can make the files of two users");
        }
        const QByteArray path = QFile::encodeName(m_file);
        QCOMPARE(chown(path, owner, nobody), 0);
        setModes(fileMode, folderMode);
        std::unique_ptr<OrdinaryUser> user(new OrdinaryUser);
        QCOMPARE(AnyFile::write(m_file, large), isAllowed);
        QCOMPARE(AnyFile::write(m_file, small), isAllowed); // shorter: what was there is cut off
        user.reset();
        QVERIFY(!isAllowed || owner == 0 || AnyFile::write(m_file, small)); // root replaces a user's file
        QCOMPARE(AnyFile::lengthIn(m_file), small);
        struct stat now = {};
        QCOMPARE(stat(path, &now), 0);
        QCOMPARE((QList<unsigned>{now.st_uid, now.st_gid, now.st_mode & 07777}),
                 (QList<unsigned>{owner, nobody, fileMode}));
    }

    void linkIsFollowed()
    {
        const QString link = m_folder.filePath(QString(250, QLatin1Char('n'))); // also a long name
        QVERIFY(QFile::link(text("suite.cfg"), link));
        QVERIFY(AnyFile::write(link, large));
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(AnyFile::lengthIn(m_file), large);
    }
#else
    /// Another program forbids replacing, but not writing.
    void lockedFile()
    {
        const HANDLE lock =
            CreateFileW(reinterpret_cast<const wchar_t*>(m_file.utf16()), GENERIC_READ,
                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
        QVERIFY(lock != INVALID_HANDLE_VALUE);
        QVERIFY(AnyFile::write(m_file, large));
        CloseHandle(lock);
        QCOMPARE(AnyFile::lengthIn(m_file), large);
        QCOMPARE(m_folder.entryList(QDir::Files), QStringList(text("suite.cfg")));
    }
#endif

private:
    void makeFileIn(const QString& parent)
    {
        m_folder.setPath(parent + text("/folder"));
        QVERIFY(m_folder.removeRecursively() && m_folder.mkpath(text(".")));
        m_file = m_folder.filePath(text("suite.cfg"));
        QVERIFY(AnyFile::write(m_file, small));
    }
#ifndef Q_OS_WIN
    void setModes(unsigned file, unsigned folder) const
    {
        QCOMPARE(chmod(QFile::encodeName(m_file), file), 0);
        QCOMPARE(chmod(QFile::encodeName(m_folder.path()), folder), 0);
    }
#endif

    const SecondVolume m_volume{"mode=777,size=1m"};
    QDir m_folder;
    QString m_file;
};

TOLVAN_CORE_TEST_MAIN(SharedFileTest)
#include "tst_sharedfile.moc"
