#include "LogFile.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

int descriptor(std::intptr_t file)
{
    return static_cast<int>(file);
}

} // namespace

std::filesystem::path CLogFile::nativePath(const std::string& utf8)
{
    return utf8;
}

CLogFile::Handle CLogFile::openFile(const std::filesystem::path& path)
{
    const int file = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    if (file == -1) {
        throw std::system_error(errno, std::system_category());
    }
    return file;
}

void CLogFile::closeFile(Handle file) noexcept
{
    if (file != NoFile) {
        ::close(descriptor(file));
    }
}

CLogFile::State CLogFile::stateOf(Handle file) noexcept
{
    struct stat state = {};
    if (fstat(descriptor(file), &state) == -1) {
        return {};
    }
    return {static_cast<std::uint64_t>(state.st_size), state.st_nlink == 0};
}

bool CLogFile::isSameFile(Handle file, const std::filesystem::path& path) noexcept
{
    struct stat opened = {};
    struct stat named = {};
    return fstat(descriptor(file), &opened) == 0 && stat(path.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

bool CLogFile::tryLock(Handle file) noexcept
{
    return flock(descriptor(file), LOCK_EX | LOCK_NB) == 0;
}

void CLogFile::unlock(Handle file) noexcept
{
    flock(descriptor(file), LOCK_UN);
}

std::size_t CLogFile::write(Handle file, std::string_view record) noexcept
{
    ssize_t written = 0;
    do {
        written = ::write(descriptor(file), record.data(), record.size());
    } while (written == -1 && errno == EINTR);
    if (written >= 0 && static_cast<std::size_t>(written) < record.size()) {
        errno = ENOSPC; // a part is written without an error
    }
    return written == -1 ? 0 : static_cast<std::size_t>(written);
}

bool CLogFile::move(const std::filesystem::path& from, const std::filesystem::path& to) noexcept
{
    return std::rename(from.c_str(), to.c_str()) == 0;
}

std::uint64_t CLogFile::processLimit() noexcept
{
    rlimit limit = {};
    return getrlimit(RLIMIT_FSIZE, &limit) == 0 ? limit.rlim_cur : RLIM_INFINITY;
}

int CLogFile::lastError() noexcept
{
    return errno;
}
