// Measures the resource bundles: loading the library with and without them, opening entries, and the calibration
// database stored uncompressed and compressed. Linux; the library is loaded, not linked.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLibrary>
#include <QRegularExpression>
#include <QResource>

#include <algorithm>
#include <vector>

namespace
{

QString beside(const char* name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(name);
}

const char withBundles[] = "UtilsDllTrelioFrame";
const char withoutBundles[] = "UtilsDllWithoutBundles";

/// Nanoseconds of one load; the library is unloaded again.
qint64 loadingTime(const char* name)
{
    QLibrary library(beside(name));
    QElapsedTimer timer;
    timer.start();
    const bool loaded = library.load();
    const qint64 elapsed = timer.nsecsElapsed();
    if (!loaded || !library.unload()) {
        qFatal("%s", qPrintable(library.errorString()));
    }
    return elapsed;
}

qint64 median(std::vector<qint64> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void loadPairs(benchmark::State& state)
{
    constexpr int pairs = 50;
    std::vector<qint64> with;
    std::vector<qint64> without;
    for (auto unused : state) {
        Q_UNUSED(unused)
        for (int pair = 0; pair < pairs; ++pair) {
            with.push_back(loadingTime(withBundles));
            without.push_back(loadingTime(withoutBundles));
        }
    }
    state.counters["with_us"] = double(median(with)) / 1000;
    state.counters["without_us"] = double(median(without)) / 1000;
    state.counters["ratio"] = double(median(with)) / double(median(without));
}
BENCHMARK(loadPairs)->Iterations(1)->Repetitions(5)->Unit(benchmark::kMillisecond);

/// Kilobytes of the library's file that this process has mapped in memory.
double libraryResident()
{
    QFile maps(QStringLiteral("/proc/self/smaps"));
    if (!maps.open(QIODevice::ReadOnly)) {
        return -1;
    }
    double resident = 0;
    bool inLibrary = false;
    for (const QByteArray& line : maps.readAll().split('\n')) {
        if (line.contains(" r--p ") || line.contains(" r-xp ") || line.contains(" rw-p ")) {
            inLibrary = line.contains(withBundles);
        } else if (inLibrary && line.startsWith("Rss:")) {
            resident += line.mid(4).trimmed().split(' ').first().toDouble();
        }
    }
    return resident;
}

double ownMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QRegularExpression anonymous(QStringLiteral("RssAnon:\\s+(\\d+)"));
    return anonymous.match(QString::fromLatin1(status.readAll())).captured(1).toDouble();
}

/// Kilobytes of the 20 MB library that are mapped after loading it, and after opening one entry.
void firstOpen(benchmark::State& state, const char* path)
{
    for (auto unused : state) {
        Q_UNUSED(unused)
        QLibrary library(beside(withBundles));
        library.load();
        state.counters["after_loading_KiB"] = libraryResident();
        const double before = libraryResident();
        QFile file{QLatin1String(path)};
        file.open(QIODevice::ReadOnly);
        const QByteArray content = file.readAll();
        file.close();
        state.counters["by_this_entry_KiB"] = libraryResident() - before;
        state.counters["size_KiB"] = double(content.size()) / 1024;
        library.unload();
    }
}
BENCHMARK_CAPTURE(firstOpen, sheet, ":/qss/custom.qss")->Iterations(1)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(firstOpen, icon, ":/icons/messagebox/info_dark_icon.svg")
    ->Iterations(1)
    ->Unit(benchmark::kMicrosecond);

/// Opening the database and looking at its first page, as a reader does before its first query.
void openDatabase(benchmark::State& state, bool compressed)
{
    // Only the first opening shows the growth: the allocator keeps freed memory.
    static double most[2] = {0, 0};
    QLibrary library(beside(withBundles));
    library.load();
    const QString packed = beside("calibration_compressed.rcc");
    if (compressed && !QResource::registerResource(packed, QStringLiteral("/compressed"))) {
        state.SkipWithError("no compressed bundle");
        return;
    }
    const QString path = compressed ? QStringLiteral(":/compressed/CAFList5.db")
                                    : QStringLiteral(":/calibration/db/CAFList5.db");
    const double before = ownMemory();
    for (auto unused : state) {
        Q_UNUSED(unused)
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        const QByteArray page = file.read(4096);
        if (!page.startsWith("SQLite format 3")) {
            state.SkipWithError("no database");
        }
        state.PauseTiming();
        most[compressed] = std::max(most[compressed], ownMemory() - before);
        state.ResumeTiming();
    }
    state.counters["own_memory_KiB"] = most[compressed];
    state.counters["stored_KiB"] = double(QFile(compressed ? packed : path).size()) / 1024;
    if (compressed) {
        QResource::unregisterResource(packed, QStringLiteral("/compressed"));
    }
    library.unload();
}
BENCHMARK_CAPTURE(openDatabase, stored, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(openDatabase, compressed, true)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
