#pragma once

#include "scene/furnituretypes.h"
#include "scene/viewframe.h"

namespace Zel3D {

/// The faces of the box whose grid lines lie behind the data.
///
/// \a faces is a set of Grid bits. For each face in it, that face or the one opposite to it is in the result:
/// the one whose middle is farther from the eye. Where the view does not tell them apart the set keeps its
/// own.
int facesBehind(const ViewFrame& frame, const QVector3D& first, const QVector3D& second, int faces);

} // namespace Zel3D
