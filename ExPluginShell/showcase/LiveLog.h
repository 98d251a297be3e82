#pragma once

#include <utilsDll/ILoggerInterface.h>

#include <QObject>
#include <QTime>

/// One line of the log.
struct LogLine {
    QTime time;
    char level = 'D';
    QString function; ///< empty if the text does not begin with one
    QString text;
};

/// The host's own logger: passes every line on to the log page and to the product's logger library, where that is
/// found. Thread-safe; lives as long as the process.
class LiveLog : public QObject, public ILoggerInterface
{
    Q_OBJECT

public:
    /// The logger of this process.
    static LiveLog& instance();

    /// Starts the product's logger library in \a folder.
    void init(const std::string& folder, const std::string& name, char level) override;
    void log(char level, const char* text) override;

Q_SIGNALS:
    /// A line came in. Emitted in the thread that logged.
    void lineAdded(const LogLine& line);

private:
    LiveLog();

    ILoggerInterface* m_file = nullptr;
};

Q_DECLARE_METATYPE(LogLine)
