#include "FileLogger.h"

#include <spdlog/pattern_formatter.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace
{

constexpr int EverySeverity = spdlog::level::trace;

// ISO 8601 in UTC, so that reports from several time zones can be compared. The place of the logger's name
// ("%n") takes the level letter, which is written unchanged also if it is unknown.
std::unique_ptr<spdlog::pattern_formatter> recordFormatter()
{
    // The process is part of the pattern, because "%P" asks the system for each record.
    const std::string process = std::to_string(spdlog::details::os::pid());
    return std::make_unique<spdlog::pattern_formatter>("%Y-%m-%dT%H:%M:%S.%eZ [%n] [" + process + ":%t] %v",
                                                       spdlog::pattern_time_type::utc);
}

constexpr const char* Indentation = "\n    ";

spdlog::level::level_enum severityOf(char level)
{
    switch (level) {
    case LogLevel::Debug:
        return spdlog::level::debug;
    case LogLevel::Information:
        return spdlog::level::info;
    case LogLevel::Warning:
        return spdlog::level::warn;
    case LogLevel::Error:
        return spdlog::level::err;
    default:
        return spdlog::level::critical;
    }
}

void reportFailure(const char* stem, const char* reason) noexcept
{
    std::fprintf(stderr, "***ERROR*** log file could not be written: %s.log (%s)\n", stem, reason);
    std::fflush(stderr);
}

bool isPlainFileName(const std::string& name)
{
    constexpr const char* Separators = "/\\:";
    return !name.empty() && name.find_first_of(Separators) == std::string::npos &&
           name.find('\0') == std::string::npos;
}

/// The text as it is written: further lines are indented, line feeds at the end removed, the length bounded.
/// \param storage holds the result if it differs from a part of \a text
std::string_view recordText(std::string_view text, std::string& storage)
{
    const std::size_t size = text.size();
    text = text.substr(0, text.find_last_not_of("\r\n") + 1);
    constexpr auto none = std::string_view::npos;
    if (text.find('\n') == none && text.find('\r') == none && text.size() <= CFileLogger::MaxTextSize) {
        return text;
    }
    bool isCut = false;
    while (!text.empty() && !isCut) {
        std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        const std::size_t room =
            CFileLogger::MaxTextSize - std::min(storage.size(), CFileLogger::MaxTextSize);
        isCut = end > room || room == 0;
        end = isCut ? room : end;
        while (isCut && end > 0 && (text[end] & 0xC0) == 0x80) { // not in the middle of a letter
            --end;
        }
        storage.append(text.substr(0, end));
        text.remove_prefix(end);
        if (!isCut && !text.empty()) {
            text.remove_prefix(text.substr(0, 2) == "\r\n" ? 2 : 1);
            storage.append(Indentation);
        }
    }
    if (isCut) {
        storage.append(" [cut, " + std::to_string(size) + " bytes]");
    }
    return storage;
}

} // namespace

CFileLogger::CFileLogger() noexcept = default;
CFileLogger::~CFileLogger() = default;

void CFileLogger::init(const std::string& folder, const std::string& name, char level)
try {
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::string stem = folder + '/' + name;
    m_file.close();
    m_stem = {};
    m_dropped = 0;
    try {
        if (!isPlainFileName(name)) {
            throw std::invalid_argument("the name is not a plain file name");
        }
        if (folder.empty() || stem.size() >= m_stem.size()) {
            throw std::invalid_argument("the folder is empty or too long");
        }
        const auto severity = severityOf(level);
        m_minimumSeverity = severity == spdlog::level::critical ? EverySeverity : severity;
        m_formatter = recordFormatter();
        m_file.open(stem);
        std::memcpy(m_stem.data(), stem.data(), stem.size());
        m_isClosed = false;
    } catch (const std::exception& error) {
        reportFailure(stem.c_str(), error.what());
    }
} catch (...) {
    reportFailure("", "out of memory");
}

void CFileLogger::log(char level, const char* text)
try {
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (text == nullptr || severityOf(level) < m_minimumSeverity || m_stem[0] == '\0') {
        return;
    }
    if (m_isClosed) {
        writeAfterClose(level, text);
        return;
    }
    if (m_dropped != 0 && std::chrono::steady_clock::now() < m_retryTime) {
        ++m_dropped;
        return;
    }
    try {
        if (m_dropped != 0) {
            writeRecord(m_file, LogLevel::Warning,
                        "LoggerDllTrelioFrame: lines that could not be written: " +
                            std::to_string(m_dropped));
            m_dropped = 0;
        }
        std::string storage;
        writeRecord(m_file, level, recordText(text, storage));
    } catch (const std::exception& error) {
        countDropped(error.what());
    }
} catch (...) {
    // The lock itself failed or memory ran out: the line is lost, the caller goes on.
}

void CFileLogger::close() noexcept
{
    // A thread that was stopped in the middle of a line keeps the lock for ever; waiting would hang the
    // process's end.
    const std::unique_lock<std::mutex> lock(m_mutex, std::try_to_lock);
    if (!lock.owns_lock()) {
        return;
    }
    m_file.close();
    m_formatter.reset();
    m_isClosed = true;
}

void CFileLogger::writeRecord(CLogFile& file, char level, std::string_view text)
{
    const char letter = level > ' ' && level <= '~' ? level : '?';
    spdlog::memory_buf_t record;
    m_formatter->format({spdlog::string_view_t(&letter, 1), severityOf(level),
                         spdlog::string_view_t(text.data(), text.size())},
                        record);
    file.append({record.data(), record.size()});
}

/// Nothing stays in memory: the library may be unloaded, and is not asked before.
void CFileLogger::writeAfterClose(char level, const char* text)
{
    CLogFile file;
    file.open(m_stem.data());
    m_formatter = recordFormatter();
    std::string storage;
    writeRecord(file, level, recordText(text, storage));
    m_formatter.reset();
}

void CFileLogger::countDropped(const char* reason)
{
    if (m_dropped == 0) {
        reportFailure(m_stem.data(), reason);
    }
    ++m_dropped;
    m_retryTime = std::chrono::steady_clock::now() + RetryInterval;
}
