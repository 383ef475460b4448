// The surface plot against the bare floor: load, frame and reload, and reload of data said to change. Prints
// a table of medians and ratios. Arguments: --samples for 4 samples a pixel, and the numbers of nodes along a
// side.

#include "comparison.h"
#include "surfacebench.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

using bench::Comparison;

/// How often a size is measured: the quick ones more often.
struct Effort
{
    int rounds;  ///< each with new windows, so each with one load
    int repeats; ///< of a frame and a reload in each round
    int loads;   ///< rounds in all; those beyond the first ones only load
};

Effort effort(int nodes)
{
    if (nodes <= 256)
        return {12, 10, 24};
    return nodes <= 1024 ? Effort{8, 6, 20} : Effort{5, 4, 8};
}

bool measure(int nodes, bool multisampling)
{
    const std::string size = std::to_string(nodes);
    Comparison load("load", size);
    Comparison frame("frame", size);
    Comparison reload("reload", size);
    Comparison changing("reload, changing data", size);
    bench::Heights first(nodes);
    bench::Heights second(nodes, 1.0);
    const auto [rounds, repeats, loads] = effort(nodes);
    for (int round = 0; round < loads; ++round) {
        const auto floor = bench::makeFloor(multisampling);
        const auto library = bench::makeLibrary(multisampling);
        if (!bench::show(*floor) || !bench::show(*library))
            return false;
        const auto loadAndFrame = [](bench::Candidate& candidate, bench::Heights& heights) {
            candidate.load(heights);
            candidate.frame();
        };
        const auto reloads = [&](Comparison& comparison) {
            for (int i = 0; i < repeats; ++i) {
                bench::Heights& heights = i % 2 == 0 ? second : first;
                floor->prepare(heights);
                comparison.run([&] { loadAndFrame(*floor, heights); },
                               [&] { loadAndFrame(*library, heights); });
            }
        };
        floor->prepare(first);
        load.run([&] { loadAndFrame(*floor, first); }, [&] { loadAndFrame(*library, first); });
        if (round >= rounds)
            continue;
        reloads(reload);
        bench::compareExtents(floor->widget(), library->widget());
        for (int i = 0; i < repeats; ++i) {
            floor->rotate(1.0);
            library->rotate(1.0);
            frame.run([&] { floor->frame(); }, [&] { library->frame(); });
        }
        static_cast<Zel3D::SHPlot&>(library->widget()).setDataChanging(true);
        reloads(changing);
    }
    for (const Comparison& comparison : {load, frame, reload, changing})
        comparison.print();
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    const QApplication application(argc, argv);
    bool multisampling = false;
    std::vector<int> sizes;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--samples") == 0)
            multisampling = true;
        else if (std::atoi(argv[i]) > 1)
            sizes.push_back(std::atoi(argv[i]));
        else
            return std::fprintf(stderr, "bench_surface: use --samples and numbers of nodes.\n"), 1;
    }
    if (sizes.empty())
        sizes = {128, 256, 512, 1024, 2048};
    Comparison::printHead(multisampling ? "Surface of N by N nodes, 4 samples"
                                        : "Surface of N by N nodes, no multisampling");
    for (int nodes : sizes) {
        if (!measure(nodes, multisampling)) {
            std::fprintf(stderr, "bench_surface: a window did not appear\n");
            return 1;
        }
    }
    return 0;
}
