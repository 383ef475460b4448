#include "core/celldata.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zel3D {

namespace {

bool isFinite(const QVector3D& v)
{
    return std::isfinite(v.x()) && std::isfinite(v.y()) && std::isfinite(v.z());
}

} // namespace

CellData::CellData() : Data(1) {}

void CellData::setData(const QVector<QVector3D>& newVertices, const QVector<QVector<unsigned int>>& newCells,
                       double newStepX, double newStepY)
{
    vertices = newVertices;
    cells = newCells;
    vertexNormals.fill(QVector3D(), vertices.size());
    stepX = newStepX;
    stepY = newStepY;
    constexpr float infinity = std::numeric_limits<float>::infinity();
    minimum = QVector3D(infinity, infinity, infinity);
    maximum = -minimum;
    for (const QVector3D& v : qAsConst(vertices)) {
        if (!isFinite(v))
            continue;
        for (int k = 0; k < 3; ++k) {
            minimum[k] = std::min(minimum[k], v[k]);
            maximum[k] = std::max(maximum[k], v[k]);
        }
    }
    calcNormals();
}

void CellData::clear()
{
    minimum = QVector3D();
    maximum = QVector3D();
    cells.resize(0);
    vertices.resize(0);
    missing = false;
}

void CellData::squeeze()
{
    if (!isEmpty())
        return;
    vertices = QVector<QVector3D>();
    vertexNormals = QVector<QVector3D>();
    cells = QVector<QVector<unsigned int>>();
}

bool CellData::isEmpty() const
{
    return cells.isEmpty();
}

void CellData::calcNormals()
{
    missing = !std::all_of(vertices.cbegin(), vertices.cend(), isFinite);
    QVector3D* normals = vertexNormals.data();
    for (const QVector<unsigned int>& cell : qAsConst(cells)) {
        const int corners = cell.size();
        if (corners < 3)
            continue;
        if (corners == 3) {
            addTriangle(cell, normals);
            continue;
        }
        for (int k = 0; k < corners; ++k) {
            const int current = int(cell.at(k));
            const QVector3D& here = vertices.at(current);
            const QVector3D& next = vertices.at(int(cell.at((k + 1) % corners)));
            const QVector3D& previous = vertices.at(int(cell.at((k + corners - 1) % corners)));
            const QVector3D normal = QVector3D::normal(here, next, previous);
            // Not so at a corner that is missing or so far away that the area overflows.
            if (isFinite(normal))
                normals[current] += normal;
        }
    }
    for (QVector3D& normal : vertexNormals)
        normal.normalize();
    // What a vertex that went missing after setData() still has.
    for (int i = 0; missing && i < vertices.size(); ++i) {
        if (!isFinite(vertices.at(i)))
            normals[i] = QVector3D();
    }
}

// The same normal at all three corners.
void CellData::addTriangle(const QVector<unsigned int>& cell, QVector3D* normals) const
{
    const QVector3D normal = QVector3D::normal(vertices.at(int(cell.at(0))), vertices.at(int(cell.at(1))),
                                               vertices.at(int(cell.at(2))));
    if (!isFinite(normal))
        return;
    for (unsigned int corner : cell)
        normals[corner] += normal;
}

bool CellData::isMissing(unsigned int vertex) const
{
    return !isFinite(vertices.at(int(vertex)));
}

} // namespace Zel3D
