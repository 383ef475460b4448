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

/// How the scale of the view comes about.
enum BoxScaling : int {
    CubeScaling = 0,  ///< automatic scaling: the box of the data is drawn as a cube
    EqualUnits = 1,   ///< one unit is as long on every axis
    ManualScaling = 2 ///< by hand: gestures, keys and setScale()
};

/// The values that a plot's geometry may be compiled with or without; see BasePlot::isGeometryInput().
enum GeometryInput : int {
    MeshColorInput,
    MeshWidthInput,
    MeshLinesInput, ///< which of the two sets of mesh lines are shown
    BackgroundInput,
    DotInput,        ///< the marker of plot style points
    CylinderInput,   ///< the bars of a histogram
    StrokeScaleInput ///< how much wider the lines and points of a picture are; of mesh and normals as well
};

/// The tool bars that a plot makes; the order is that of the context menu.
enum PlotToolBarType : int {
    GridStyleToolBar = 1, ///< the faces of the box with grid lines
    PlotStyleToolBar = 2, ///< the plot styles
    ViewsToolBar = 3      ///< the standard views
};

} // namespace Zel3D

Q_DECLARE_METATYPE(Zel3D::ShadingStyle)
Q_DECLARE_METATYPE(Zel3D::ViewProjection)
Q_DECLARE_METATYPE(Zel3D::BoxScaling)
Q_DECLARE_METATYPE(Zel3D::PlotToolBarType)
