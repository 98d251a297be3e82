#include "RecordingLogger.h"

#include <QMutexLocker>

void RecordingLogger::init(const std::string& folder, const std::string& name, char level)
{
    const QMutexLocker lock(&m_mutex);
    m_inits += QString::fromStdString(folder) + QLatin1Char('|') + QString::fromStdString(name) +
               QLatin1Char('|') + QString::number(static_cast<unsigned char>(level));
}

void RecordingLogger::log(char level, const char* text)
{
    const QMutexLocker lock(&m_mutex);
    m_lines += QString(QLatin1Char(level)) + QLatin1Char(' ') + QString::fromUtf8(text);
}

QStringList RecordingLogger::take()
{
    const QMutexLocker lock(&m_mutex);
    QStringList lines;
    lines.swap(m_lines);
    return lines;
}

QStringList RecordingLogger::inits() const
{
    const QMutexLocker lock(&m_mutex);
    return m_inits;
}
