#pragma once

#include <QColor>
#include <QStringList>
#include <QVector3D>
#include <QVector>

/// Points joined into polygons, as a surface plot takes them.
struct Mesh
{
    QVector<QVector3D> vertices;          ///< each at a place of its own and a corner of at least one cell
    QVector<QRgb> colors;                 ///< of the vertices, or empty where the file has none
    QVector<QVector<unsigned int>> cells; ///< polygons as indices into the vertices, in winding order
    QStringList notes;                    ///< sentences on what was changed or left out while reading
};
