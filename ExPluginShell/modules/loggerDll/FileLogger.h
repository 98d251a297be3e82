#pragma once

#include <utilsDll/ILoggerInterface.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>

namespace spdlog::sinks
{
class sink;
}

/// The product's logger: writes every line with time, level and thread to one bounded set of files.
///
/// All operations may be called from any thread. None throws, and none waits longer than one line takes to
/// write (opening and moving files on included). Without a successful init() every line is dropped.
class CFileLogger final : public ILoggerInterface
{
public:
    /// Largest size of one file in bytes. A single longer line is still written whole.
    static constexpr std::size_t MaxFileSize = 5 * 1024 * 1024;

    /// How many older files are kept beside the current one: "name.1.log" (the newest) to "name.4.log".
    static constexpr std::size_t OlderFiles = 4;

    CFileLogger() noexcept;
    ~CFileLogger() override;
    CFileLogger(const CFileLogger&) = delete;
    CFileLogger& operator=(const CFileLogger&) = delete;

    /// Goes on at the end of the file "folder/name.log"; missing folders are created.
    ///
    /// \param folder  UTF-8 path of the folder.
    /// \param name    UTF-8 file name without extension; a name that is empty or leads elsewhere is refused.
    /// \param level   least level that is written: 'D', 'I', 'W' or 'E'; anything else writes everything.
    ///
    /// A second call leaves the first file and goes on in the second. When the file can't be opened one line
    /// on standard error says so, and lines are dropped until another call succeeds.
    void init(const std::string& folder, const std::string& name, char level) override;

    /// Writes one line; the text is taken as it is. A line of level 'E' has reached the file when the call
    /// returns, together with all lines before it; other lines may stay in the buffer until it is full. A
    /// line of an unknown level is always written; a null text is dropped.
    ///
    /// When writing fails (a full disk, a folder that went away) one line on standard error says so; lines
    /// are then dropped, and the file is opened anew with the first line after RetryInterval.
    void log(char level, const char* text) override;

    /// Writes what is buffered and drops every later line. Does nothing while another thread is logging.
    void close() noexcept;

private:
    static constexpr std::chrono::seconds RetryInterval{5};

    void openFile();
    bool isFileReady();
    void giveUpFile(const char* reason);

    std::mutex m_mutex;
    std::unique_ptr<spdlog::sinks::sink> m_sink;
    std::filesystem::path m_path;
    std::chrono::steady_clock::time_point m_retryTime;
    int m_minimumSeverity = 0;
    bool m_opened = false;
};
