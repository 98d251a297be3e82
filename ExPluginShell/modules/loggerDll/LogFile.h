#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

/// One log on disk: the current file and a bounded number of older ones. Several processes may append to the
/// same log.
///
/// Each record is written with one appending call of the system, so that records stay whole and a crash loses
/// none. Child processes do not inherit the file, and other programs may rename or delete it while it is open.
/// No operation waits for another process, except for one record on Windows. Not thread-safe.
class CLogFile
{
public:
    /// Size in bytes at which a file becomes an older one. Several processes may pass it while one of them moves
    /// the files, or if they can't be moved; twice this size is the limit.
    static constexpr std::uint64_t MaxSize = 5 * 1024 * 1024;

    /// Number of older files beside the current one: "name.1.log" (the newest) to "name.4.log".
    static constexpr int OlderFiles = 4;

    /// Number of own bytes after which the file's size, and whether it was deleted, are asked of the system
    /// again. The same happens after CheckInterval: a question for each record would cost as much as writing it.
    static constexpr std::uint64_t CheckSize = 16 * 1024;
    static constexpr std::chrono::milliseconds CheckInterval{10};

    CLogFile() noexcept = default;
    ~CLogFile();
    CLogFile(const CLogFile&) = delete;
    CLogFile& operator=(const CLogFile&) = delete;

    /// Opens "folder/name.log" at its end, and creates missing folders.
    /// \param stem UTF-8 path of the file without its extension
    /// \throws std::system_error
    void open(const std::string& stem);

    /// Appends a record. A file or folder that was deleted is created again after CheckInterval at the latest.
    /// \throws std::system_error if the record could not be written whole
    void append(std::string_view record);

    /// Closes the file and frees all memory.
    void close() noexcept;

private:
    using Handle = std::intptr_t;
    static constexpr Handle NoFile = -1;
    struct State {
        std::uint64_t size = 0;
        bool isDeleted = true; ///< also true if there is no open file
    };

    void reopen();
    void check();
    void makeRoom(std::size_t length);
    bool moveFiles();
    std::filesystem::path numbered(int number) const;

    // These ask the system.
    static std::filesystem::path nativePath(const std::string& utf8);
    static Handle openFile(const std::filesystem::path& path);
    static void closeFile(Handle file) noexcept;
    static State stateOf(Handle file) noexcept;
    static bool isSameFile(Handle file, const std::filesystem::path& path) noexcept;
    static bool tryLock(Handle file) noexcept; ///< ends when the file is closed or the process ends
    static void unlock(Handle file) noexcept;
    static std::size_t write(Handle file, std::string_view record) noexcept;
    static bool move(const std::filesystem::path& from, const std::filesystem::path& to) noexcept;
    static std::uint64_t processLimit() noexcept;
    static int lastError() noexcept;

    std::filesystem::path m_stem;
    std::filesystem::path m_path;
    Handle m_file = NoFile;
    State m_state;                 ///< as of the last check, with the own bytes since then
    std::uint64_t m_unchecked = 0; ///< own bytes since the last check
    std::chrono::steady_clock::time_point m_checkTime;
    std::chrono::steady_clock::time_point m_moveTime;
    std::uint64_t m_limit = 0; ///< largest file that this process may write
    bool m_isTorn = false;     ///< the last record was not written to its end
};
