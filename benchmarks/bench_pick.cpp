// A pick on a filled surface beside the plain way, which sends every node under its name.

#include "surfacebench.h"

#include "plots/shplot.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

/// A plot whose picks may send everything.
class Plot : public Zel3D::SHPlot
{
public:
    Plot() : SHPlot("bench", "voran", "bench") {}
    using SHPlot::setPickEverything;
};

struct Times
{
    double first = 0.0;  ///< ms, with the making of what a pick needs
    double median = 0.0; ///< ms
    double worst = 0.0;  ///< ms
    int hits = 0;
};

/// Picks on a way across the plot's window.
Times picks(Plot& plot, int count)
{
    Times times;
    QObject listener;
    QObject::connect(&plot, &Zel3D::ZelGLWidget::selectedObject, &listener,
                     [&](const Zel3D::SelectedObjectsInfo& info) { times.hits += info.valid ? 1 : 0; });
    std::vector<double> all;
    for (int i = 0; i <= count; ++i) {
        const QPointF place(plot.width() * (0.3 + 0.4 * i / count), plot.height() * (0.4 + 0.2 * i / count));
        const auto start = std::chrono::steady_clock::now();
        plot.findObjects(place, Qt::NoModifier);
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        if (i == 0)
            times.first = time.count();
        else
            all.push_back(time.count());
    }
    std::sort(all.begin(), all.end());
    times.median = all[all.size() / 2];
    times.worst = all.back();
    return times;
}

} // namespace

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    const QApplication application(argc, argv);
    const int largest = argc > 1 ? std::atoi(argv[1]) : 2048;
    std::printf("A pick on a filled surface of N by N nodes, 800 by 600; ms\n\n");
    std::printf("| N | first | median | worst | plain way | hits |\n| --- | --- | --- | --- | --- | --- |\n");
    for (int nodes = 128; nodes <= largest; nodes *= 2) {
        bench::Heights heights(nodes);
        Plot plot;
        QLinearGradient gradient;
        gradient.setColorAt(0.0, Qt::blue);
        gradient.setColorAt(1.0, Qt::red);
        plot.setGradient("Blue to red", gradient);
        plot.setPlotStyle(4);
        plot.resize(800, 600);
        plot.show();
        const auto size = unsigned(nodes);
        plot.loadFromData(heights.columns(), size, size, -1.0, 1.0, -1.0, 1.0);
        plot.setRotation({40.0, 0.0, 30.0});
        for (int i = 0; i < 10; ++i)
            QApplication::processEvents();
        plot.setSelecting(true);
        const Times library = picks(plot, 200);
        plot.setPickEverything(true);
        const Times plain = picks(plot, 3);
        std::printf("| %d | %.2f | %.2f | %.2f | %.1f | %d |\n", nodes, library.first, library.median,
                    library.worst, plain.median, library.hits);
        std::fflush(stdout);
    }
    return 0;
}
