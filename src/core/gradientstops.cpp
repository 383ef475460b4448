#include "core/gradientstops.h"

namespace Zel3D {

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

} // namespace Zel3D
