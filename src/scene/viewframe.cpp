#include "scene/viewframe.h"

#include "scene/drawtarget.h"
#include "view/opengl.h"

#include <cmath>

namespace Zel3D {

namespace {

std::array<double, 4> transformed(const std::array<double, 16>& matrix, const std::array<double, 4>& point)
{
    std::array<double, 4> result{};
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column)
            result[row] += matrix[column * 4 + row] * point[column];
    }
    return result;
}

/// The frame of the whole picture. Its projection is told and not computed back from that of the tile, so
/// that every tile places texts at the same pixels.
void widen(ViewFrame& frame, const DrawTarget& target)
{
    frame.projection = target.projection;
    frame.viewport = {frame.viewport[0] - target.tile.x(), frame.viewport[1] - target.tile.y(),
                      target.whole.width(), target.whole.height()};
}

} // namespace

std::array<double, 16> tileMatrix(const DrawTarget& target)
{
    std::array<double, 16> matrix{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    if (!target.isTiled())
        return matrix;
    const QRectF tile(target.tile);
    matrix[0] = target.whole.width() / tile.width();
    matrix[5] = target.whole.height() / tile.height();
    matrix[12] = (target.whole.width() - 2.0 * tile.center().x()) / tile.width();
    matrix[13] = (target.whole.height() - 2.0 * tile.center().y()) / tile.height();
    return matrix;
}

WindowPoint projectToWindow(const ViewFrame& frame, const QVector3D& world)
{
    const std::array<double, 4> eye =
        transformed(frame.modelview, {double(world.x()), double(world.y()), double(world.z()), 1.0});
    const std::array<double, 4> clip = transformed(frame.projection, eye);
    WindowPoint point;
    if (!(clip[3] > 0.0))
        return point;
    point.x = frame.viewport[0] + (clip[0] / clip[3] + 1.0) * 0.5 * frame.viewport[2];
    point.y = frame.viewport[1] + (clip[1] / clip[3] + 1.0) * 0.5 * frame.viewport[3];
    point.depth = (clip[2] / clip[3] + 1.0) * 0.5;
    point.valid = std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.depth);
    return point;
}

ViewFrame currentViewFrame()
{
    ViewFrame frame;
    glGetDoublev(GL_MODELVIEW_MATRIX, frame.modelview.data());
    glGetDoublev(GL_PROJECTION_MATRIX, frame.projection.data());
    glGetIntegerv(GL_VIEWPORT, frame.viewport.data());
    if (DrawTargetScope::current().isTiled())
        widen(frame, DrawTargetScope::current());
    return frame;
}

} // namespace Zel3D
