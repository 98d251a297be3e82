#include "platform/FileReplacement.h"

#include "platform/HeldSizeSignal.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr const char* accessList = "system.posix_acl_access";

bool keepAccessList(int file, const char* target)
{
    char list[4096];
    const ssize_t length = getxattr(target, accessList, list, sizeof list);
    if (length > 0) {
        return fsetxattr(file, accessList, list, static_cast<std::size_t>(length), 0) == 0;
    }
    // The temporary file may have inherited a list from the folder.
    return errno != ERANGE &&
           (fremovexattr(file, accessList) == 0 || errno == ENODATA || errno == EOPNOTSUPP);
}

} // namespace

bool FileReplacement::createFile(QFile& file, bool isPrivate)
{
    const mode_t mode = isPrivate ? 0600 : 0666; // a replacement gets the old file's mode at the end
    const int descriptor =
        ::open(QFile::encodeName(file.fileName()).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (descriptor == -1) {
        return false;
    }
    if (!file.open(descriptor, QIODevice::ReadWrite | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return false;
    }
    return true;
}

qint64 FileReplacement::writeBlock(QFile& file, const char* data, qint64 length)
{
    const HeldSizeSignal held;
    return file.write(data, length);
}

bool FileReplacement::reserve(QFile& file, qint64 size)
{
    const HeldSizeSignal held;
    return posix_fallocate(file.handle(), 0, size) == 0;
}

bool FileReplacement::flushToDisk(QFile& file)
{
    return file.flush() && (fsync(file.handle()) == 0 || errno == EINVAL); // EINVAL: no such operation there
}

bool FileReplacement::keepRights(QFile& file, const QString& target)
{
    const QByteArray path = QFile::encodeName(target);
    struct stat before = {};
    struct stat now = {};
    const int descriptor = file.handle();
    if (stat(path.constData(), &before) == -1 || fstat(descriptor, &now) == -1) {
        return false;
    }
    const bool isSameOwner = before.st_uid == now.st_uid && before.st_gid == now.st_gid;
    // The owner first: changing it clears bits of the mode.
    return (isSameOwner || fchown(descriptor, before.st_uid, before.st_gid) == 0) &&
           keepAccessList(descriptor, path.constData()) && fchmod(descriptor, before.st_mode & 07777) == 0;
}

bool FileReplacement::moveOver(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace TOLVAN_NAMESPACE::Platform
