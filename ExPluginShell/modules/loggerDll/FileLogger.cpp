#include "FileLogger.h"

#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/rotating_file_sink.h>

#include <cstdio>
#include <stdexcept>

namespace
{

constexpr int EverySeverity = 0;
constexpr int UnknownSeverity = 5;

// ISO 8601 in UTC, so that reports from several time zones can be laid side by side. The place of the
// logger's name
// ("%n") takes the level letter: it is written as it came, also when it is none of ours.
constexpr const char* LinePattern = "%Y-%m-%dT%H:%M:%S.%eZ [%n] [%t] %v";

int severityOf(char level)
{
    switch (level) {
    case LogLevel::Debug:
        return 1;
    case LogLevel::Information:
        return 2;
    case LogLevel::Warning:
        return 3;
    case LogLevel::Error:
        return 4;
    default:
        return UnknownSeverity;
    }
}

void reportFailure(const std::string& what, const char* reason) noexcept
{
    std::fprintf(stderr, "***ERROR*** log file could not be written: %s (%s)\n", what.c_str(), reason);
    std::fflush(stderr);
}

bool isPlainFileName(const std::string& name)
{
    constexpr const char* Separators = "/\\:";
    return !name.empty() && name.find_first_of(Separators) == std::string::npos &&
           name.find('\0') == std::string::npos;
}

} // namespace

CFileLogger::CFileLogger() noexcept = default;
CFileLogger::~CFileLogger() = default;

void CFileLogger::init(const std::string& folder, const std::string& name, char level)
try {
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_sink.reset();
    m_opened = false;
    try {
        if (!isPlainFileName(name)) {
            throw std::invalid_argument("the name is not a plain file name");
        }
        const int severity = severityOf(level);
        m_minimumSeverity = severity == UnknownSeverity ? EverySeverity : severity;
        const auto directory = std::filesystem::u8path(folder);
        std::filesystem::create_directories(directory);
        m_path = directory / std::filesystem::u8path(name + ".log");
        openFile();
        m_opened = true;
    } catch (const std::exception& error) {
        reportFailure(folder + "/" + name + ".log", error.what());
    }
} catch (...) {
    reportFailure({}, "out of memory");
}

void CFileLogger::log(char level, const char* text)
try {
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (text == nullptr || severityOf(level) < m_minimumSeverity || !isFileReady()) {
        return;
    }
    try {
        const char letter = level > ' ' && level <= '~' ? level : '?';
        const auto spdlogLevel = level == LogLevel::Error ? spdlog::level::err : spdlog::level::info;
        m_sink->log({spdlog::string_view_t(&letter, 1), spdlogLevel, text});
        if (level == LogLevel::Error) {
            m_sink->flush();
        }
    } catch (const std::exception& error) {
        giveUpFile(error.what());
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
    m_sink.reset();
    std::filesystem::path().swap(m_path);
    m_opened = false;
}

void CFileLogger::openFile()
{
    auto sink =
        std::make_unique<spdlog::sinks::rotating_file_sink_st>(m_path.native(), MaxFileSize, OlderFiles);
    sink->set_formatter(
        std::make_unique<spdlog::pattern_formatter>(LinePattern, spdlog::pattern_time_type::utc));
    m_sink = std::move(sink);
}

bool CFileLogger::isFileReady()
{
    if (m_sink) {
        return true;
    }
    if (!m_opened || std::chrono::steady_clock::now() < m_retryTime) {
        return false;
    }
    try {
        openFile();
    } catch (const std::exception&) {
        m_retryTime = std::chrono::steady_clock::now() + RetryInterval;
    }
    return m_sink != nullptr;
}

// The sink must not be used again after a failure: it may have closed its file and would write through a null
// handle.
void CFileLogger::giveUpFile(const char* reason)
{
    m_sink.reset();
    m_retryTime = std::chrono::steady_clock::now() + RetryInterval;
    reportFailure(m_path.u8string(), reason);
}
