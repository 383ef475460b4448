#pragma once

#include "core/export.h"

#include <QString>

namespace Zel3D {

/// The OpenGL stipple pattern of a line style by its name: "SolidLine", "DashLine", "DotLine", "DashDotLine"
/// or "DashDotDotLine"; solid for any other name.
VORANPLOT_EXPORT int lineStylePattern(const QString& name);
/// As above by the index 0 to 4 in that order; solid for any other index.
VORANPLOT_EXPORT int lineStylePattern(int index);
/// The index of the line style with a pattern; 0 for an unknown pattern.
VORANPLOT_EXPORT int lineStyleIndex(int pattern);

} // namespace Zel3D
