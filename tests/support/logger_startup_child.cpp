// Starts the logger once, in a process of its own, and notes what it got in "result.txt".
// Arguments: "host" or "none" (whether a logger is handed in), then the log name. "static" prints what is logged
// when the temporary settings are a static object.

#include "RecordingLogger.h"

#include <utilsDll/LoggerStartup.h>
#include <utilsDll/Settings.h>
#include <utilsDll/StorageLocation.h>
#include <utilsDll/TemporarySettings.h>

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace
{

struct PrintingLogger : ILoggerInterface {
    void init(const std::string&, const std::string&, char) override {}
    void log(char, const char* line) override { std::puts(line); }
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("static")) {
        static PrintingLogger printer;
        static CTemporarySettings temporary(nullptr);
        TOLVAN_NAMESPACE::initLoggerForUtilsDll(&printer, QString());
        TOLVAN_NAMESPACE::CSettings::setTemporarySettings(temporary);
        static const auto* const settings = new TOLVAN_NAMESPACE::CSettings; // still there at the end
        return settings ? 0 : 1;
    }
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
