#pragma once

namespace Zel3D {

/// What to subtract from coordinates between two values so that single precision, in which the scene is
/// drawn, tells them apart: 0 where it does so anyway, the middle of the range where fewer than some
/// thousands of places would be left.
double dataOrigin(double lowest, double highest);

} // namespace Zel3D
