#include "LiveLog.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QMutexLocker>

namespace
{

constexpr int keptLines = 2000;

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
    const LogLine line = parsed(level, QString::fromUtf8(text));
    {
        const QMutexLocker lock(&m_mutex);
        m_lines += line;
        if (m_lines.size() > keptLines) {
            m_lines.removeFirst();
        }
    }
    if (m_file) {
        m_file->log(level, text);
    }
    Q_EMIT lineAdded(line);
}

QVector<LogLine> LiveLog::lines() const
{
    const QMutexLocker lock(&m_mutex);
    return m_lines;
}
