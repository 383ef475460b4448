// The surface plot against the bare floor: load, frame and reload. Ends with a table of ratios.

#include "surfacebench.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <chrono>
#include <cstdio>
#include <map>
#include <string>

namespace {

using bench::Candidate;
using bench::Heights;

enum What { Load, Frame, Reload };
const char* const whatNames[] = {"load", "frame", "reload"};

bool multisampling = false;

double seconds(const std::chrono::steady_clock::time_point& since)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

/// One candidate is shown and warm before its clock runs; every repetition makes a new one.
void measure(benchmark::State& state, What what, bool library)
{
    const auto nodes = int(state.range(0));
    Heights first(nodes);
    Heights second(nodes, 1.0);
    const auto candidate = library ? bench::makeLibrary(multisampling) : bench::makeFloor(multisampling);
    if (!bench::show(*candidate)) {
        state.SkipWithError("the window did not appear");
        return;
    }
    candidate->prepare(first);
    if (what != Load) {
        candidate->load(first);
        candidate->frame();
        candidate->frame();
    }
    bool even = false;
    for (auto _ : state) {
        if (what == Reload)
            candidate->prepare(even ? first : second);
        if (what == Frame)
            candidate->rotate(1.0);
        const auto start = std::chrono::steady_clock::now();
        if (what != Frame)
            candidate->load(what == Reload && !even ? second : first);
        candidate->frame();
        state.SetIterationTime(seconds(start));
        even = !even;
    }
}

/// Collects the medians and closes with the ratio of the library to the floor.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                medians[run.run_name.function_name + '/' + run.run_name.args] = run.GetAdjustedRealTime();
        }
    }
    void Finalize() override
    {
        std::printf("\nMedians in ms, %s\n%-8s %6s %10s %10s %8s\n",
                    multisampling ? "4 samples" : "no multisampling", "what", "nodes", "floor", "library",
                    "ratio");
        for (const char* what : whatNames) {
            for (int nodes : {128, 256, 512, 1024, 2048}) {
                const std::string tail = std::string(what) + '/' + std::to_string(nodes);
                const auto floor = medians.find("floor_" + tail);
                const auto library = medians.find("library_" + tail);
                if (floor == medians.end() || library == medians.end())
                    continue;
                std::printf("%-8s %5d2 %10.2f %10.2f %8.2f\n", what, nodes, floor->second, library->second,
                            library->second / floor->second);
            }
        }
    }

private:
    std::map<std::string, double> medians;
};

void registerAll()
{
    for (int nodes : {128, 256, 512, 1024, 2048}) {
        for (What what : {Load, Frame, Reload}) {
            for (bool library : {false, true}) {
                const std::string name = std::string(library ? "library_" : "floor_") + whatNames[what];
                benchmark::RegisterBenchmark(name.c_str(),
                                             [=](benchmark::State& state) { measure(state, what, library); })
                    ->Arg(nodes)
                    ->UseManualTime()
                    ->Iterations(what == Load  ? 1
                                 : nodes > 512 ? 3
                                               : 10)
                    ->Repetitions(7)
                    ->Unit(benchmark::kMillisecond);
            }
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    for (int i = 1; i < argc; ++i) {
        if (std::string(argv[i]) == "--samples") {
            multisampling = true;
        } else {
            std::fprintf(stderr, "bench_surface: unknown argument %s; use --samples or Google Benchmark's.\n",
                         argv[i]);
            return 1;
        }
    }
    registerAll();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
