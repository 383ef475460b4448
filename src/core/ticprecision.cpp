#include "core/ticprecision.h"

#include <QString>

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int fewest = 2;
constexpr int most = 12;

bool statesItsValue(double value, double step, int precision)
{
    const QString text = QString::number(value, 'g', precision);
    const bool avoidable = std::abs(value) < 99999.5 && std::abs(value) >= 10.0;
    if (avoidable && text.contains('e'))
        return false;
    return std::abs(text.toDouble() - value) <= std::abs(step) * 0.01;
}

} // namespace

int ticPrecision(const QVector<double>& majors)
{
    if (majors.isEmpty())
        return fewest;
    const double step =
        majors.size() > 1 ? (majors.last() - majors.first()) / (majors.size() - 1) : majors.first();
    for (int precision = fewest; precision < most; ++precision) {
        if (std::all_of(majors.begin(), majors.end(),
                        [=](double value) { return statesItsValue(value, step, precision); }))
            return precision;
    }
    return most;
}

} // namespace Zel3D
