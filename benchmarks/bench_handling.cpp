// What a person waits for who handles a large surface: a step of turning it, in full and as a preview, and a
// move of the mouse over it that picks another node.

#include "surfacebench.h"

#include "plots/shplot.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <vector>

namespace {

using Move = std::function<void(Zel3D::SHPlot&, int)>;

void send(Zel3D::SHPlot& plot, QEvent::Type type, const QPointF& place, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, place, plot.mapToGlobal(place.toPoint()),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&plot, &event);
}

/// In ms: by the clock, and of the processor in all threads of the process.
struct Times
{
    double median = 0.0;
    double worst = 0.0;
    double processor = 0.0; ///< median
};

/// Moves, each with what is painted because of it.
Times times(Zel3D::SHPlot& plot, int count, const Move& move)
{
    std::vector<double> all;
    std::vector<double> processor;
    for (int i = 0; i < count; ++i) {
        const std::clock_t before = std::clock();
        const auto start = std::chrono::steady_clock::now();
        move(plot, i);
        const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
        all.push_back(time.count());
        processor.push_back(1000.0 * double(std::clock() - before) / CLOCKS_PER_SEC);
    }
    std::sort(all.begin(), all.end());
    std::sort(processor.begin(), processor.end());
    return {all[all.size() / 2], all.back(), processor[processor.size() / 2]};
}

Times turning(Zel3D::SHPlot& plot, int count)
{
    send(plot, QEvent::MouseButtonPress, {300, 300}, Qt::LeftButton);
    // The first makes the list of a preview.
    send(plot, QEvent::MouseMove, {302, 300}, Qt::LeftButton);
    const Times all = times(plot, count, [](Zel3D::SHPlot& p, int i) {
        send(p, QEvent::MouseMove, {304.0 + i % 2 * 2, 300}, Qt::LeftButton);
    });
    send(plot, QEvent::MouseButtonRelease, {304, 300}, Qt::NoButton);
    QApplication::processEvents();
    return all;
}

Times hovering(Zel3D::SHPlot& plot, int count)
{
    const Move move = [count](Zel3D::SHPlot& p, int i) {
        send(p, QEvent::MouseMove, {p.width() * (0.35 + 0.3 * i / count), p.height() * 0.5}, Qt::NoButton);
        QApplication::processEvents();
    };
    for (int i = 0; i < 4; ++i)
        times(plot, 1, move);
    return times(plot, count, move);
}

} // namespace

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    const QApplication application(argc, argv);
    const int largest = argc > 1 ? std::atoi(argv[1]) : 2048;
    std::printf(
        "Handling a filled surface of N by N nodes, 800 by 600, a frame for each move of the mouse: ms, "
        "and of processor time in brackets\n\n"
        "| N | turned, full | turned, preview | pick alone | pick, worst | hover with its frame |\n"
        "| --- | --- | --- | --- | --- | --- |\n");
    for (int nodes = std::min(1024, largest); nodes <= largest; nodes *= 2) {
        bench::Heights heights(nodes);
        Zel3D::SHPlot plot("bench", "voran", "bench");
        QLinearGradient gradient;
        gradient.setColorAt(0.0, Qt::blue);
        gradient.setColorAt(1.0, Qt::red);
        plot.setGradient("Blue to red", gradient);
        plot.setPlotStyle(4);
        plot.setLighting(true);
        plot.setAutoRotate(false);
        plot.setPickHighlight(true);
        plot.resize(800, 600);
        plot.show();
        const auto size = unsigned(nodes);
        plot.loadFromData(heights.columns(), size, size, -1.0, 1.0, -1.0, 1.0);
        plot.setRotation({40.0, 0.0, 30.0});
        for (int i = 0; i < 10; ++i)
            QApplication::processEvents();
        plot.updateGL();
        const Times full = turning(plot, 5);
        plot.setPreviewing(true);
        const Times preview = turning(plot, 20);
        plot.setPreviewing(false);
        plot.updateGL();
        plot.setSelecting(true);
        plot.findObjects(QPointF(400, 300), Qt::NoModifier);
        const Times pick = times(plot, 200, [](Zel3D::SHPlot& p, int i) {
            p.blockSignals(true);
            p.findObjects(QPointF(280 + i, 300), Qt::NoModifier);
            p.blockSignals(false);
        });
        const Times hover = hovering(plot, 50);
        std::printf("| %d | %.1f (%.1f) | %.1f (%.1f) | %.2f (%.2f) | %.2f | %.1f (%.1f) |\n", nodes,
                    full.median, full.processor, preview.median, preview.processor, pick.median,
                    pick.processor, pick.worst, hover.median, hover.processor);
        std::fflush(stdout);
    }
    return 0;
}
