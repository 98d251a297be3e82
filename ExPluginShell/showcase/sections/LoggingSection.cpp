#include "Report.h"
#include "Sections.h"

#include <utilsDll/SharedUtils.h>
#include <utilsDll/StorageLocation.h>

#include <QDir>
#include <QFile>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QString logName = QStringLiteral("showcase");

QStringList startUpLines()
{
    QFile file(QDir(CStorageLocation::loggerFilesPath()).filePath(logName + QStringLiteral(".log")));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')).filter(QStringLiteral("initLogger"));
}

} // namespace

void showLogging(Report& report)
{
    if (!isLoggerEnabled()) {
        report.row(QStringLiteral("logger"), QStringLiteral("switched off in the settings"));
        return;
    }
    const int earlier = startUpLines().size();
    ILoggerInterface* const logger = initLoggerForUtilsDll(nullptr, logName);
    report.check(QStringLiteral("initLoggerForUtilsDll"),
                 logger ? QStringLiteral("logger started") : QStringLiteral("no logger"), logger);
    if (!logger) {
        return;
    }
    report.check(QStringLiteral("a second call"), QStringLiteral("the same logger"),
                 initLoggerForUtilsDll(nullptr, QStringLiteral("other")) == logger);
    logger->log(LogLevel::Error, "showcase: this error line makes the logger write out everything before it");
    const QStringList lines = startUpLines();
    const int added = lines.size() - (lines.size() < earlier ? 0 : earlier); // fewer: a new file was begun
    report.check(QStringLiteral("new start-up lines in the log file"), QString::number(added), added == 5);
    for (const QString& line : lines.mid(qMax(0, lines.size() - 5))) {
        report.row(QString(), line.trimmed());
    }
}
