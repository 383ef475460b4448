#include "view/interaction.h"

#include <algorithm>
#include <cmath>

namespace Zel3D::Interaction {

namespace {

constexpr double mouseRotation = 3.0;
constexpr double mouseScale = 5.0;
constexpr double mouseShift = 2.0;
constexpr double autoRotation = 36.0;
constexpr double wheelZoom = 0.05;

double widthOf(const QSize& size)
{
    return double(std::max(size.width(), 1));
}

double heightOf(const QSize& size)
{
    return double(std::max(size.height(), 1));
}

/// A scale or zoom that reaches 0 is left to the setter, which replaces it.
void grow(double& value, double by)
{
    value = std::max(value + by, 0.0);
}

void turn(double& angle, double by)
{
    angle = reducedAngle(angle + by);
}

} // namespace

double reducedAngle(double angle)
{
    if (!std::isfinite(angle))
        return 0.0;
    // Whole turns go first: qRound() is undefined beyond the range of int.
    return double(qRound(std::fmod(angle, 360.0 * 1000000.0)) % 360);
}

ViewPose dragged(const ViewPose& pose, const QPoint& step, const QSize& size, const MouseBinding& pair,
                 const MouseBindings& bindings)
{
    const double dx = double(step.x()) / widthOf(size);
    const double dy = double(step.y()) / heightOf(size);
    ViewPose result = pose;
    if (pair == bindings.rotateX)
        turn(result.rotation.x, mouseRotation * 360.0 * dy);
    if (pair == bindings.rotateY)
        turn(result.rotation.y, mouseRotation * 360.0 * dx);
    if (pair == bindings.rotateZ)
        turn(result.rotation.z, mouseRotation * 360.0 * dx);
    const double growX = std::exp(dx * mouseScale) - 1.0;
    const double growY = std::exp(dy * mouseScale) - 1.0;
    if (pair == bindings.scaleX)
        grow(result.scale.x, growX);
    if (pair == bindings.scaleY)
        grow(result.scale.y, -growY);
    if (pair == bindings.scaleZ)
        grow(result.scale.z, -growY);
    if (pair == bindings.zoom)
        grow(result.zoom, -growY);
    if (pair == bindings.shiftX)
        result.viewportShift.x += mouseShift * dx;
    if (pair == bindings.shiftY)
        result.viewportShift.y -= mouseShift * dy;
    return result;
}

ViewPose keyed(const ViewPose& pose, const QSize& size, const KeyBinding& pair, const KeyBindings& bindings,
               const KeySpeeds& speeds)
{
    const double width = widthOf(size);
    const double height = heightOf(size);
    const double turnX = speeds.rotation * 360.0 / height;
    const double turnYZ = speeds.rotation * 360.0 / width;
    const double growX = std::exp(speeds.scale / width) - 1.0;
    const double growYZ = std::exp(speeds.scale / height) - 1.0;
    ViewPose result = pose;

    struct Action
    {
        const KeyBinding& binding;
        void (*change)(double&, double);
        double& value;
        double by;
    };
    const auto add = [](double& value, double by) { value += by; };
    const Action actions[] = {
        {bindings.rotateXPlus, turn, result.rotation.x, turnX},
        {bindings.rotateXMinus, turn, result.rotation.x, -turnX},
        {bindings.rotateYPlus, turn, result.rotation.y, turnYZ},
        {bindings.rotateYMinus, turn, result.rotation.y, -turnYZ},
        {bindings.rotateZPlus, turn, result.rotation.z, turnYZ},
        {bindings.rotateZMinus, turn, result.rotation.z, -turnYZ},
        {bindings.scaleXPlus, grow, result.scale.x, growX},
        {bindings.scaleXMinus, grow, result.scale.x, -growX},
        {bindings.scaleYMinus, grow, result.scale.y, -growYZ},
        {bindings.scaleYPlus, grow, result.scale.y, growYZ},
        {bindings.scaleZMinus, grow, result.scale.z, -growYZ},
        {bindings.scaleZPlus, grow, result.scale.z, growYZ},
        {bindings.zoomOut, grow, result.zoom, -growYZ},
        {bindings.zoomIn, grow, result.zoom, growYZ},
        {bindings.shiftXPlus, add, result.viewportShift.x, speeds.shift / width},
        {bindings.shiftXMinus, add, result.viewportShift.x, -speeds.shift / width},
        {bindings.shiftYMinus, add, result.viewportShift.y, -speeds.shift / height},
        {bindings.shiftYPlus, add, result.viewportShift.y, speeds.shift / height},
    };
    for (const Action& action : actions) {
        if (pair == action.binding)
            action.change(action.value, action.by);
    }
    return result;
}

ViewPose wheeled(const ViewPose& pose, int delta, bool shift)
{
    ViewPose result = pose;
    grow(shift ? result.scale.z : result.zoom, std::exp(double(delta) * wheelZoom / 120.0) - 1.0);
    return result;
}

ValueXYZ<double> autoRotated(const ValueXYZ<double>& rotation, const ValueXY<double>& velocity,
                             const QSize& size, const MouseBindings& bindings)
{
    const MouseBinding plain(Qt::LeftButton, Qt::NoModifier);
    const double horizontal = velocity.x * autoRotation / widthOf(size);
    const double vertical = velocity.y * autoRotation / heightOf(size);
    ValueXYZ<double> result = rotation;
    if (bindings.rotateX == plain)
        turn(result.x, vertical);
    if (bindings.rotateY == plain)
        turn(result.y, horizontal);
    if (bindings.rotateZ == plain)
        turn(result.z, horizontal);
    return result;
}

} // namespace Zel3D::Interaction
