// A point cloud: the path of the Lorenz system, coloured by z.

#include "example.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"

#include <QVector>

namespace {

QVector<QVector3D> lorenzPath(int count)
{
    constexpr double step = 0.004;
    double x = 1.0;
    double y = 1.0;
    double z = 20.0;
    QVector<QVector3D> path;
    for (int i = 0; i < count; ++i) {
        const double dx = 10.0 * (y - x);
        const double dy = x * (28.0 - z) - y;
        const double dz = x * y - 8.0 / 3.0 * z;
        x += step * dx;
        y += step * dy;
        z += step * dz;
        path.append(QVector3D(float(x), float(y), float(z)));
    }
    return path;
}

} // namespace

int main(int argc, char* argv[])
{
    Example example(argc, argv);

    Zel3D::SHPlot plot("cloud", "My company", "My program");
    Zel3D::Look::dark().applyTo(plot);
    plot.setKeepProportions(true);
    plot.setPlotStyle(1); // points
    plot.setDotSize(2.0);
    plot.setDotSmooth(true);
    plot.slotSetTitle("Path of the Lorenz system");
    plot.getCoordinateSystem().setAxisNames("x", "y", "z");

    // A cloud is a grid of one column.
    QVector<QVector3D> path = lorenzPath(12000);
    QVector3D* column = path.data();
    plot.loadFromData(&column, 1, unsigned(path.size()), 1.0, 1.0);

    plot.setFixedHull({{-20.0F, -30.0F, 0.0F}, {20.0F, 30.0F, 50.0F}}); // round numbers on the axes
    plot.setMajorInterval(Zel3D::XAxis, Zel3D::Linear, 4);
    plot.setMajorInterval(Zel3D::YAxis, Zel3D::Linear, 6);
    plot.fitView(0.8);
    plot.setRotation({20.0, 0.0, -50.0});
    return example.run(plot);
}
