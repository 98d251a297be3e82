// Starts the logger once, in a process of its own, and notes what it got in "result.txt".
// Arguments: "host" or "none" (whether a logger is handed in), then the log name.

#include "RecordingLogger.h"

#include <utilsDll/LoggerStartup.h>
#include <utilsDll/StorageLocation.h>

#include <QCoreApplication>
#include <QFile>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    RecordingLogger host;
    RecordingLogger* const given = arguments.value(1) == QLatin1String("host") ? &host : nullptr;

    ILoggerInterface* const first = TOLVAN_NAMESPACE::initLoggerForUtilsDll(given, arguments.value(2));
    ILoggerInterface* const second = TOLVAN_NAMESPACE::initLoggerForUtilsDll(given, QStringLiteral("again"));

    QFile result(QStringLiteral("result.txt"));
    if (!result.open(QIODevice::WriteOnly)) {
        return 2;
    }
    const auto name = [&](const ILoggerInterface* logger) {
        return !logger ? "null" : logger == &host ? "host" : "library";
    };
    result.write(QByteArray(name(first)) + ' ' + name(second) + ' ' +
                 QByteArray::number(host.inits().size() + host.take().size()) + ' ' +
                 TOLVAN_NAMESPACE::CStorageLocation::loggerFilesPath().toUtf8());
    return 0;
}
