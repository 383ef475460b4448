// A histogram: where two thousand darts hit, as bars over a grid of cells.

#include "example.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"

#include <QVector>

#include <cmath>
#include <random>

namespace {

constexpr int cells = 24; // across, of one centimetre

/// The hits in each cell, column after column.
QVector<double> throwDarts(int count)
{
    std::mt19937 chance(5);
    std::normal_distribution<double> error(0.0, 4.0);
    QVector<double> hits(cells * cells, std::nan("")); // a hole, as no bar stands there
    for (int i = 0; i < count; ++i) {
        const double along = error(chance);
        const double across = 0.5 * error(chance);
        const int column = int(std::floor((along + across) * 0.7)) + cells / 2;
        const int row = int(std::floor((across - along) * 0.7)) + cells / 2;
        if (column >= 0 && column < cells && row >= 0 && row < cells) {
            double& cell = hits[column * cells + row];
            cell = std::isnan(cell) ? 1.0 : cell + 1.0;
        }
    }
    return hits;
}

} // namespace

int main(int argc, char* argv[])
{
    Example example(argc, argv);

    Zel3D::SHPlot plot("histogram", "My company", "My program");
    Zel3D::Look look = Zel3D::Look::light();
    look.majorInterval = 4;
    look.applyTo(plot);
    plot.setKeepProportions(true);
    plot.setPlotStyle(6); // histogram
    plot.setCylinderRibNumber(4);
    plot.setCylinderAngleZ(45.0);
    plot.setCylinderFrameVisible(true);
    plot.slotSetTitle("Two thousand darts");
    plot.getCoordinateSystem().setAxisNames("x (cm)", "y (cm)", "Hits");

    QVector<double> hits = throwDarts(2000);
    QVector<double*> columns;
    for (int i = 0; i < cells; ++i)
        columns.append(&hits[i * cells]);
    const double end = cells / 2 - 0.5; // the middle of the last cell
    plot.loadFromData(columns.data(), cells, cells, -end, end, -end, end);

    Example::light(plot);

    plot.setFixedHull({{-12.0F, -12.0F, 0.0F}, {12.0F, 12.0F, 40.0F}}); // round numbers on the axes
    plot.fitView(0.8);
    return example.run(plot);
}
