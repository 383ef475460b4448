// Steps of the water surface, drawing included, against the bare floor that records and draws a grid of the
// same size and the same heights each frame. Ends with the medians of the steps a second and their ratio.

#include "surfacebench.h"

#include "core/watersurface.h"
#include "plots/shplot.h"

#include <QApplication>
#include <QFile>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <utility>

namespace {

constexpr int nodes = 128;
constexpr int rounds = 7;
constexpr int turns = 15;
constexpr int stepsPerTurn = 12;
constexpr int warmUp = 2; // of each turn

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + std::ptrdiff_t(values.size() / 2), values.end());
    return values[values.size() / 2];
}

template <class Step>
double milliseconds(const Step& step)
{
    const auto start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// The resident set in kB.
long resident()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).simplified().split(' ').first().toLong();
    }
    return -1;
}

void prepare(Zel3D::WaterSurface& water)
{
    water.setMesh(nodes, nodes);
    water.setAreaLimits(-1.0, 1.0, -1.0, 1.0);
    water.reset();
}

/// The heights of a step and what brings them into the floor's box.
struct Picture
{
    bench::Heights heights;
    double zoom; ///< at which the library shows them as large as the floor does
};

Picture pictureOf(const Zel3D::WaterSurface& water)
{
    double low = std::numeric_limits<double>::max();
    double high = -low;
    for (unsigned int i = 0; i < nodes; ++i) {
        for (unsigned int j = 0; j < nodes; ++j) {
            low = std::min(low, double(water.heightAt(i, j)));
            high = std::max(high, double(water.heightAt(i, j)));
        }
    }
    const double depth = high - low;
    // The library's camera sees the sphere around the box of the data, the floor's the one around a cube.
    const double zoom = std::sqrt(8.0 + depth * depth) / (std::sqrt(3.0) * std::max(2.0, depth));
    return {bench::Heights(nodes,
                           [&](int i, int j) {
                               const double height = double(water.heightAt(unsigned(i), unsigned(j)));
                               return 2.0 * (height - low) / depth - 1.0;
                           }),
            zoom};
}

/// Library and floor in short turns, so that what else the machine does meets both. Returns the medians of a
/// step in ms.
std::pair<double, double> round(bool multisampling)
{
    const auto library = bench::makeLibrary(multisampling);
    const auto floor = bench::makeFloor(multisampling);
    if (!bench::show(*library) || !bench::show(*floor))
        return {-1.0, -1.0};
    auto& plot = static_cast<Zel3D::SHPlot&>(library->widget());
    Zel3D::WaterSurface water(plot);
    prepare(water);
    std::vector<double> libraryTimes;
    std::vector<double> floorTimes;
    for (int i = 0; i < turns; ++i) {
        std::vector<Picture> pictures;
        for (int k = 0; k < stepsPerTurn; ++k) {
            pictures.push_back(pictureOf(water));
            plot.setZoom(pictures.back().zoom);
            const double time = milliseconds([&] {
                water.timeout();
                library->frame();
            });
            if (k >= warmUp)
                libraryTimes.push_back(time);
        }
        for (int k = 0; k < stepsPerTurn; ++k) {
            bench::Heights& step = pictures[std::size_t(k)].heights;
            floor->prepare(step);
            const double time = milliseconds([&] {
                floor->load(step);
                floor->frame();
            });
            if (k >= warmUp)
                floorTimes.push_back(time);
        }
    }
    return {median(floorTimes), median(libraryTimes)};
}

/// How far the resident set grows over a thousand steps, in kB.
long growth()
{
    const auto candidate = bench::makeLibrary(false);
    Zel3D::WaterSurface water(static_cast<Zel3D::SHPlot&>(candidate->widget()));
    prepare(water);
    if (!bench::show(*candidate))
        return -1;
    long before = 0;
    for (int i = 0; i < 1200; ++i) {
        if (i == 200)
            before = resident();
        water.timeout();
        candidate->frame();
    }
    return resident() - before;
}

} // namespace

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    const QApplication application(argc, argv);
    const bool multisampling = argc > 1 && std::strcmp(argv[1], "--samples") == 0;
    std::printf("Steps a second, water of %d by %d nodes, window of 800 by 600, %s\n\n"
                "| floor | library | ratio |\n| --- | --- | --- |\n",
                nodes, nodes, multisampling ? "4 samples" : "no multisampling");
    std::vector<double> floors;
    std::vector<double> libraries;
    for (int i = 0; i < rounds; ++i) {
        const std::pair<double, double> times = round(multisampling);
        floors.push_back(times.first);
        libraries.push_back(times.second);
        std::printf("| %.1f | %.1f | %.2f |\n", 1000.0 / floors.back(), 1000.0 / libraries.back(),
                    floors.back() / libraries.back());
    }
    std::printf("| %.1f | %.1f | %.2f, the median |\n", 1000.0 / median(floors), 1000.0 / median(libraries),
                median(floors) / median(libraries));
    std::printf("\nResident memory over a thousand steps: %+ld kB\n", growth());
    return 0;
}
