#include "scene/axistics.h"

#include "core/types.h"

#include <cmath>

namespace Zel3D {

bool AxisRange::isUsable() const
{
    return !isZero(minimum, maximum) && std::isfinite(maximum - minimum);
}

double AxisRange::fraction(double value) const
{
    const double fromMinimum = (value - minimum) / (maximum - minimum);
    return reversed ? 1.0 - fromMinimum : fromMinimum;
}

QVector<AxisTic> majorTics(const Scale& scale, const AxisRange& range)
{
    QVector<AxisTic> tics;
    tics.reserve(scale.getMajors().size());
    for (int i = 0; i < scale.getMajors().size(); ++i) {
        const double value = scale.getMajors().at(i);
        tics.append({value, range.fraction(value), scale.ticLabel(i)});
    }
    return tics;
}

} // namespace Zel3D
