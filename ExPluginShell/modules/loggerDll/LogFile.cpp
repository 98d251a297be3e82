#include "LogFile.h"

#include <algorithm>
#include <system_error>

namespace
{

constexpr std::chrono::seconds moveInterval{1};

} // namespace

CLogFile::~CLogFile()
{
    close();
}

void CLogFile::open(const std::string& stem)
{
    close();
    m_stem = nativePath(stem);
    m_path = m_stem;
    m_path += ".log";
    reopen();
}

void CLogFile::close() noexcept
{
    closeFile(m_file);
    m_file = NoFile;
    std::filesystem::path().swap(m_stem);
    std::filesystem::path().swap(m_path);
    m_isTorn = false;
    m_moveTime = {};
}

void CLogFile::append(std::string_view record)
{
    std::string separated;
    if (m_isTorn) {
        separated.append(1, '\n').append(record);
        record = separated;
    }
    const auto now = std::chrono::steady_clock::now();
    if (m_file == NoFile || m_unchecked >= CheckSize || now - m_checkTime >= CheckInterval) {
        m_checkTime = now;
        check();
    }
    makeRoom(record.size());
    const std::size_t written = write(m_file, record);
    m_state.size += written;
    m_unchecked += written;
    if (written != record.size()) {
        const int error = lastError();
        m_isTorn = m_isTorn || written != 0;
        m_checkTime = {};
        throw std::system_error(error, std::system_category());
    }
    m_isTorn = false;
}

void CLogFile::reopen()
{
    closeFile(m_file);
    m_file = NoFile;
    m_isTorn = false;
    std::filesystem::create_directories(m_path.parent_path());
    m_file = openFile(m_path);
    m_limit = processLimit();
    m_state = stateOf(m_file);
    m_unchecked = 0;
}

void CLogFile::check()
{
    m_state = stateOf(m_file);
    m_unchecked = 0;
    if (m_state.isDeleted) {
        reopen();
    }
}

void CLogFile::makeRoom(std::size_t length)
{
    if (m_state.size != 0 && m_state.size + length > std::min(MaxSize, m_limit) && !moveFiles() &&
        m_state.size + length > 2 * MaxSize) {
        throw std::system_error(std::make_error_code(std::errc::file_too_large));
    }
    if (m_state.size + length > m_limit) {
        throw std::system_error(std::make_error_code(std::errc::file_too_large));
    }
}

/// Makes the current file an older one and opens a new file. \return whether another file is open now
bool CLogFile::moveFiles()
{
    const auto now = std::chrono::steady_clock::now();
    if (now < m_moveTime || !tryLock(m_file)) {
        return false; // another process is moving the files
    }
    if (isSameFile(m_file, m_path)) { // or else another process has moved them already
        for (int number = OlderFiles; number > 1; --number) {
            move(numbered(number - 1), numbered(number)); // a file that can't be moved is replaced
        }
        if (!move(m_path, numbered(1))) {
            m_moveTime = now + moveInterval;
            unlock(m_file);
            return false;
        }
    }
    reopen();
    return true;
}

std::filesystem::path CLogFile::numbered(int number) const
{
    std::filesystem::path path = m_stem;
    path += "." + std::to_string(number) + ".log";
    return path;
}
