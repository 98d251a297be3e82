#pragma once

#include "ILoggerInterface.h"

#include <QByteArray>
#include <QString>
#include <QVarLengthArray>

#include <atomic>
#include <string>
#include <string_view>
#include <type_traits>

/// The logging bridge: every diagnostic line of the library goes through here. Internal, not installed.
///
/// \code
/// UTILSDLL_LOG(LogLevel::Error, "TOLVAN_NAMESPACE::moveFileToTrash") << "cannot move " << path;
/// \endcode
///
/// The function name is a text that other programs match on, so callers write it out. With no logger the
/// statement costs one load and one branch; the pieces behind it are not evaluated.
#define UTILSDLL_LOG(level, function)                                                                        \
    if (ILoggerInterface* const utilsDllLogger = TOLVAN_NAMESPACE::Logging::logger(); !utilsDllLogger) {     \
    } else                                                                                                   \
        TOLVAN_NAMESPACE::Logging::Line(*utilsDllLogger, level, function)

namespace TOLVAN_NAMESPACE::Logging
{

/// The process-wide logger; null until one is set, then the same until the process ends.
extern std::atomic<ILoggerInterface*> processLogger;

/// The process-wide logger, or null.
inline ILoggerInterface* logger() noexcept
{
    return processLogger.load(std::memory_order_acquire);
}

/// Sets the process-wide logger, which stays owned by the caller. A logger once set is never replaced.
void setLogger(ILoggerInterface* logger) noexcept;

/// One line under construction: function name, ": ", then the pieces, handed to the logger on destruction.
class Line
{
public:
    Line(ILoggerInterface& logger, char level, const char* function);
    ~Line();
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    Line& operator<<(std::string_view text);
    Line& operator<<(const char* text) { return *this << std::string_view(text ? text : ""); }
    Line& operator<<(const std::string& text) { return *this << std::string_view(text); }
    Line& operator<<(const QByteArray& text)
    {
        return *this << std::string_view(text.constData(), static_cast<std::size_t>(text.size()));
    }
    Line& operator<<(const QString& text) { return *this << text.toUtf8(); }
    Line& operator<<(char) = delete;

    template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
    Line& operator<<(Integer number)
    {
        return appendNumber(static_cast<long long>(number));
    }

private:
    Line& appendNumber(long long number);

    ILoggerInterface& m_logger;
    const char m_level;
    QVarLengthArray<char, 512> m_text;
};

/// Reports a failed assertion and returns; the caller then takes its fallback. Logs "ASSERT in " + path + ":"
/// + line at level "E" and writes the same text to the Qt debug stream.
/// \param function qualified name of the reporting function
/// \param unit name of the source unit, e.g. "SharedUtils"; its path is written with backslashes on every system
void reportAssertion(const char* function, const char* unit, int line);

/// Like reportAssertion(), with a message: "ASSERT_X in " + path + " line " + line + ":" + message.
void reportAssertionX(const char* function, const char* unit, int line, const char* message);

} // namespace TOLVAN_NAMESPACE::Logging
