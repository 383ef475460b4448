#pragma once

#include "core/data.h"
#include "core/tofloat.h"

#include <QVector>

#include <array>
#include <cmath>
#include <memory>

namespace Zel3D {

/// One node of a grid: three arrays of three doubles (x, y, z), owned by the grid. Copying a node copies the
/// pointers.
struct GridDataInfo
{
    double* value = nullptr;       ///< where the node is drawn; x grows with the column, y with the row
    double* normal = nullptr;      ///< the unit normal, or zero
    double* selectValue = nullptr; ///< the coordinates as the caller gave them
};

/// A regular grid of nodes.
///
/// A node with a coordinate that is not finite is missing: a hole. It widens no bounding box, gives nothing
/// to the normals around it and has a zero normal itself.
class VORANPLOT_EXPORT GridData : public Data
{
public:
    /// An empty grid.
    GridData();
    /// A grid of nodes whose values are undefined until written.
    GridData(unsigned int columns, unsigned int rows);

    /// Drops all nodes, through clear(), and makes new ones whose values are undefined until written.
    void setSize(unsigned int columns, unsigned int rows);
    /// Stores the range; changes no node.
    void setRange(double xMin, double xMax, double yMin, double yMax);
    double getXMin() const { return xMin; }
    double getXMax() const { return xMax; }
    double getYMin() const { return yMin; }
    double getYMax() const { return yMax; }

    /// Fills the grid from heights z[column][row] over a range, which is stored; box and normals follow.
    ///
    /// A descending range is drawn ascending from its smaller end, while select() reports the caller's
    /// descending coordinates. With a single column or row the steps stay what they were.
    void setData(double** z, unsigned int columns, unsigned int rows, double xMin, double xMax, double yMin,
                 double yMax);
    /// Fills the grid from points[column][row] and stores the steps as given; box and normals follow. The
    /// range stays, and what select() reports is undefined.
    void setData(QVector3D** points, unsigned int columns, unsigned int rows, double stepX, double stepY);

    void clear() override;
    bool isEmpty() const override;

    unsigned int columns() const { return unsigned(grid.size()); }
    /// The number of rows, 0 for an empty grid.
    unsigned int rows() const { return isEmpty() ? 0U : unsigned(grid.first().size()); }

    /// Component k (0 x, 1 y, 2 z) of the node's value.
    double valueAt(unsigned int column, unsigned int row, int k) const { return node(column, row).value[k]; }
    QVector3D valueAt(unsigned int column, unsigned int row) const { return vector(node(column, row).value); }
    QVector3D normalAt(unsigned int column, unsigned int row) const
    {
        return vector(node(column, row).normal);
    }
    /// The node's coordinates as the caller gave them.
    QVector3D select(unsigned int column, unsigned int row) const
    {
        return vector(node(column, row).selectValue);
    }
    /// Whether select() reports anything: the grid was filled from heights.
    bool hasSelectValues() const { return selectWritten; }
    /// The three doubles that select() reports.
    const double* selectVectorAt(unsigned int column, unsigned int row) const
    {
        return node(column, row).selectValue;
    }
    /// Three doubles that the caller may write; calcNormals() must follow. The values of a column's nodes
    /// follow one another in memory, and so do the normals.
    double* valueVectorAt(unsigned int column, unsigned int row) { return node(column, row).value; }
    const double* valueVectorAt(unsigned int column, unsigned int row) const
    {
        return node(column, row).value;
    }
    double* normalVectorAt(unsigned int column, unsigned int row) { return node(column, row).normal; }
    const double* normalVectorAt(unsigned int column, unsigned int row) const
    {
        return node(column, row).normal;
    }

    /// Computes all normals anew from the values, in single precision: the unit sum of the unit normals of
    /// the quarter triangles between a node and its neighbours. Call it after writing through
    /// valueVectorAt().
    void calcNormals();
    /// Replaces the drawn coordinates of the marked directions (x, y, z) by their decimal exponents and
    /// brings box, steps and normals up to date; select() still reports the plain values. A node with a value
    /// at or below zero becomes missing. Returns how many nodes became missing.
    int convertToExponents(const std::array<bool, 3>& directions);

    /// Subtracts from the drawn coordinates of the marked directions what dataOrigin() says for them and
    /// brings box and normals up to date; select() still reports what was given. Returns what was subtracted.
    std::array<double, 3> moveOrigin(const std::array<bool, 3>& directions);

    /// Whether the node is a hole.
    bool isMissing(unsigned int column, unsigned int row) const
    {
        const double* value = node(column, row).value;
        return !(std::isfinite(value[0]) && std::isfinite(value[1]) && std::isfinite(value[2]));
    }
    /// Whether any node is a hole, as calcNormals() found it last.
    bool hasMissing() const { return missing; }

private:
    const GridDataInfo& node(unsigned int column, unsigned int row) const
    {
        return grid.at(int(column)).at(int(row));
    }
    static QVector3D vector(const double* values)
    {
        return QVector3D(toFloat(values[0]), toFloat(values[1]), toFloat(values[2]));
    }

    QVector<QVector<GridDataInfo>> grid;
    // The arrays of all nodes: all values, then all normals, then all select values, each column by column.
    std::unique_ptr<double[]> block;
    double xMin = 0.0;
    double xMax = 0.0;
    double yMin = 0.0;
    double yMax = 0.0;
    bool missing = false;
    bool selectWritten = false;
};

} // namespace Zel3D

Q_DECLARE_TYPEINFO(Zel3D::GridDataInfo, Q_PRIMITIVE_TYPE);
