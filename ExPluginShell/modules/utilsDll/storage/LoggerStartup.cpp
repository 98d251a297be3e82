#include "LoggerStartup.h"

#include "ApplicationState.h"
#include "BuildIdentification.h"
#include "frame/Logging.h"
#include "platform/Modules.h"
#include "StorageLocation.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QLibrary>

#include <iostream>

namespace TOLVAN_NAMESPACE
{

namespace
{

const QString loggerLibrary = QStringLiteral("LoggerDllTrelioFrame.dll");

using LoggerInstance = ILoggerInterface* (*)();

ILoggerInterface* loggerFrom(const QString& fileName)
{
    // The static function keeps the library loaded.
    const auto instance = reinterpret_cast<LoggerInstance>(QLibrary::resolve(fileName, "loggerInstance"));
    return instance ? instance() : nullptr;
}

/// Path of the logger library beside this library or the program; its plain name if it is in neither folder.
QString loggerLibraryPath()
{
    const QString folders[] = {Platform::ownLibraryFolder(), QCoreApplication::instance()
                                                                 ? QCoreApplication::applicationDirPath()
                                                                 : QString()};
    for (const QString& folder : folders) {
        const QString path = folder + QLatin1Char('/') + loggerLibrary;
        if (!folder.isEmpty() && QFileInfo(path).isFile()) {
            return path;
        }
    }
    // A deep copy: Qt remembers the names of loaded libraries, and may outlive this library's literals.
    return QString(loggerLibrary.constData(), loggerLibrary.size());
}

char levelLetter(const QString& level)
{
    return level.isEmpty() ? '\0' : level.at(0).toLatin1();
}

/// The logger of the logger library, initialised; null if there is none or it throws.
ILoggerInterface* startedLogger(const QString& logName)
try {
    ILoggerInterface* const logger = loggerFrom(loggerLibraryPath());
    if (logger) {
        const std::string folder = CStorageLocation::loggerFilesPath().toStdString();
        const std::string name = logName.toStdString();
        std::cout << "Initializing logger in " << folder << " / " << name << std::endl;
        logger->init(folder, name, levelLetter(getLogLevel()));
    }
    return logger;
} catch (...) {
    return nullptr;
}

void writeStartUpLines()
{
    const char* const function = "TOLVAN_NAMESPACE::initLogger";
    UTILSDLL_LOG(LogLevel::Debug, function)
        << "Current time (UTC): " << QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    UTILSDLL_LOG(LogLevel::Debug, function)
        << "Trelio Frame Version: " << BuildIdentification::productVersion;
    UTILSDLL_LOG(LogLevel::Debug, function) << "UID: " << getUserID();
    UTILSDLL_LOG(LogLevel::Debug, function) << "CE version: " << BuildIdentification::ceVersion;
    UTILSDLL_LOG(LogLevel::Information, function)
        << "Starting QZ application for branch '" << BuildIdentification::branch << "', hash '"
        << BuildIdentification::hash << "'";
}

ILoggerInterface* initLogger(ILoggerInterface* logger, const QString& logName)
{
    if (Logging::logger()) {
        return Logging::logger();
    }
    if (!isLoggerEnabled()) {
        return nullptr;
    }
    if (logger) {
        Logging::setLogger(logger);
        return logger;
    }
    Logging::setLogger(startedLogger(logName));
    if (!Logging::logger()) {
        std::cerr << "***ERROR*** logger dll could not be loaded from  " << loggerLibrary.toStdString()
                  << std::endl;
        return nullptr;
    }
    writeStartUpLines();
    return Logging::logger();
}

} // namespace

ILoggerInterface* initLoggerForUtilsDll(ILoggerInterface* logger, const QString& logName)
{
    return initLogger(logger, logName);
}

} // namespace TOLVAN_NAMESPACE
