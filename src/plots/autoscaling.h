#pragma once

#include "core/types.h"

namespace Zel3D {

/// The scale factors of the view under automatic scaling: pure functions of the box.
namespace AutoScaling {

/// The scale that draws the box as a cube: largest extent / extent for each direction. (1, 1, 1) when an
/// extent is 0 or not finite.
ValueXYZ<double> scaleOf(const Parallelepiped& box);

/// The inverse proportions of a scale: largest / |component| for each component that is not zero, else 1. Of
/// x and y the signed value competes for the largest, of z the absolute one.
ValueXYZ<double> inverseOf(const ValueXYZ<double>& scale);

} // namespace AutoScaling

} // namespace Zel3D
