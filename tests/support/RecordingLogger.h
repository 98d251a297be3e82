#pragma once

#include <utilsDll/ILoggerInterface.h>

#include <QMutex>
#include <QString>
#include <QStringList>

/// A logger that stores its lines, each as "level line". Thread-safe.
class RecordingLogger : public ILoggerInterface
{
public:
    void init(const std::string& folder, const std::string& name, char level) override;
    void log(char level, const char* text) override;

    /// Returns the lines since the last call.
    QStringList take();
    /// Arguments of the calls of init(), each as "folder|name|level code".
    QStringList inits() const;

private:
    mutable QMutex m_mutex;
    QStringList m_lines;
    QStringList m_inits;
};
