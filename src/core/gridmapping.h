#pragma once

#include "core/types.h"

#include <QPointer>

#include <cstddef>

namespace Zel3D {

class SHPlot;

/// A mathematical definition that is sampled over a rectangular area and loaded into a surface plot.
///
/// Set mesh and area, then call create(). The plot is not owned and may be deleted before the mapping, which
/// then has no plot. Loading replaces the data of the plot; the next paint of the plot shows them.
class VORANPLOT_EXPORT GridMapping
{
public:
    virtual ~GridMapping();
    GridMapping(const GridMapping&) = delete;
    GridMapping& operator=(const GridMapping&) = delete;

    /// The number of samples along x (or u) and along y (or v).
    virtual void setMesh(unsigned int columns, unsigned int rows);
    /// Makes \a target the plot of the mapping and samples into it; see create().
    virtual bool create(SHPlot& target);
    /// Samples the definition and loads the result into the plot. Returns whether the plot took the data.
    ///
    /// False, and the plot unchanged: without a plot (with a warning), with fewer columns or rows than the
    /// mapping needs, with a mesh too large for memory (with a warning) and for what the plot refuses (with
    /// its warning), such as an area that is not finite. A sample that is not a finite number becomes a hole.
    virtual bool create() = 0;

    /// The parameter area, ends included. Nothing is ordered: a reversed area runs backwards.
    void setAreaLimits(double xMin, double xMax, double yMin, double yMax);
    /// The box into which results are clamped, infinite at first; each mapping says how. A bound that is not
    /// a number restricts nothing.
    void restrictRange(const Parallelepiped& box);

    unsigned int getColumns() const { return columnCount; }
    unsigned int getRows() const { return rowCount; }
    double getXMin() const { return xMin; }
    double getXMax() const { return xMax; }
    double getYMin() const { return yMin; }
    double getYMax() const { return yMax; }
    const Parallelepiped& getRestriction() const { return restriction; }
    /// The plot, null without one and after it was deleted.
    SHPlot* getPlot() const;

protected:
    GridMapping();
    explicit GridMapping(SHPlot& target);
    explicit GridMapping(SHPlot* target);

    /// The signed distance between samples along x; 0 for fewer than two columns.
    double sampleStepX() const;
    /// The same along y.
    double sampleStepY() const;
    /// Moves a point into the restriction, at most one coordinate of it: the first bound violated in the
    /// order maximum x, y, z, minimum x, y, z is the only one corrected.
    void correct(QVector3D& point) const;
    /// Whether the system would give that much memory for every node, beyond what the plot needs. Warns in
    /// the name of the class when not.
    static bool fitsInMemory(const char* className, unsigned int columns, unsigned int rows,
                             std::size_t bytesPerNode);

private:
    unsigned int columnCount = 0;
    unsigned int rowCount = 0;
    double xMin = 0.0;
    double xMax = 0.0;
    double yMin = 0.0;
    double yMax = 0.0;
    Parallelepiped restriction;
    QPointer<SHPlot> loadedPlot;
};

} // namespace Zel3D
