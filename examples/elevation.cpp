// An elevation model from an ESRI ASCII grid in degrees. Usage: elevation [FILE]

#include "example.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"

#include <QFile>
#include <QTextStream>

#include <cmath>

namespace {

struct Grid
{
    int columns = 0, rows = 0;
    double south = 0.0, cell = 0.0; // degrees
    QVector<double> heights;        // column after column
};

/// Empty, or what is wrong with the file.
QString readGrid(QFile& file, Grid& grid)
{
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return file.errorString();
    QTextStream text(&file);
    QString name;
    double header[6] = {};
    for (double& number : header)
        text >> name >> number;
    const bool sized = header[0] >= 2.0 && header[0] < 1e4 && header[1] >= 2.0 && header[1] < 1e4;
    if (text.status() != QTextStream::Ok || name != "NODATA_value" || !sized)
        return "the six header lines of a grid of at most 9999 x 9999 heights are missing";
    grid = {int(header[0]), int(header[1]), header[3], header[4], {}};
    grid.heights.resize(grid.columns * grid.rows);
    for (int i = 0; i < grid.heights.size(); ++i) { // row after row, the northern edge first
        double& height = grid.heights[i % grid.columns * grid.rows + grid.rows - 1 - i / grid.columns];
        text >> height;
        height = height == header[5] ? std::nan("") : height;
    }
    return text.status() == QTextStream::Ok ? QString() : QString("there are too few heights");
}

} // namespace

int main(int argc, char* argv[])
{
    Example example(argc, argv);
    Grid grid;
    QFile file(example.file("jacksboro_dem.asc"));
    if (const QString fault = readGrid(file, grid); !fault.isEmpty())
        return Example::refuse(QString("%1: %2.").arg(file.fileName(), fault));
    Zel3D::SHPlot plot("elevation", "My company", "My program");
    Zel3D::Look look = Zel3D::Look::light();
    look.gradient.setStops({{0.0, QColor(62, 118, 72)},
                            {0.3, QColor(160, 184, 110)},
                            {0.6, QColor(206, 178, 122)},
                            {1.0, QColor(150, 100, 70)}});
    look.applyTo(plot);
    plot.setKeepProportions(true);
    plot.setMajorInterval(Zel3D::ZAxis, Zel3D::Linear, 3);
    plot.setPlotStyle(4); // filled
    plot.slotSetTitle("The Jacksboro fault, Tennessee");
    plot.getCoordinateSystem().setAxisNames("East (km)", "North (km)", "Elevation (m)");
    QVector<double*> columns;
    for (int i = 0; i < grid.columns; ++i)
        columns.append(&grid.heights[i * grid.rows]);
    const double north = (grid.rows - 1) * grid.cell * 111.2; // km
    const double east = (grid.columns - 1) * grid.cell * 111.2 * std::cos(grid.south * M_PI / 180.0);
    plot.loadFromData(columns.data(), unsigned(grid.columns), unsigned(grid.rows), 0.0, east, 0.0, north);
    plot.setBoxScaling(Zel3D::ManualScaling);
    plot.setScale({1.0, 1.0, 0.006}); // heights six times as large as they are
    Example::light(plot);
    plot.fitView(0.75);
    plot.setRotation({40.0, 0.0, 25.0});
    plot.setViewportShift({-0.07, 0.0}); // off the legend
    return example.run(plot);
}
