#include "Logging.h"

#include <QDebug>

#include <charconv>

namespace TOLVAN_NAMESPACE::Logging
{

std::atomic<ILoggerInterface*> processLogger{nullptr};

void setLogger(ILoggerInterface* logger) noexcept
{
    ILoggerInterface* none = nullptr;
    processLogger.compare_exchange_strong(none, logger, std::memory_order_acq_rel);
}

Line::Line(ILoggerInterface& logger, char level, const char* function)
    : m_logger(logger)
    , m_level(level)
{
    *this << function << ": ";
}

Line::~Line()
{
    // A logger that throws must not end the program in the middle of a diagnostic.
    try {
        m_text.append('\0');
        m_logger.log(m_level, m_text.constData());
    } catch (...) {
    }
}

Line& Line::operator<<(std::string_view text)
{
    m_text.append(text.data(), static_cast<int>(text.size()));
    return *this;
}

Line& Line::appendNumber(long long number)
{
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    return *this << std::string_view(digits, static_cast<std::size_t>(end - digits));
}

namespace
{

std::string sourcePath(const char* unit)
{
    return std::string("ExPluginShell\\modules\\utilsDll\\") + unit;
}

} // namespace

void reportAssertion(const char* function, const char* unit, int line)
{
    const std::string text = "ASSERT in " + sourcePath(unit) + ":" + std::to_string(line);
    UTILSDLL_LOG(LogLevel::Error, function) << text;
    qDebug() << text.c_str();
}

void reportAssertionX(const char* function, const char* unit, int line, const char* message)
{
    const std::string text = "ASSERT_X in " + sourcePath(unit) + " line " + std::to_string(line) + ":";
    UTILSDLL_LOG(LogLevel::Error, function) << text << message;
    qDebug() << text.c_str() << message;
}

} // namespace TOLVAN_NAMESPACE::Logging
