#pragma once

#include "core/export.h"
#include "core/types.h"

namespace Zel3D::ViewFit {

/// The zoom at which the scaled and rotated box takes the given part of a window's width or height, whichever
/// it meets first. \a aspect is the window's width / height under a camera that keeps proportions, else 1.
VORANPLOT_EXPORT double zoom(const Parallelepiped& box, const ValueXYZ<double>& scale,
                             const ValueXYZ<double>& rotation, double aspect, double part);

} // namespace Zel3D::ViewFit
