#include "core/scale.h"

namespace Zel3D {

QString Scale::ticLabel(int i) const
{
    if (i < 0 || i >= majors.size())
        return QString();
    return QString::number(majors.at(i), ticFormat, ticPrecision);
}

void Scale::setLimits(double a, double b)
{
    start = b > a ? a : b;
    stop = b > a ? b : a;
}

void Scale::setMajorInterval(int n)
{
    majorInterval = n;
}

void Scale::setMinorInterval(int n)
{
    minorInterval = n;
}

void Scale::setMajorLimits(double a, double b)
{
    majorStart = b > a ? a : b;
    majorStop = b > a ? b : a;
}

void Scale::setTicFormat(char format, int precision)
{
    ticFormat = format;
    ticPrecision = precision;
}

std::shared_ptr<Scale> Scale::clone() const
{
    return nullptr;
}

} // namespace Zel3D
