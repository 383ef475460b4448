#include "core/gradientstops.h"

#include <algorithm>

namespace Zel3D {

namespace {
constexpr int mostStoredStops = 4096;
}

QGradientStops gradientStops(const QGradient& gradient)
{
    const QGradientStops stops = gradient.stops();
    // An added stop makes a list that holds stops no shorter; the invented pair it replaces by itself.
    QGradient probe = gradient;
    probe.setColorAt(0.5, Qt::black);
    return probe.stops().size() < stops.size() ? QGradientStops() : stops;
}

bool sameGradient(const QGradient& a, const QGradient& b)
{
    return a == b && gradientStops(a).isEmpty() == gradientStops(b).isEmpty();
}

int storedStopCount(const QVariant& size)
{
    return std::clamp(size.toInt(), 0, mostStoredStops);
}

} // namespace Zel3D
