#pragma once

#include "core/types.h"

#include <QStringList>

#include <optional>

/// How data stand in the window when they are opened: pure functions.
namespace StartView {

/// The scale of the axes that shows a terrain well: x and y keep their proportions unless one is more than
/// four times the other, and the heights take the part \a relief of the longer side. (1, 1, 1) for a box
/// without extent in one direction.
Zel3D::ValueXYZ<double> scale(const Zel3D::Parallelepiped& box, double relief = 0.25);

/// The rotation in degrees: from the south-west and above.
Zel3D::ValueXYZ<double> rotation();

/// The same for a thing whose y axis points upwards.
Zel3D::ValueXYZ<double> rotationWithYUp();

/// The names of the views along an axis: "top", "bottom" ...
QStringList names();
/// The rotation of such a name, in any case of letters.
std::optional<Zel3D::ValueXYZ<double>> named(const QString& name);

} // namespace StartView
