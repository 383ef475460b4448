// A polygon mesh from an OFF file. Usage: cellmesh [FILE]

#include "example.h"
#include "plots/look.h"
#include "plots/shplot.h"
#include "scene/coordinatesystem.h"

#include <QFile>
#include <QTextStream>

#include <cmath>

namespace {

struct Mesh
{
    QVector<QVector3D> vertices;
    QVector<QVector<unsigned int>> cells;
};

/// False when the text is no OFF file, or ends before its time.
bool readOff(QTextStream& text, Mesh& mesh)
{
    QString word;
    int counts[3] = {}; // of vertices, cells and edges
    text >> word >> counts[0] >> counts[1] >> counts[2];
    if (word != "OFF")
        return false;
    for (int i = 0; i < counts[0] && text.status() == QTextStream::Ok; ++i) {
        float p[3] = {};
        text >> p[0] >> p[1] >> p[2];
        mesh.vertices.append(QVector3D(p[0], -p[2], p[1])); // y is up in the file, z in the plot
    }
    for (int i = 0; i < counts[1] && text.status() == QTextStream::Ok; ++i) {
        unsigned int corners = 0;
        text >> corners;
        QVector<unsigned int> cell;
        for (unsigned int c = 0, vertex = 0; c < corners && text.status() == QTextStream::Ok; ++c) {
            text >> vertex;
            cell.append(vertex);
        }
        mesh.cells.append(cell);
    }
    return text.status() == QTextStream::Ok;
}

} // namespace

int main(int argc, char* argv[])
{
    Example example(argc, argv);
    QFile file(example.file("bunny.off"));
    if (!file.open(QIODevice::ReadOnly))
        return Example::refuse(QString("%1: %2").arg(file.fileName(), file.errorString()));
    QTextStream text(&file);
    Mesh mesh;
    if (!readOff(text, mesh))
        return Example::refuse(QString("%1 is not a whole OFF file.").arg(file.fileName()));

    Zel3D::SHPlot plot("mesh", "My company", "My program");
    Zel3D::Look::light().applyTo(plot);
    plot.setKeepProportions(true);
    plot.setBoxScaling(Zel3D::EqualUnits);
    plot.setPlotStyle(5); // filled and mesh
    plot.slotSetTitle("A scanned rabbit");
    plot.getCoordinateSystem().setAxisNames("x", "y", "Height");
    if (!plot.loadFromData(mesh.vertices, mesh.cells, 1.0, 1.0))
        return Example::refuse(QString("%1 cannot be drawn.").arg(file.fileName()));
    Example::light(plot);
    // The data's box rounded to whole units, but for a hair, puts round numbers on the axes.
    Zel3D::Parallelepiped box = plot.getHull();
    for (int i = 0; i < 3; ++i) {
        box.minimum[i] = std::floor(box.minimum[i] + 0.01F);
        box.maximum[i] = std::ceil(box.maximum[i] - 0.01F);
    }
    plot.setFixedHull(box);
    plot.fitView(0.8);
    return example.run(plot);
}
