#pragma once

#include "core/types.h"

#include <QList>

namespace Zel3D {

/// The hits of an OpenGL selection buffer as a list whose first entry is the nearest.
///
/// \a hits is what glRenderMode(GL_RENDER) returned, \a buffer the selection buffer: per hit the number of
/// names, the minimum and maximum depth and the names. Hits whose last name is 0 or above the range of int
/// are skipped. A hit strictly nearer than all before it (starting at depth 1) goes to the front, any other
/// to the end. With \a debug the list is written to the debug output. A negative count (buffer too small)
/// gives an empty list.
QList<SelectionInfo> selectedList(int hits, const unsigned int* buffer, bool debug);

} // namespace Zel3D
