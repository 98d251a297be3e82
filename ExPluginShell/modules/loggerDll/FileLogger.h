#pragma once

#include "LogFile.h"

#include <utilsDll/ILoggerInterface.h>

#include <array>
#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace spdlog
{
class pattern_formatter;
}

/// The product's logger: writes each line with time, level, process and thread to one bounded set of files.
///
/// All operations may be called from any thread. None throws. A line is in the file, and survives a crash of
/// the process, when log() returns. Several processes may use the same log. Without a successful init() every
/// line is dropped.
class CFileLogger final : public ILoggerInterface
{
public:
    /// Longest text of a line in bytes; the rest of a longer text is cut off and its size is written instead.
    static constexpr std::size_t MaxTextSize = 64 * 1024;

    CFileLogger() noexcept;
    ~CFileLogger() override;
    CFileLogger(const CFileLogger&) = delete;
    CFileLogger& operator=(const CFileLogger&) = delete;

    /// Opens the file "folder/name.log" at its end; missing folders are created.
    ///
    /// \param folder UTF-8 path of the folder
    /// \param name   UTF-8 file name without extension; an empty name or one with a separator is refused
    /// \param level  lowest level that is written: 'D', 'I', 'W' or 'E'; any other letter writes all levels
    ///
    /// A second call closes the first file. If the file can't be opened, one line is printed to standard
    /// error, and lines are dropped until another call succeeds.
    void init(const std::string& folder, const std::string& name, char level) override;

    /// Writes one line. Further lines of a text are indented, so that none looks like a record of its own. A
    /// line of an unknown level is always written; a null text is dropped.
    ///
    /// If writing fails (a full disk, for example) one line is printed to standard error. Lines are then
    /// dropped; the first line after RetryInterval tries again, and the number of dropped lines is logged.
    void log(char level, const char* text) override;

    /// Closes the file and frees all memory. A later line opens the file for itself alone: objects that are
    /// destroyed after this library's may log. Does nothing while another thread is logging.
    void close() noexcept;

private:
    static constexpr std::chrono::seconds RetryInterval{1};
    static constexpr std::size_t LongestStem = 4096;

    void writeRecord(CLogFile& file, char level, std::string_view text);
    void writeAfterClose(char level, const char* text);
    void countDropped(const char* reason);

    std::mutex m_mutex;
    CLogFile m_file;
    std::unique_ptr<spdlog::pattern_formatter> m_formatter;
    std::array<char, LongestStem> m_stem = {}; ///< UTF-8 path without extension; empty while there is no file
    std::chrono::steady_clock::time_point m_retryTime;
    unsigned long long m_dropped = 0;
    int m_minimumSeverity = 0;
    bool m_isClosed = false;
};
