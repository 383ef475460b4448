#include "core/log10scale.h"

#include <cmath>

namespace Zel3D {

Log10Scale::Log10Scale()
{
    minorInterval = 9;
}

QString Log10Scale::ticLabel(int i) const
{
    if (i < 0 || i >= majors.size())
        return QString();
    return QString::number(std::pow(10.0, majors.at(i)), 'g', 6);
}

void Log10Scale::calculate()
{
    majors.clear();
    minors.clear();
    if (start < -307.0)
        start = -307.0;
    if (stop > 308.0)
        stop = 308.0;
    if (stop - start <= 0.0)
        return;
    // Whole numbers, but the ends may be no numbers at all.
    // NOLINTNEXTLINE(clang-analyzer-security.FloatLoopCounter)
    for (double exponent = std::floor(start); exponent <= stop; exponent += 1.0) {
        if (exponent >= start)
            majors.append(exponent);
    }
    if (majors.isEmpty()) {
        majorInterval = 0;
        return;
    }
    majorInterval = majors.size() - 1;
    calculateMinors();
}

std::shared_ptr<Scale> Log10Scale::clone() const
{
    return std::make_shared<Log10Scale>(*this);
}

void Log10Scale::setupCounter(double& first, int& decrement)
{
    switch (minorInterval) {
    case 2:
        first = 5.0;
        decrement = 5;
        break;
    case 3:
        first = 5.0;
        decrement = 3;
        break;
    case 5:
        first = 8.0;
        decrement = 2;
        break;
    default:
        first = 9.0;
        decrement = 1;
    }
}

void Log10Scale::calculateMinors()
{
    double first = 0.0;
    int decrement = 0;
    setupCounter(first, decrement);

    // Mantissas, whole numbers. NOLINTBEGIN(clang-analyzer-security.FloatLoopCounter)
    const double below = majors.first() - 1.0;
    for (double c = first; c > 1.0 && below + std::log10(c) > start; c -= decrement)
        minors.append(below + std::log10(c));
    for (int k = 0; k < majorInterval; ++k) {
        for (double c = first; c > 1.0; c -= decrement)
            minors.append(majors.at(k) + std::log10(c));
    }
    // The counter steps once before anything is tested: the top decade never has its first mantissa.
    double c = first - decrement;
    while (c > 1.0 && majors.last() + std::log10(c) >= stop)
        c -= decrement;
    for (; c > 1.0; c -= decrement)
        minors.append(majors.last() + std::log10(c));
    // NOLINTEND(clang-analyzer-security.FloatLoopCounter)
}

} // namespace Zel3D
