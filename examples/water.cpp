// Moving data: ripples on water, 60 steps a second. A stone falls again and again.

#include "core/watersurface.h"
#include "example.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"

#include <QTimer>

constexpr int period = 50; // steps from stone to stone

int main(int argc, char* argv[])
{
    Example example(argc, argv);

    Zel3D::SHPlot plot("water", "My company", "My program");
    Zel3D::Look look = Zel3D::Look::light();
    look.gradient.setStops(
        {{0.0, QColor(8, 48, 107)}, {0.5, QColor(66, 146, 198)}, {1.0, QColor(222, 240, 250)}});
    look.majorInterval = 4;
    look.applyTo(plot);
    plot.setKeepProportions(true);
    plot.setPlotStyle(4); // filled
    plot.slotSetTitle("Ripples, 60 steps a second");
    plot.getCoordinateSystem().setAxisNames("x (m)", "y (m)", "Height (cm)");
    // The box and the colours stay as the water moves.
    plot.setFixedHull({{-1.0F, -1.0F, -2.0F}, {1.0F, 1.0F, 2.0F}});
    plot.setBoxScaling(Zel3D::ManualScaling);

    Zel3D::WaterSurface water(plot);
    water.setMesh(128, 128);
    water.setAreaLimits(-1.0, 1.0, -1.0, 1.0);
    int steps = 0;
    const auto advance = [&] {
        if (steps++ % period == 0)
            water.reset(); // a stone falls
        water.timeout();
    };
    while (steps < 110)
        advance();

    Example::light(plot);
    plot.setScale({1.0, 1.0, 0.1});
    plot.fitView(0.72);

    QTimer clock(&plot);
    clock.setTimerType(Qt::PreciseTimer);
    QObject::connect(&clock, &QTimer::timeout, &plot, [&] {
        advance();
        plot.updateGL();
    });
    clock.start(1000 / 60);
    return example.run(plot);
}
