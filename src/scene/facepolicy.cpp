#include "scene/facepolicy.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

/// Differences in depth below this are those of a face seen from its edge.
constexpr double clearlyFarther = 1e-4;

/// Two opposite faces: the one at the smaller coordinate of a direction and the one at the larger.
struct Opposites
{
    Grid low;
    Grid high;
    int direction;
};

constexpr Opposites pairs[] = {{GridLeft, GridRight, 0}, {GridFront, GridBack, 1}, {GridBottom, GridTop, 2}};

} // namespace

int facesBehind(const ViewFrame& frame, const QVector3D& first, const QVector3D& second, int faces)
{
    const QVector3D middle = (first + second) * 0.5F;
    int result = 0;
    for (const Opposites& pair : pairs) {
        const int wanted = faces & (pair.low | pair.high);
        if (wanted == 0 || wanted == (pair.low | pair.high)) {
            result |= wanted;
            continue;
        }
        QVector3D low = middle;
        QVector3D high = middle;
        low[pair.direction] = std::min(first[pair.direction], second[pair.direction]);
        high[pair.direction] = std::max(first[pair.direction], second[pair.direction]);
        const WindowPoint lowPoint = projectToWindow(frame, low);
        const WindowPoint highPoint = projectToWindow(frame, high);
        const double farther = highPoint.depth - lowPoint.depth;
        if (!lowPoint.valid || !highPoint.valid || !(std::abs(farther) > clearlyFarther))
            result |= wanted;
        else
            result |= farther > 0.0 ? pair.high : pair.low;
    }
    return result;
}

} // namespace Zel3D
