#pragma once

#include "core/data.h"

#include <QVector>

namespace Zel3D {

/// Free points joined into polygon cells.
///
/// A vertex with a coordinate that is not finite is missing: it widens no bounding box, the cell corners that
/// it takes part in give nothing to a normal, and its own normal is zero.
class VORANPLOT_EXPORT CellData : public Data
{
public:
    /// No vertices and no cells.
    CellData();

    /// Stores the vertices, the cells (each a polygon given as indices into the vertices, in winding order)
    /// and the steps; box and normals follow. Without a finite vertex the box runs from +infinity to
    /// -infinity.
    void setData(const QVector<QVector3D>& vertices, const QVector<QVector<unsigned int>>& cells,
                 double stepX, double stepY);
    /// Drops vertices and cells but keeps their capacity, and the normals as they are.
    void clear() override;
    /// Frees what clear() keeps, once there are no cells; the normals, too.
    void squeeze();
    bool isEmpty() const override;

    /// The k-th corner of a cell.
    QVector3D& operator()(unsigned int cell, unsigned int k) { return vertices[index(cell, k)]; }
    const QVector3D& operator()(unsigned int cell, unsigned int k) const
    {
        return vertices.at(index(cell, k));
    }
    const QVector<QVector3D>& getVertices() const { return vertices; }
    /// One unit vector, or zero, a vertex.
    const QVector<QVector3D>& getVertexNormals() const { return vertexNormals; }
    const QVector<QVector<unsigned int>>& getCells() const { return cells; }

    /// Adds the unit normals of all cell corners to the normals of their vertices and makes these unit
    /// vectors. Cells of fewer than three corners give nothing. setData() zeroes the normals before; this
    /// does not.
    void calcNormals();

    /// Whether the vertex is a hole.
    bool isMissing(unsigned int vertex) const;
    /// Whether any vertex is a hole, as setData() or calcNormals() found it last.
    bool hasMissing() const { return missing; }

private:
    void addTriangle(const QVector<unsigned int>& cell, QVector3D* normals) const;
    int index(unsigned int cell, unsigned int k) const { return int(cells.at(int(cell)).at(int(k))); }

    QVector<QVector3D> vertices;
    QVector<QVector3D> vertexNormals;
    QVector<QVector<unsigned int>> cells;
    bool missing = false;
};

} // namespace Zel3D
