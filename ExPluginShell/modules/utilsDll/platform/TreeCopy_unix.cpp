#include "platform/TreeCopy.h"

#include "platform/HeldSizeSignal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

constexpr off_t blockSize = 1024 * 1024;

class Descriptor
{
public:
    explicit Descriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    ~Descriptor()
    {
        if (m_descriptor >= 0) {
            close(m_descriptor);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return m_descriptor; }
    bool closed()
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        return close(descriptor) == 0;
    }

private:
    int m_descriptor;
};

bool copyBytes(int from, int to, off_t begin, off_t end)
{
    std::vector<char> block(static_cast<std::size_t>(std::min(blockSize, end - begin)));
    for (off_t position = begin; position < end;) {
        const off_t part = std::min(static_cast<off_t>(block.size()), end - position);
        const ssize_t length = pread(from, block.data(), static_cast<std::size_t>(part), position);
        if (length <= 0 || pwrite(to, block.data(), static_cast<std::size_t>(length), position) != length) {
            return false; // a file that has become shorter is not copied either
        }
        position += length;
    }
    return true;
}

/// What is no data is left out, so that it stays a hole.
bool copyContent(int from, int to, off_t size)
{
    off_t end = 0;
    while (end < size) {
        off_t begin = lseek(from, end, SEEK_DATA);
        if (begin < 0 && errno == ENXIO) {
            break; // only a hole is left
        }
        const bool knowsHoles = begin >= 0;
        begin = knowsHoles ? begin : end;
        end = knowsHoles ? std::min(size, lseek(from, begin, SEEK_HOLE)) : size;
        if (end <= begin || !copyBytes(from, to, begin, end)) {
            return false;
        }
    }
    return ftruncate(to, size) == 0;
}

/// Best effort: the target's file system may have no attributes, and some belong to the system.
void copyAttributes(const fs::path& from, const fs::path& to)
{
    const ssize_t length = llistxattr(from.c_str(), nullptr, 0);
    if (length <= 0) {
        return;
    }
    std::string names(static_cast<std::size_t>(length), '\0');
    const ssize_t filled = llistxattr(from.c_str(), names.data(), names.size());
    for (std::size_t i = 0; filled > 0 && i < static_cast<std::size_t>(filled);
         i += names.find('\0', i) - i + 1) {
        const char* const name = names.c_str() + i;
        const ssize_t size = lgetxattr(from.c_str(), name, nullptr, 0);
        std::vector<char> value(static_cast<std::size_t>(std::max<ssize_t>(size, 0)) + 1);
        if (size >= 0 && lgetxattr(from.c_str(), name, value.data(), value.size()) == size) {
            static_cast<void>(lsetxattr(to.c_str(), name, value.data(), static_cast<std::size_t>(size), 0));
        }
    }
}

/// Owner, attributes, permissions and times, in the order in which none changes one before it.
bool copyProperties(const fs::path& from, const fs::path& to, const struct stat& status)
{
    const bool keepsOwner = lchown(to.c_str(), status.st_uid, status.st_gid) == 0;
    // Rights of another owner must not become those of this one.
    const mode_t mode = status.st_mode & (keepsOwner ? 07777 : 0777);
    copyAttributes(from, to);
    const timespec times[2] = {status.st_atim, status.st_mtim};
    return (S_ISLNK(status.st_mode) || chmod(to.c_str(), mode) == 0) &&
           utimensat(AT_FDCWD, to.c_str(), times, AT_SYMLINK_NOFOLLOW) == 0;
}

bool copyFile(const fs::path& from, const fs::path& to, const struct stat& status)
{
    const Descriptor source(open(from.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    const HeldSizeSignal held;
    Descriptor target(open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    // The content has to be on the disk before the only other copy is deleted.
    return source.get() >= 0 && target.get() >= 0 &&
           copyContent(source.get(), target.get(), status.st_size) && fsync(target.get()) == 0 &&
           target.closed() && copyProperties(from, to, status);
}

} // namespace

bool TreeCopy::copy(const fs::path& from, const fs::path& to)
{
    struct stat status = {};
    if (lstat(from.c_str(), &status) != 0) {
        return false;
    }
    std::error_code error;
    if (S_ISLNK(status.st_mode)) {
        fs::copy_symlink(from, to, error);
        return !error && copyProperties(from, to, status);
    }
    if (S_ISDIR(status.st_mode)) {
        if (mkdir(to.c_str(), S_IRWXU) != 0) {
            return false;
        }
        for (fs::directory_iterator entry(from, error), end; !error && entry != end; entry.increment(error)) {
            if (!copy(entry->path(), to / entry->path().filename())) {
                return false;
            }
        }
        return !error && copyProperties(from, to, status);
    }
    if (!S_ISREG(status.st_mode)) {
        return false;
    }
    fs::path& firstName = m_copied[{status.st_dev, status.st_ino}];
    if (status.st_nlink > 1 && !firstName.empty() && link(firstName.c_str(), to.c_str()) == 0) {
        return true;
    }
    firstName = to;
    return copyFile(from, to, status);
}

} // namespace TOLVAN_NAMESPACE::Platform
