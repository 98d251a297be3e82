// The cost of loading and unloading the library, beside Qt Widgets alone, on Linux. Each measurement runs in a
// process that has loaded nothing yet: in one process only the first load would also load Qt. The figure is the
// processor time of that process, so that a busy machine changes it less.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>

#include <dlfcn.h>

namespace
{

const char widgets[] = WIDGETS_FILE;
const char library[] = LIBRARY_FILE;
const char nothing[] = "";

double processorTime()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

/// The child: loads a file and lets it go, in a process that has loaded \a host before.
int loadOnce(const char* file, const char* host)
{
    if (*host && !dlopen(host, RTLD_LAZY)) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    const double start = processorTime();
    void* const handle = dlopen(file, RTLD_LAZY);
    const double loaded = processorTime();
    if (!handle || dlclose(handle) != 0) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    std::printf("%.9f %.9f\n", loaded - start, processorTime() - loaded);
    return 0;
}

void load(benchmark::State& state, const char* file, const char* host)
{
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string command = '"' + program + "\" --load \"" + file + "\" \"" + host + '"';
    for (auto unused : state) {
        static_cast<void>(unused);
        double loading = 0;
        double unloading = 0;
        const std::unique_ptr<FILE, int (*)(FILE*)> child(popen(command.c_str(), "r"), &pclose);
        if (!child || std::fscanf(child.get(), "%lf %lf", &loading, &unloading) != 2) {
            state.SkipWithError("the child could not load it");
            return;
        }
        state.SetIterationTime(loading + unloading);
        state.counters["load_us"] = loading * 1e6;
        state.counters["unload_us"] = unloading * 1e6;
    }
}

void apply(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Iterations(1)->Repetitions(101)->ReportAggregatesOnly()->UseManualTime()->Unit(
        benchmark::kMicrosecond);
}
BENCHMARK_CAPTURE(load, widgetsAlone, widgets, nothing)->Apply(apply);
BENCHMARK_CAPTURE(load, library, library, nothing)->Apply(apply);
BENCHMARK_CAPTURE(load, libraryWhereWidgetsAre, library, widgets)->Apply(apply);

} // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && std::strcmp(argv[1], "--load") == 0) {
        return loadOnce(argv[2], argv[3]);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
