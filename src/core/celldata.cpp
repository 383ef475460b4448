#include "core/celldata.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zel3D {

namespace {

bool isFinite(const QVector3D& v)
{
    return std::isfinite(v.x()) && std::isfinite(v.y()) && std::isfinite(v.z());
}

// QVector3D::normalized(), QVector3D::normal() and so on, to the bit, but compiled into the loops over all
// cells: the calls cost as much as the normals.
QVector3D normalized(const QVector3D& v)
{
    const auto x = double(v.x());
    const auto y = double(v.y());
    const auto z = double(v.z());
    const double squared = x * x + y * y + z * z;
    if (qFuzzyIsNull(squared - 1.0))
        return v;
    if (qFuzzyIsNull(squared))
        return QVector3D();
    const double length = std::sqrt(squared);
    return QVector3D(float(x / length), float(y / length), float(z / length));
}

// The unit normal of a corner from the places of the corners before and after it.
QVector3D unitNormal(const QVector3D& here, const QVector3D& next, const QVector3D& previous)
{
    const QVector3D a = next - here;
    const QVector3D b = previous - here;
    return normalized(QVector3D(a.y() * b.z() - a.z() * b.y(), a.z() * b.x() - a.x() * b.z(),
                                a.x() * b.y() - a.y() * b.x()));
}

// Empties a vector, which keeps its capacity. A shared one is not copied first.
template <class T>
void empty(QVector<T>& vector)
{
    if (vector.isDetached()) {
        vector.resize(0);
        return;
    }
    QVector<T> fresh;
    fresh.reserve(vector.capacity());
    vector.swap(fresh);
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
    empty(cells);
    empty(vertices);
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
            const QVector3D normal = unitNormal(here, next, previous);
            // Not so at a corner that is missing or so far away that the area overflows.
            if (isFinite(normal))
                normals[current] += normal;
        }
    }
    for (QVector3D& normal : vertexNormals)
        normal = normalized(normal);
    // What a vertex that went missing after setData() still has.
    for (int i = 0; missing && i < vertices.size(); ++i) {
        if (!isFinite(vertices.at(i)))
            normals[i] = QVector3D();
    }
}

// The same normal at all three corners.
void CellData::addTriangle(const QVector<unsigned int>& cell, QVector3D* normals) const
{
    const QVector3D normal = unitNormal(vertices.at(int(cell.at(0))), vertices.at(int(cell.at(1))),
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
