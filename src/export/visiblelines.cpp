#include "export/visiblelines.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

/// What lies on a surface is seen; of the depth range, which is many times the scene's depth.
constexpr double tolerance = 1e-4;

WindowPrimitive::Vertex between(const WindowPrimitive::Vertex& a, const WindowPrimitive::Vertex& b, double t)
{
    const auto mixed = [t](float from, float to) {
        return float(double(from) + (double(to) - double(from)) * t);
    };
    WindowPrimitive::Vertex result;
    std::transform(a.place.begin(), a.place.end(), b.place.begin(), result.place.begin(), mixed);
    std::transform(a.color.begin(), a.color.end(), b.color.begin(), result.color.begin(), mixed);
    return result;
}

} // namespace

VisibleLines::VisibleLines(const QVector<float>& depths, const QSize& imageSize, double imageScale)
    : depth(depths), size(imageSize), scale(imageScale)
{
}

bool VisibleLines::isVisible(double x, double y, double z) const
{
    const int column = std::clamp(int(std::floor(x * scale)), 0, size.width() - 1);
    const int row = std::clamp(int(std::floor(y * scale)), 0, size.height() - 1);
    return z <= double(depth.at(row * size.width() + column)) + tolerance;
}

QVector<WindowPrimitive> VisibleLines::of(const QVector<WindowPrimitive>& primitives) const
{
    QVector<WindowPrimitive> parts;
    for (const WindowPrimitive& primitive : primitives) {
        if (primitive.count == 2) {
            addParts(primitive, parts);
            continue;
        }
        double x = 0.0;
        double y = 0.0;
        double z = 0.0;
        for (int i = 0; i < primitive.count; ++i) {
            const auto& place = primitive.vertices[std::size_t(i)].place;
            x += double(place[0]) / primitive.count;
            y += double(place[1]) / primitive.count;
            z += double(place[2]) / primitive.count;
        }
        if (isVisible(x, y, z))
            parts.append(primitive);
    }
    return parts;
}

void VisibleLines::addParts(const WindowPrimitive& line, QVector<WindowPrimitive>& parts) const
{
    const auto& a = line.vertices[0].place;
    const auto& b = line.vertices[1].place;
    const double length = std::hypot(double(b[0] - a[0]), double(b[1] - a[1])) * scale;
    const int samples = std::max(1, int(std::ceil(length)));
    int start = -1;
    for (int i = 0; i <= samples; ++i) {
        const WindowPrimitive::Vertex at = between(line.vertices[0], line.vertices[1], (i + 0.5) / samples);
        const bool visible =
            i < samples && isVisible(double(at.place[0]), double(at.place[1]), double(at.place[2]));
        if (visible && start < 0)
            start = i;
        if (visible || start < 0)
            continue;
        WindowPrimitive part = line;
        part.vertices[0] = between(line.vertices[0], line.vertices[1], double(start) / samples);
        part.vertices[1] = between(line.vertices[0], line.vertices[1], double(i) / samples);
        parts.append(part);
        start = -1;
    }
}

} // namespace Zel3D
