#pragma once

#include "core/columnarray.h"
#include "core/gridmapping.h"

namespace Zel3D {

/// Ripples on a sheet of water whose border is held: every step of the simulation is loaded into the plot.
///
/// The host calls timeout() from a timer of its own and repaints the plot after it.
///
/// \code
/// Zel3D::WaterSurface water(plot);
/// water.setMesh(128, 128);
/// water.setAreaLimits(-1.0, 1.0, -1.0, 1.0);
/// water.reset();
/// connect(&timer, &QTimer::timeout, &plot, [&] { water.timeout(); plot.updateGL(); });
/// \endcode
class VORANPLOT_EXPORT WaterSurface : public GridMapping
{
public:
    WaterSurface();
    explicit WaterSurface(SHPlot& target);
    explicit WaterSurface(SHPlot* target);

    /// Stills the water and gives it a new size. A mesh too large for memory leaves none, with a warning.
    void setMesh(unsigned int columns, unsigned int rows) override;
    using GridMapping::create;
    /// Loads the water as it stands, without a step. Needs three columns and three rows.
    bool create() override;

    /// Drops a stone: raises the heights of 7 by 7 nodes from the middle node on towards higher columns and
    /// rows. What lies beyond the mesh is left out, with a debug message.
    void reset();
    /// One step of the simulation: loads the heights as they are, then moves on. Does nothing without a plot
    /// and with fewer than three columns or rows.
    ///
    /// A vertex outside the restriction has one coordinate corrected, as in ParametricSurface; the heights
    /// themselves are not restricted.
    void timeout();
    /// Frees the heights; the mesh then has no columns and no rows.
    void clear();

    /// Whether timeout() does nothing while the plot is hidden; it runs on at first.
    void setPausedWhenHidden(bool on);
    bool isPausedWhenHidden() const { return pausedWhenHidden; }

    /// The height of the water at a node, which must exist.
    float heightAt(unsigned int column, unsigned int row) const { return current[column][row]; }
    /// The height differences of the neighbours along x and y, lower index minus higher, as loaded last; zero
    /// on the border.
    const QVector3D& slopeAt(unsigned int column, unsigned int row) const { return slopes[column][row]; }

private:
    bool isUsable() const;
    void updateVertices();
    void advance();
    bool load();

    ColumnArray<float> current;
    ColumnArray<float> previous;
    ColumnArray<QVector3D> vertices;
    ColumnArray<QVector3D> slopes;
    bool busy = false;
    bool pausedWhenHidden = false;
};

} // namespace Zel3D
