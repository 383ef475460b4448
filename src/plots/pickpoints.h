#pragma once

#include "core/types.h"

#include <vector>

namespace Zel3D {

/// The points of the data at which markers stand, numbered from 0 in the order in which they are drawn.
///
/// What it was made from must outlive it and stay as it is.
class PickPoints
{
public:
    virtual ~PickPoints() = default;
    PickPoints(const PickPoints&) = delete;
    PickPoints& operator=(const PickPoints&) = delete;

    virtual int size() const = 0;
    /// Where the point is drawn, in scene units; not finite for a point that is missing.
    virtual QVector3D position(int index) const = 0;
    /// The coordinates as the caller of the plot gave them.
    virtual SelectedObjectsInfo info(int index) const = 0;

    /// The points in groups of neighbours; groups that follow each other are near each other, too. A point
    /// that is missing need not be in any.
    virtual int groups() const = 0;
    /// Appends the numbers of the points in a group.
    virtual void group(int number, std::vector<int>& indices) const = 0;

protected:
    PickPoints() = default;
};

} // namespace Zel3D
