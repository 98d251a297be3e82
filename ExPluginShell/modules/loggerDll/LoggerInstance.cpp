#include "LoggerInstance.h"

#include "FileLogger.h"

#include <new>

namespace
{

// Destructors of other libraries may run later than this library's and log. The logger is therefore closed, not
// destroyed, and lies in storage that needs no release when the library is unloaded.
class CLoggerHolder
{
public:
    CLoggerHolder()
        : m_logger(new (s_storage) CFileLogger)
    {
    }
    ~CLoggerHolder() { m_logger->close(); }
    CLoggerHolder(const CLoggerHolder&) = delete;
    CLoggerHolder& operator=(const CLoggerHolder&) = delete;

    ILoggerInterface* logger() const { return m_logger; }

private:
    alignas(CFileLogger) static unsigned char s_storage[sizeof(CFileLogger)];
    CFileLogger* m_logger;
};

alignas(CFileLogger) unsigned char CLoggerHolder::s_storage[sizeof(CFileLogger)];

} // namespace

ILoggerInterface* loggerInstance()
{
    static const CLoggerHolder holder;
    return holder.logger();
}
