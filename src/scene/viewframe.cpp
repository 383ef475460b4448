#include "scene/viewframe.h"

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

} // namespace

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
    return frame;
}

} // namespace Zel3D
