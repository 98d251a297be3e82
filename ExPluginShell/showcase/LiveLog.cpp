#include "LiveLog.h"

#include <QCoreApplication>
#include <QLibrary>

namespace
{

/// "function: text", where a function name has no blank.
LogLine parsed(char level, const QString& line)
{
    const int colon = line.indexOf(QLatin1String(": "));
    const bool hasFunction = colon > 0 && line.lastIndexOf(QLatin1Char(' '), colon - 1) < 0;
    return {QTime::currentTime(), level, hasFunction ? line.left(colon) : QString(),
            hasFunction ? line.mid(colon + 2) : line};
}

} // namespace

LiveLog::LiveLog()
{
    qRegisterMetaType<LogLine>();
}

LiveLog& LiveLog::instance()
{
    static auto* const log = new LiveLog; // the library never lets go of its logger
    return *log;
}

void LiveLog::init(const std::string& folder, const std::string& name, char level)
{
    using LoggerInstance = ILoggerInterface* (*)();
    const QString library =
        QCoreApplication::applicationDirPath() + QStringLiteral("/LoggerDllTrelioFrame.dll");
    const auto resolved = reinterpret_cast<LoggerInstance>(QLibrary::resolve(library, "loggerInstance"));
    m_file = resolved ? resolved() : nullptr;
    if (m_file) {
        m_file->init(folder, name, level);
    }
}

void LiveLog::log(char level, const char* text)
{
    if (m_file) {
        m_file->log(level, text);
    }
    Q_EMIT lineAdded(parsed(level, QString::fromUtf8(text)));
}
