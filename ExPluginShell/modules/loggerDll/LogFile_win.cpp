#include "LogFile.h"

#include <system_error>

#include <windows.h>

namespace
{

// Locked ranges lie beyond the end of every file: they are agreements and hold back no reader.
constexpr DWORD movingRange = 0x40000000;
constexpr DWORD writingRange = 0x40000001;

HANDLE handleOf(std::intptr_t file)
{
    return reinterpret_cast<HANDLE>(file);
}

OVERLAPPED rangeAt(DWORD high)
{
    OVERLAPPED range = {};
    range.OffsetHigh = high;
    return range;
}

BY_HANDLE_FILE_INFORMATION informationOf(HANDLE file)
{
    BY_HANDLE_FILE_INFORMATION information = {};
    return GetFileInformationByHandle(file, &information) ? information : BY_HANDLE_FILE_INFORMATION{};
}

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

} // namespace

std::filesystem::path CLogFile::nativePath(const std::string& utf8)
{
    const int length = static_cast<int>(utf8.size());
    std::wstring text(utf8.size(), L'\0');
    text.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, text.data(), length)));
    return text;
}

CLogFile::Handle CLogFile::openFile(const std::filesystem::path& path)
{
    // Without the right to write anywhere every write goes to the end. Reading is needed for the locks.
    const HANDLE file = CreateFileW(path.c_str(), FILE_APPEND_DATA | GENERIC_READ, shareAll, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
    }
    return reinterpret_cast<std::intptr_t>(file);
}

void CLogFile::closeFile(Handle file) noexcept
{
    if (file != NoFile) {
        CloseHandle(handleOf(file));
    }
}

CLogFile::State CLogFile::stateOf(Handle file) noexcept
{
    const auto information = informationOf(handleOf(file));
    return {(std::uint64_t{information.nFileSizeHigh} << 32) | information.nFileSizeLow,
            information.nNumberOfLinks == 0};
}

bool CLogFile::isSameFile(Handle file, const std::filesystem::path& path) noexcept
{
    const HANDLE other = CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, shareAll, nullptr, OPEN_EXISTING,
                                     FILE_ATTRIBUTE_NORMAL, nullptr);
    if (other == INVALID_HANDLE_VALUE) {
        return false;
    }
    const auto opened = informationOf(handleOf(file));
    const auto named = informationOf(other);
    CloseHandle(other);
    return opened.dwVolumeSerialNumber == named.dwVolumeSerialNumber &&
           opened.nFileIndexHigh == named.nFileIndexHigh && opened.nFileIndexLow == named.nFileIndexLow;
}

bool CLogFile::tryLock(Handle file) noexcept
{
    OVERLAPPED range = rangeAt(movingRange);
    return LockFileEx(handleOf(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &range);
}

void CLogFile::unlock(Handle file) noexcept
{
    OVERLAPPED range = rangeAt(movingRange);
    UnlockFileEx(handleOf(file), 0, 1, 0, &range);
}

std::size_t CLogFile::write(Handle file, std::string_view record) noexcept
{
    // Wine looks for the end of the file before it writes: the lock keeps other processes from doing so too.
    OVERLAPPED range = rangeAt(writingRange);
    const bool isLocked = LockFileEx(handleOf(file), LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &range);
    DWORD written = 0;
    const bool isWritten =
        WriteFile(handleOf(file), record.data(), static_cast<DWORD>(record.size()), &written, nullptr);
    const DWORD error = isWritten ? ERROR_DISK_FULL : GetLastError();
    if (isLocked) {
        UnlockFileEx(handleOf(file), 0, 1, 0, &range);
    }
    SetLastError(error);
    return written;
}

bool CLogFile::move(const std::filesystem::path& from, const std::filesystem::path& to) noexcept
{
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING);
}

std::uint64_t CLogFile::processLimit() noexcept
{
    return UINT64_MAX;
}

int CLogFile::lastError() noexcept
{
    return static_cast<int>(GetLastError());
}
