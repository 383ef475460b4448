#include "scene/edgepolicy.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

// Fractions of the box's size in the window.
constexpr double keptOutside = 0.02;   // how far inside the outline the previous edge may lie
constexpr double clearlyBetter = 0.04; // by how much another edge must beat the previous one
constexpr double lowBonus = 0.05;      // what lying on the lower face of the box is worth to x and y
constexpr double nearBonus = 0.03;     // what being nearest is worth
constexpr double rightBonus = 0.02;    // what being rightmost is worth to x and y; z stands on the left
constexpr double shortest = 0.03;      // an axis below this length is as good as seen end-on

// Pixels.
constexpr double onOutline = 0.5;
constexpr double pointSize = 1.0;

QVector2D between(const WindowPoint& from, const WindowPoint& to)
{
    return QVector2D(float(to.x - from.x), float(to.y - from.y));
}

WindowPoint middle(const WindowPoint& a, const WindowPoint& b)
{
    WindowPoint point;
    point.x = (a.x + b.x) / 2.0;
    point.y = (a.y + b.y) / 2.0;
    point.depth = (a.depth + b.depth) / 2.0;
    point.valid = true;
    return point;
}

WindowPoint middle(const WindowBox& box)
{
    WindowPoint point;
    for (const WindowPoint& corner : box.corners) {
        point.x += corner.x / 8.0;
        point.y += corner.y / 8.0;
    }
    return point;
}

/// The extents of the box in the window.
struct Extent
{
    explicit Extent(const WindowBox& box)
    {
        for (const WindowPoint& corner : box.corners) {
            left = std::min(left, corner.x);
            right = std::max(right, corner.x);
            bottom = std::min(bottom, corner.y);
            top = std::max(top, corner.y);
            nearest = std::min(nearest, corner.depth);
            farthest = std::max(farthest, corner.depth);
        }
    }
    double size() const { return std::hypot(right - left, top - bottom); }

    double left = 1e300;
    double right = -1e300;
    double bottom = 1e300;
    double top = -1e300;
    double nearest = 1e300;
    double farthest = -1e300;
};

/// Ranks the edges of a box in the window.
class EdgeRanking
{
public:
    /// \a upsideDown: the second corner of the box is the lower one.
    EdgeRanking(const WindowBox& windowBox, bool upsideDown)
        : box(windowBox), extent(windowBox), lowCornerZ(upsideDown ? 4 : 0)
    {
    }

    double size() const { return extent.size(); }
    bool isEndOn(AxisType type) const
    {
        return double(between(start(type), end(type)).length()) < shortest * extent.size();
    }
    AxisType choose(BaseAxisType base, const EdgeChoice* previous) const;

private:
    const WindowPoint& start(AxisType type) const { return box.corners[std::size_t(startCorner(type))]; }
    const WindowPoint& end(AxisType type) const { return box.corners[std::size_t(endCorner(type))]; }
    double insideOutline(AxisType type) const;
    double score(AxisType type) const;

    const WindowBox& box;
    Extent extent;
    int lowCornerZ;
};

/// How far the box reaches beyond the line through an edge, on the outer side: 0 for an edge on the outline.
/// The line through an edge seen end-on has no steady direction; that across its direction from the middle
/// takes its place.
double EdgeRanking::insideOutline(AxisType type) const
{
    const QVector2D normal =
        isEndOn(type) ? between(middle(box), start(type)).normalized() : edgeOutward(box, type);
    double beyond = 0.0;
    for (const WindowPoint& corner : box.corners)
        beyond = std::max(beyond, double(QVector2D::dotProduct(between(start(type), corner), normal)));
    return beyond;
}

/// How readable numbers are on an edge, in pixels: how low and near x and y edges are, how far left z edges
/// are.
double EdgeRanking::score(AxisType type) const
{
    const WindowPoint mid = middle(start(type), end(type));
    const double depths = extent.farthest - extent.nearest;
    const double nearness = depths > 0.0 ? (extent.farthest - mid.depth) / depths : 0.0;
    if (baseAxisType(type) == ZAxis)
        return extent.right - mid.x + extent.size() * nearBonus * nearness;
    const double width = extent.right - extent.left;
    const double rightness = width > 0.0 ? (mid.x - extent.left) / width : 0.0;
    const double lowness = (startCorner(type) & 4) == lowCornerZ ? 1.0 : 0.0;
    return extent.top - mid.y +
           extent.size() * (nearBonus * nearness + rightBonus * rightness + lowBonus * lowness);
}

AxisType EdgeRanking::choose(BaseAxisType base, const EdgeChoice* previous) const
{
    const std::array<AxisType, 4>& edges = axesOf(base);
    const auto outside = [this](AxisType type) { return insideOutline(type) <= onOutline; };
    const bool anyOutside = std::any_of(edges.begin(), edges.end(), outside);
    // An eye close to a face sees all four edges inside the outline.
    if (!anyOutside && previous)
        return previous->axes[std::size_t(base)];
    AxisType best = edges.front();
    double bestScore = -1.0;
    for (AxisType type : edges) {
        const double value = score(type);
        if (value > bestScore && (outside(type) || !anyOutside)) {
            best = type;
            bestScore = value;
        }
    }
    if (!previous)
        return best;
    const AxisType kept = previous->axes[std::size_t(base)];
    const bool stays = insideOutline(kept) <= std::max(onOutline, keptOutside * extent.size()) &&
                       score(kept) >= bestScore - clearlyBetter * extent.size();
    return stays ? kept : best;
}

/// The direction of an edge's ticks when they point away from the box in the window.
std::optional<QVector3D> ticDirection(const ViewFrame& frame, const WindowBox& box, double size,
                                      AxisType type, const QVector3D& first, const QVector3D& second)
{
    const BoxEdge edge = boxEdge(type, first, second);
    const QVector3D diagonal = second - first;
    // As long as the box is deep in the direction of the ticks.
    const float length = std::abs(QVector3D::dotProduct(diagonal, edge.ticDirection));
    const QVector3D mid = (edge.start + edge.end) * 0.5F;
    const WindowPoint from = projectToWindow(frame, mid);
    const WindowPoint to = projectToWindow(frame, mid + edge.ticDirection * (length * 0.01F));
    if (!from.valid || !to.valid || !(length > 0.0F))
        return std::nullopt;
    const double away = double(QVector2D::dotProduct(between(from, to), edgeOutward(box, type)));
    if (away * 100.0 < 0.1 * size)
        return std::nullopt;
    return edge.ticDirection;
}

} // namespace

WindowBox projectBox(const ViewFrame& frame, const QVector3D& first, const QVector3D& second)
{
    WindowBox box;
    for (std::size_t i = 0; i < box.corners.size(); ++i)
        box.corners[i] = projectToWindow(frame, boxCorner(int(i), first, second));
    box.valid =
        std::all_of(box.corners.begin(), box.corners.end(), [](const WindowPoint& p) { return p.valid; });
    return box;
}

QVector2D edgeOutward(const WindowBox& box, AxisType type)
{
    const QVector2D down(0.0F, -1.0F);
    if (!box.valid)
        return down;
    const WindowPoint& start = box.corners[std::size_t(startCorner(type))];
    const WindowPoint& end = box.corners[std::size_t(endCorner(type))];
    const QVector2D away = between(middle(box), middle(start, end));
    const QVector2D along = between(start, end);
    if (double(along.length()) < pointSize)
        return double(away.length()) < pointSize ? down : away.normalized();
    const QVector2D normal = QVector2D(-along.y(), along.x()).normalized();
    const double side = double(QVector2D::dotProduct(normal, away));
    if (std::abs(side) < onOutline) {
        // The edge crosses the middle: below it, or to its left when it is upright.
        return normal.y() < -1e-6F || (normal.y() < 1e-6F && normal.x() < 0.0F) ? normal : -normal;
    }
    return side > 0.0 ? normal : -normal;
}

EdgeChoice chooseEdges(const ViewFrame& frame, const QVector3D& first, const QVector3D& second,
                       const EdgeChoice* previous)
{
    EdgeChoice choice = previous ? *previous : EdgeChoice();
    choice.ticDirections = {};
    choice.endOn = {};
    const WindowBox box = projectBox(frame, first, second);
    if (!box.valid)
        return choice;
    const EdgeRanking ranking(box, second.z() < first.z());
    if (ranking.size() < pointSize)
        return choice;
    for (BaseAxisType base : {XAxis, YAxis, ZAxis}) {
        const AxisType type = ranking.choose(base, previous);
        choice.axes[std::size_t(base)] = type;
        choice.endOn[std::size_t(base)] = ranking.isEndOn(type);
        choice.ticDirections[std::size_t(base)] =
            ticDirection(frame, box, ranking.size(), type, first, second);
    }
    return choice;
}

} // namespace Zel3D
