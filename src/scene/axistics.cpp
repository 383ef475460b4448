#include "scene/axistics.h"

#include "core/types.h"

#include <cmath>

namespace Zel3D {

namespace {

/// In steps between ticks. Limits come from corners in single precision, whose rounding errors a sum keeps.
constexpr double roundingError = 1e-6;

/// The text of a tick; "0" for one that misses zero by a rounding error.
QString textOf(const Scale& scale, int index, double step)
{
    const QString text = scale.ticLabel(index);
    const double value = scale.getMajors().at(index);
    const double most = std::abs(step) * roundingError;
    // The text of a logarithmic scale states a power.
    const bool missesZero = value != 0.0 && std::abs(value) < most && std::abs(text.toDouble()) < most;
    return missesZero ? QStringLiteral("0") : text;
}

} // namespace

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
    const QVector<double>& majors = scale.getMajors();
    tics.reserve(majors.size());
    const double step = majors.size() > 1 ? majors.at(1) - majors.at(0) : 0.0;
    for (int i = 0; i < majors.size(); ++i)
        tics.append({majors.at(i), range.fraction(majors.at(i)), textOf(scale, i, step)});
    return tics;
}

} // namespace Zel3D
