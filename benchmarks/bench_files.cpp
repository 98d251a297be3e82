#include "FileManagement.h"
#include "files/FileSizes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegExp>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>

using namespace TOLVAN_NAMESPACE;

namespace
{
std::atomic<long> allocations{0};
} // namespace

// Qt allocates its texts with malloc: every call is counted on its way to the C library.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* malloc(std::size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

namespace
{

const QString path = QStringLiteral("/home/user/Pictures/2024/Holiday by the sea/IMG_20240703_101500.jpg");

template <class Work>
void measure(benchmark::State& state, Work work)
{
    const long before = allocations;
    for (auto _ : state) {
        work();
    }
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations - before), benchmark::Counter::kAvgIterations);
}

void validatePath(benchmark::State& state)
{
    measure(state, [] { benchmark::DoNotOptimize(validateFileName(path, true)); });
}

/// What the check can't do without.
void cleanedPathAlone(benchmark::State& state)
{
    measure(state, [] { benchmark::DoNotOptimize(QDir::toNativeSeparators(QDir::cleanPath(path))); });
}

/// The last step with the pattern object that the rules name, made once.
void devicePatternAlone(benchmark::State& state)
{
    const QRegExp pattern(QStringLiteral(".*[/\\\\](CON|PRN|AUX|NUL|COM[1-9]|LPT[1-9])"),
                          Qt::CaseInsensitive);
    measure(state, [&] { benchmark::DoNotOptimize(pattern.exactMatch(path)); });
}

void sizeText(benchmark::State& state)
{
    measure(state, [] { benchmark::DoNotOptimize(fileSizeToString(123456789)); });
}

void makeFiles(const QString& folder, int count)
{
    QDir().mkpath(folder);
    for (int i = 0; i < count; ++i) {
        QFile file(folder + QLatin1Char('/') + QString::number(i));
        if (!file.open(QIODevice::WriteOnly) || file.write("x", 1) != 1) {
            std::abort();
        }
    }
}

void trashPerFile(benchmark::State& state)
{
    const QTemporaryDir scratch;
    qputenv("XDG_DATA_HOME", scratch.path().toLocal8Bit());
    constexpr int count = 500;
    const QString folder = scratch.filePath(QStringLiteral("files"));
    for (auto _ : state) {
        state.PauseTiming();
        QDir(scratch.filePath(QStringLiteral("Trash"))).removeRecursively();
        makeFiles(folder, count);
        state.ResumeTiming();
        for (int i = 0; i < count; ++i) {
            if (moveFileToTrash(folder + QLatin1Char('/') + QString::number(i)) != FileOperationSucceeded) {
                state.SkipWithError("a file stays");
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void emptyFolders(benchmark::State& state, bool ours)
{
    const QTemporaryDir scratch;
    for (auto _ : state) {
        state.PauseTiming();
        const QString root = scratch.filePath(QStringLiteral("root"));
        for (int i = 0; i < 100; ++i) {
            makeFiles(root + QLatin1Char('/') + QString::number(i), 100);
        }
        state.ResumeTiming();
        if (!(ours ? removeDirectoryContent(QDir(root)) : QDir(root).removeRecursively())) {
            state.SkipWithError("something stays");
        }
        state.PauseTiming();
        QDir(root).removeRecursively();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * 10000);
}

} // namespace

BENCHMARK(validatePath);
BENCHMARK(cleanedPathAlone);
BENCHMARK(devicePatternAlone);
BENCHMARK(sizeText);
BENCHMARK(trashPerFile)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(emptyFolders, ours, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(emptyFolders, removeRecursively, false)->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
