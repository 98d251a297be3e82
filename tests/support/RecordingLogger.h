#pragma once

#include <utilsDll/ILoggerInterface.h>

#include <QMutex>
#include <QString>
#include <QStringList>

#include <utility>

/// A logger that stores its lines, each as "level line", and calls of init(). Thread-safe.
class RecordingLogger : public ILoggerInterface
{
public:
    void init(const std::string& folder, const std::string&, char level) override
    {
        log(level, folder.c_str());
    }
    void log(char level, const char* text) override
    {
        const QMutexLocker lock(&m_mutex);
        m_lines += QString(QLatin1Char(level)) + QLatin1Char(' ') + QString::fromUtf8(text);
    }

    /// Returns the lines since the last call.
    QStringList take()
    {
        const QMutexLocker lock(&m_mutex);
        return std::exchange(m_lines, {});
    }

private:
    QMutex m_mutex;
    QStringList m_lines;
};
