#pragma once

#include "core/types.h"

/// How a grid stands in the window when it is opened: pure functions of its box.
namespace StartView {

/// The scale of the axes that shows a terrain well: x and y keep their proportions unless one is more than
/// four times the other, and the heights take two fifths of the longer side. (1, 1, 1) for a box without
/// extent in one direction.
Zel3D::ValueXYZ<double> scale(const Zel3D::Parallelepiped& box);

/// The rotation in degrees: from the south-west and above.
Zel3D::ValueXYZ<double> rotation();

} // namespace StartView
