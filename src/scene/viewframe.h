#pragma once

#include <QVector3D>

#include <array>

namespace Zel3D {

struct DrawTarget;

/// What places the world in the window: the two matrices in OpenGL's column order and the viewport (x, y,
/// width, height in pixels).
struct ViewFrame
{
    std::array<double, 16> modelview{};
    std::array<double, 16> projection{};
    std::array<int, 4> viewport{};
};

/// A point of the window.
struct WindowPoint
{
    double x = 0.0;     ///< pixels from the left edge of the window
    double y = 0.0;     ///< pixels from the bottom edge of the window
    double depth = 0.0; ///< 0 at the near plane to 1 at the far plane
    bool valid = false; ///< false behind the eye and where the matrices give no finite point
};

/// Where a point of the world lies in the window. Unlike gluProject it tells points behind the eye.
WindowPoint projectToWindow(const ViewFrame& frame, const QVector3D& world);

/// The frame of the matrices that are current. While a tile of a picture is drawn, that of the whole picture,
/// with window coordinates counted from the tile. Needs a current context.
ViewFrame currentViewFrame();

/// The matrix, in OpenGL's column order, that spreads a tile of a picture over the viewport when it stands
/// before the projection; the identity without a tile.
std::array<double, 16> tileMatrix(const DrawTarget& target);

} // namespace Zel3D
