//! [program]
#include "core/functionof.h"
#include "plots/look.h"
#include "plots/shplot.h"

#include <QApplication>

#include <cmath>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);

    Zel3D::SHPlot plot("ripple", "My company", "My program");
    Zel3D::Look::light().applyTo(plot);
    plot.setPlotStyle(4); // filled

    Zel3D::FunctionOf ripple(plot, [](double x, double y) { return std::cos(std::hypot(x, y)); });
    ripple.setMesh(101, 101);
    ripple.setAreaLimits(-10.0, 10.0, -10.0, 10.0);
    ripple.create();

    plot.fitView();
    plot.resize(800, 600);
    plot.show();
    return QApplication::exec();
}
//! [program]
