// What axes, numbers, grid, title and legend add to a frame of a plot. Ends with the difference of the
// medians.

#include "surfacebench.h"

#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

constexpr int frames = 200;

/// The median of a frame in ms while the view turns.
double frameTime(bool furniture)
{
    bench::Heights heights(128);
    const auto candidate = bench::makeLibrary(false);
    auto& plot = static_cast<Zel3D::SHPlot&>(candidate->widget());
    if (!bench::show(*candidate))
        return -1.0;
    candidate->load(heights);
    if (furniture) {
        Zel3D::Look::light().applyTo(plot);
        plot.slotSetTitle("Furniture");
        for (int i = 0; i < 12; ++i)
            plot.getCoordinateSystem()
                .getAxis(Zel3D::AxisType(i))
                .getLabel()
                .getSettings()
                .setText("Name (unit)");
    } else {
        plot.getLegend().setVisible(false);
    }
    plot.setZoom(0.6);
    std::vector<double> times;
    for (int i = 0; i < frames + 20; ++i) {
        candidate->rotate(1.0);
        const auto start = std::chrono::steady_clock::now();
        candidate->frame();
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        if (i >= 20)
            times.push_back(time.count());
    }
    std::nth_element(times.begin(), times.begin() + frames / 2, times.end());
    return times[frames / 2];
}

} // namespace

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    const QApplication application(argc, argv);
    std::printf(
        "Frame of a filled surface of 128 by 128 nodes, 800 by 600, no multisampling; medians in ms\n\n");
    std::printf("| plain | full box | added |\n| --- | --- | --- |\n");
    for (int run = 0; run < 5; ++run) {
        const double plain = frameTime(false);
        const double full = frameTime(true);
        std::printf("| %.2f | %.2f | %.2f |\n", plain, full, full - plain);
    }
    return 0;
}
