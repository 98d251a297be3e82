// The frame's own cost beside its peers: logging, settings, the suite file.

#include "frame/Logging.h"
#include "platform/SharedFile.h"
#include "Settings.h"
#include "StorageLocation.h"
#include "TemporarySettings.h"

#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/sinks/null_sink.h>
#include <spdlog/spdlog.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>

using namespace TOLVAN_NAMESPACE;

namespace
{

const QString writeLog = QStringLiteral("--write-log");

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const char* const function = "TOLVAN_NAMESPACE::CSettings::setTemporarySettings";

/// The companion logger without its files: level check and formatting into nothing.
class NullSinkLogger : public ILoggerInterface
{
public:
    void init(const std::string&, const std::string&, char) override {}
    void log(char level, const char* text) override
    {
        m_logger.log(level == LogLevel::Error ? spdlog::level::err : spdlog::level::info,
                     spdlog::string_view_t(text));
    }
    spdlog::logger& spd() { return m_logger; }

private:
    spdlog::logger m_logger{"null", std::make_shared<spdlog::sinks::null_sink_mt>()};
};

NullSinkLogger nullSink;
std::atomic<ILoggerInterface*> pointerTestedByHand{nullptr};

void noLogger_pointerTestedByHand(benchmark::State& state)
{
    int number = 7;
    for (auto _ : state) {
        if (ILoggerInterface* const logger = pointerTestedByHand.load(std::memory_order_acquire)) {
            logger->log(LogLevel::Error, "text");
        }
        benchmark::DoNotOptimize(number);
    }
}
BENCHMARK(noLogger_pointerTestedByHand);

void noLogger_logStatement(benchmark::State& state)
{
    int number = 7;
    for (auto _ : state) {
        UTILSDLL_LOG(LogLevel::Error, function) << "Cannot find language with ID: " << number;
        benchmark::DoNotOptimize(number);
    }
}
BENCHMARK(noLogger_logStatement);

void nullSink_spdlogItself(benchmark::State& state)
{
    int number = 7;
    for (auto _ : state) {
        nullSink.spd().log(spdlog::level::err, "{}: Cannot find language with ID: {}", function, number);
        benchmark::DoNotOptimize(number);
    }
}
BENCHMARK(nullSink_spdlogItself);

void nullSink_logStatement(benchmark::State& state)
{
    Logging::setLogger(&nullSink); // for good: runs after the two without a logger
    int number = 7;
    for (auto _ : state) {
        UTILSDLL_LOG(LogLevel::Error, function) << "Cannot find language with ID: " << number;
        benchmark::DoNotOptimize(number);
    }
}
BENCHMARK(nullSink_logStatement);

const QString key = QStringLiteral("group/key");

std::unique_ptr<QSettings> plainNative()
{
    return std::make_unique<QSettings>(QStringLiteral("Tolvan"), QStringLiteral("Trelio Frame"));
}

void value_plainQSettings(benchmark::State& state)
{
    for (auto _ : state) {
        QSettings settings(QStringLiteral("Tolvan"), QStringLiteral("Trelio Frame"));
        benchmark::DoNotOptimize(settings.value(key, 0).toInt());
    }
}
BENCHMARK(value_plainQSettings);

void value_CSettings(benchmark::State& state)
{
    for (auto _ : state) {
        CSettings settings;
        benchmark::DoNotOptimize(settings.value(key, 0).toInt());
    }
}
BENCHMARK(value_CSettings);

void setValue_plainQSettings(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        QSettings settings(QStringLiteral("Tolvan"), QStringLiteral("Trelio Frame"));
        settings.setValue(key, ++i);
    }
}
BENCHMARK(setValue_plainQSettings);

void setValue_CSettings(benchmark::State& state)
{
    int i = 0;
    for (auto _ : state) {
        CSettings settings;
        settings.setValue(key, ++i);
    }
}
BENCHMARK(setValue_CSettings);

void temporaryValue_plainQSettings(benchmark::State& state)
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
    settings.setValue(key, 1);
    settings.sync();
    for (auto _ : state) {
        benchmark::DoNotOptimize(settings.value(key, 0).toInt());
    }
}
BENCHMARK(temporaryValue_plainQSettings);

void temporaryValue_CSettings(benchmark::State& state)
{
    CTemporarySettings temporary(nullptr);
    CSettings::setTemporarySettings(temporary);
    CSettings settings;
    settings.setValue(key, 1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(settings.value(key, 0).toInt());
    }
}
BENCHMARK(temporaryValue_CSettings);

void temporarySetValue_plainQSettings(benchmark::State& state)
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
    int i = 0;
    for (auto _ : state) {
        settings.setValue(key, ++i);
        settings.sync();
    }
}
BENCHMARK(temporarySetValue_plainQSettings)->UseRealTime();

void temporarySetValue_CSettings(benchmark::State& state)
{
    CTemporarySettings temporary(nullptr);
    CSettings::setTemporarySettings(temporary);
    CSettings settings;
    int i = 0;
    for (auto _ : state) {
        settings.setValue(key, ++i);
    }
}
BENCHMARK(temporarySetValue_CSettings)->UseRealTime();

QString suiteFileOfThousandGroups()
{
    const QString path = CStorageLocation::getOstraUserConfigFileLocation();
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write("<configuration>\n");
        for (int i = 0; i < 1000; ++i) {
            file.write(QStringLiteral("    <group name=\"group %1\">\n"
                                      "        <key value=\"%1\" type=\"int\" name=\"key\"/>\n    </group>\n")
                           .arg(i)
                           .toUtf8());
        }
        file.write("</configuration>\n");
    }
    return path;
}

void suiteFile_parsedByQDomDocumentAlone(benchmark::State& state)
{
    const QString path = suiteFileOfThousandGroups();
    for (auto _ : state) {
        QFile file(path);
        QDomDocument document;
        const bool parsed =
            file.open(QIODevice::ReadOnly) && document.setContent(QString::fromUtf8(file.readAll()));
        benchmark::DoNotOptimize(parsed);
    }
}
BENCHMARK(suiteFile_parsedByQDomDocumentAlone);

void suiteFile_oneKeyRead(benchmark::State& state)
{
    suiteFileOfThousandGroups();
    for (auto _ : state) {
        benchmark::DoNotOptimize(CSettings::getSettingFromOstraUserConfigFile(
            QStringLiteral("group 999"), QStringLiteral("key"), QString()));
    }
}
BENCHMARK(suiteFile_oneKeyRead);

void suiteFile_replacedByQSaveFile(benchmark::State& state)
{
    const QString path = suiteFileOfThousandGroups();
    const QByteArray text = contentOf(path);
    for (auto _ : state) {
        QSaveFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(text);
        benchmark::DoNotOptimize(file.commit());
    }
}
BENCHMARK(suiteFile_replacedByQSaveFile)->UseRealTime();

void suiteFile_replaced(benchmark::State& state)
{
    const QString path = suiteFileOfThousandGroups();
    const QByteArray text = contentOf(path);
    for (auto _ : state) {
        benchmark::DoNotOptimize(Platform::replaceSharedFile(path, text));
    }
}
BENCHMARK(suiteFile_replaced)->UseRealTime();

const char* const logText = "TOLVAN_NAMESPACE::moveFileToTrash: cannot move C:\\pictures\\holiday\\0815.jpg";

void logFile_spdlogBasicSinkWithFlush(benchmark::State& state)
{
    const QTemporaryDir folder;
    spdlog::logger logger("basic", std::make_shared<spdlog::sinks::basic_file_sink_mt>(
                                       folder.filePath(QStringLiteral("basic.log")).toStdString()));
    logger.flush_on(spdlog::level::trace);
    for (auto _ : state) {
        logger.log(spdlog::level::info, logText);
    }
}
BENCHMARK(logFile_spdlogBasicSinkWithFlush)->UseRealTime();

/// The companion logger library, which is loaded as LoggerStartup does.
ILoggerInterface* companionLogger(const QString& folder)
{
    const auto instance = reinterpret_cast<ILoggerInterface* (*)()>(QLibrary::resolve(
        QCoreApplication::applicationDirPath() + QStringLiteral("/LoggerDllTrelioFrame.dll"),
        "loggerInstance"));
    ILoggerInterface* const logger = instance ? instance() : nullptr;
    if (!logger) {
        qFatal("the logger library can't be loaded");
    }
    logger->init(folder.toStdString(), "bench", LogLevel::Debug);
    return logger;
}

void logFile_companionLogger(benchmark::State& state)
{
    const QTemporaryDir folder;
    ILoggerInterface* const logger = companionLogger(folder.path());
    QProcess other; // writes the same log
    if (state.range(0) == 2) {
        other.start(QCoreApplication::applicationFilePath(), {writeLog, folder.path()});
        other.waitForReadyRead();
    }
    for (auto _ : state) {
        logger->log(LogLevel::Information, logText);
    }
    other.kill();
    other.waitForFinished();
}
BENCHMARK(logFile_companionLogger)->ArgName("processes")->Arg(1)->Arg(2)->UseRealTime();

int writeLogForEver(const QString& folder)
{
    ILoggerInterface* const logger = companionLogger(folder);
    std::puts("writing");
    std::fflush(stdout);
    for (;;) {
        logger->log(LogLevel::Information, logText);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home; // never the user's own settings
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    const QCoreApplication application(argc, argv);
    if (argc == 3 && QString::fromLocal8Bit(argv[1]) == writeLog) {
        return writeLogForEver(QString::fromLocal8Bit(argv[2]));
    }
    plainNative()->setValue(key, 1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
