#include "platform/FileMoves.h"

#include "platform/TreeCopy.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace fs = std::filesystem;

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

fs::path systemPath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

/// Removes what a failed step has left and keeps errno.
bool withdraw(const fs::path& path)
{
    const int reason = errno;
    std::remove(path.c_str());
    errno = reason;
    return false;
}

/// Creates an empty folder or file exclusively.
bool claim(const fs::path& name, bool asFolder)
{
    if (asFolder) {
        return mkdir(name.c_str(), S_IRWXU) == 0;
    }
    const int file = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return file >= 0 && close(file) == 0;
}

/// For file systems without the exclusive rename: the target becomes a second name of the file, or is claimed
/// first where hard links are not supported.
bool renameByClaim(const fs::path& from, const fs::path& to)
{
    struct stat status = {};
    if (lstat(from.c_str(), &status) != 0) {
        return false;
    }
    const bool isFolder = S_ISDIR(status.st_mode);
    if (!isFolder && link(from.c_str(), to.c_str()) == 0) {
        return unlink(from.c_str()) == 0 || withdraw(to);
    }
    return claim(to, isFolder) && (rename(from.c_str(), to.c_str()) == 0 || withdraw(to));
}

/// On failure errno has the reason.
bool renameInPlace(const fs::path& from, const fs::path& to)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    return (errno == EINVAL || errno == ENOSYS) && renameByClaim(from, to);
}

/// The content of a read-only folder could not be removed.
void makeRemovable(const fs::path& folder)
{
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, ignored)) {
        if (entry.is_directory(ignored) && !entry.is_symlink(ignored)) {
            fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add, ignored);
        }
    }
}

bool moveByCopying(const QString& from, const QString& to)
{
    const fs::path source = systemPath(from);
    const fs::path target = systemPath(to);
    const fs::path folder = source.has_parent_path() ? source.parent_path() : fs::path(".");
    struct stat existing = {};
    if (lstat(target.c_str(), &existing) == 0 || access(folder.c_str(), W_OK) != 0) {
        return false;
    }
    // Copied in a folder beside the target: the last step is again a rename that replaces nothing.
    QTemporaryDir beside(QFile::decodeName((target.parent_path() / ".moving-XXXXXX").c_str()));
    if (!beside.isValid()) {
        return false;
    }
    const fs::path copy = systemPath(beside.path()) / "content";
    const bool moved = TreeCopy().copy(source, copy) && renameInPlace(copy, target);
    if (!moved) {
        makeRemovable(systemPath(beside.path()));
        return false;
    }
    std::error_code error;
    fs::remove_all(source, error);
    if (error && !fs::is_directory(target)) {
        unlink(target.c_str()); // nothing has changed; a folder may be removed in part, so its copy stays
    }
    return !error;
}

} // namespace

bool moveWithoutReplacing(const QString& from, const QString& to)
{
    if (from.isEmpty() || to.isEmpty()) {
        return false;
    }
    if (renameInPlace(systemPath(from), systemPath(to))) {
        return true;
    }
    return errno == EXDEV && moveByCopying(from, to);
}

} // namespace TOLVAN_NAMESPACE::Platform
