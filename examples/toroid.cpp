// A parametric surface: the ring of the library. Derive from ParametricSurface for your own.

#include "core/toroid.h"
#include "example.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"

int main(int argc, char* argv[])
{
    Example example(argc, argv);

    Zel3D::SHPlot plot("toroid", "My company", "My program");
    Zel3D::Look look = Zel3D::Look::light();
    look.majorInterval = 6;
    look.applyTo(plot);
    plot.setKeepProportions(true);
    plot.setBoxScaling(Zel3D::EqualUnits); // a unit is as long on every axis
    plot.setPlotStyle(5);                  // filled and mesh
    plot.slotSetTitle("A ring with a tilted tube");
    plot.getCoordinateSystem().setAxisNames("x", "y", "z");

    Zel3D::Toroid toroid(plot);
    toroid.setMesh(61, 41);
    toroid.create();

    Example::light(plot);

    plot.setFixedHull({{-3.0F, -3.0F, -1.5F}, {3.0F, 3.0F, 1.5F}}); // round numbers on the axes
    plot.fitView();
    return example.run(plot);
}
