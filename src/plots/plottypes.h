#pragma once

#include <QMetaType>

namespace Zel3D {

/// How colours run over a polygon; the values are persisted. A stored value that is none of these is kept.
enum ShadingStyle : int {
    FlatShading = 0,  ///< one colour a polygon, shown as "Flat"
    SmoothShading = 1 ///< interpolated between the corners, shown as "Smooth"
};

/// The flat copy of a surface on a plane of the box, shown as "Contour plot"; the values are persisted.
enum ViewProjection : int {
    NoProjection = 0,    ///< shown as "None"
    TopProjection = 1,   ///< shown as "Top"
    BottomProjection = 2 ///< shown as "Bottom"
};

} // namespace Zel3D

Q_DECLARE_METATYPE(Zel3D::ShadingStyle)
Q_DECLARE_METATYPE(Zel3D::ViewProjection)
