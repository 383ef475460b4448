// A surface from a function: the amplitude of light behind a small round hole, 2 J1(r) / r.

#include "core/functionof.h"
#include "example.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"

#include <cmath>

int main(int argc, char* argv[])
{
    Example example(argc, argv);

    Zel3D::SHPlot plot("surface", "My company", "My program");
    Zel3D::Look look = Zel3D::Look::light();
    look.majorInterval = 6;
    look.applyTo(plot);
    plot.setKeepProportions(true);
    plot.setPlotStyle(4); // filled
    plot.slotSetTitle("Light behind a round hole");
    plot.getCoordinateSystem().setAxisNames("x (µm)", "y (µm)", "Amplitude");

    Zel3D::FunctionOf amplitude(plot, [](double x, double y) {
        const double r = std::hypot(x, y);
        return r < 1e-6 ? 1.0 : 2.0 * std::cyl_bessel_j(1.0, r) / r;
    });
    amplitude.setMesh(151, 151);
    amplitude.setAreaLimits(-15.0, 15.0, -15.0, 15.0);
    amplitude.create();

    Example::light(plot);

    plot.setFixedHull({{-15.0F, -15.0F, -0.2F}, {15.0F, 15.0F, 1.0F}}); // round numbers on the axes
    plot.fitView(0.8);
    return example.run(plot);
}
