#pragma once

#include "core/export.h"
#include "core/types.h"

class QColor;

namespace Zel3D {

class BasePlot;

/// A small marker that a plot draws at data points.
///
/// For every point to mark, the plot calls draw() between drawBegin() and drawEnd(), or select() while
/// picking; both need the plot's context to be current. The plot keeps its own copy of an addition (clone()).
class VORANPLOT_EXPORT Addition
{
public:
    virtual ~Addition();

    /// A new copy, owned by the caller.
    virtual Addition* clone() const = 0;
    /// Prepares a run of draw() calls; here: begin().
    virtual void drawBegin();
    /// Ends a run of draw() calls; here: end().
    virtual void drawEnd();
    /// Hooks for what must be set up before a run and put back after it; empty here.
    virtual void begin();
    virtual void end();
    /// The plot whose colours and data the marker uses; not owned. Without one, a marker that needs it draws
    /// nothing.
    virtual void setPlot(const BasePlot& owner);
    /// What the marker is placed at: 0 for the vertices of the data. Plots place markers of type 0 only.
    virtual int type() const = 0;
    /// Draws the marker at a point in scene units.
    virtual void draw(const QVector3D& p) = 0;
    /// Draws what a pick can hit at the point; here: what draw() draws.
    virtual void select(const QVector3D& p);
    /// As select(), at the point's projection onto the plane of constant z.
    virtual void selectProjection(const QVector3D& p, double z);
    /// Widens a box of points to the box of all that select() draws at points in it, so that a pick need not
    /// send markers far from the cursor. False, as here, when that is not known: a pick then sends them all.
    virtual bool reach(Parallelepiped& box);
    /// Whether all that draw() draws is filled and lets nothing through, so that it need not be blended.
    /// False, as here, when that is not known.
    virtual bool isOpaque() const;

    /// Whether a setter changed something since construction or resetModified(); only then settings are
    /// saved.
    bool isModified() const { return modified; }
    void resetModified() { modified = false; }

protected:
    Addition() = default;
    Addition(const Addition&) = default;
    Addition& operator=(const Addition&) = default;

    /// Stores a value that differs and marks the addition as modified; returns whether it did.
    template <class T>
    bool store(T& field, const T& value)
    {
        if (!(field != value))
            return false;
        field = value;
        modified = true;
        return true;
    }

    /// Makes a colour the current one.
    static void sendColor(const QColor& color);

    const BasePlot* plot = nullptr;
    bool modified = false;
};

} // namespace Zel3D
