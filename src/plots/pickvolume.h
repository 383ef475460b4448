#pragma once

#include "core/types.h"

#include <array>

namespace Zel3D {

/// The part of space that a pick sees, for telling what cannot lie in it.
///
/// The answers allow for the rounding of OpenGL, which clips in single precision: what is ruled out here is
/// clipped away there, too, but not the other way round.
class PickVolume
{
public:
    /// From the combined matrix of projection and model-view in OpenGL's column order.
    explicit PickVolume(const std::array<double, 16>& matrix);

    bool mayHold(const QVector3D& p) const;
    /// Whether any part of the box may lie in the volume; not of a box whose minimum is above its maximum.
    bool mayHold(const Parallelepiped& box) const;

private:
    /// a x + b y + c z + d >= 0 inside; the reach is what the rounding of each term may add up to.
    struct Plane
    {
        std::array<double, 4> factors{};
        std::array<double, 4> reach{};
    };
    static bool inside(const Plane& plane, double x, double y, double z);

    std::array<Plane, 6> planes;
};

} // namespace Zel3D
