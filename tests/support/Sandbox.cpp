#include "Sandbox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#ifdef Q_OS_LINUX
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#endif
#ifdef Q_OS_WIN
#include <windows.h>
#endif

bool underWine()
{
#ifdef Q_OS_WIN
    return GetProcAddress(GetModuleHandleW(L"ntdll"), "wine_get_version") != nullptr;
#else
    return false;
#endif
}

OrdinaryUser::OrdinaryUser()
{
#ifdef Q_OS_LINUX
    constexpr unsigned unprivileged = 65534;
    if (getuid() == 0) {
        const auto all = QFile::Permissions(0x7777);
        QFile::setPermissions(QFileInfo(QDir::tempPath()).path(), all); // the profile
        QFile::setPermissions(QDir::tempPath(), all);
        m_changed =
            setresgid(unprivileged, unprivileged, 0) == 0 && setresuid(unprivileged, unprivileged, 0) == 0;
    }
#endif
}

OrdinaryUser::~OrdinaryUser()
{
#ifdef Q_OS_LINUX
    if (m_changed && (setresuid(0, 0, 0) != 0 || setresgid(0, 0, 0) != 0)) {
        qFatal("the process could not become root again");
    }
#endif
}

SecondVolume::SecondVolume(const char* options)
    : m_path(QDir::temp().filePath(QStringLiteral("volume")))
{
#ifdef Q_OS_LINUX
    QDir().mkpath(m_path);
    // Qt caches the path. After the mounts are separated the system reports another one for a process in a
    // chroot.
    QCoreApplication::applicationFilePath();
    if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", QFile::encodeName(m_path).constData(), "tmpfs", 0, options) != 0) {
        m_problem = QStringLiteral("a second file system can't be mounted (only root may): ") +
                    QString::fromLocal8Bit(std::strerror(errno));
    }
#else
    Q_UNUSED(options)
    m_problem = QStringLiteral("there is one volume only on this system");
#endif
}

SecondVolume::~SecondVolume()
{
#ifdef Q_OS_LINUX
    if (m_problem.isEmpty()) {
        umount2(QFile::encodeName(m_path).constData(), MNT_DETACH);
    }
#endif
}

Outcome runProgram(const QString& program, const QStringList& arguments, const QString& folder,
                   const QByteArray& input)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    if (!process.waitForStarted()) {
        return {-1, "can't start " + program.toUtf8()};
    }
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(100000) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished();
        return {-1, process.readAll()};
    }
    return {process.exitCode(), process.readAll()};
}
