#include "core/linearscale.h"
#include "core/log10scale.h"
#include "scene/axis.h"
#include "scene/boxedges.h"

#include <algorithm>
#include <cfloat>

namespace Zel3D {

// What owners change. Everything here only stores; the ticks follow at the next draw.

void Axis::setPosition(const QVector3D& startPoint, const QVector3D& endPoint)
{
    if (start != startPoint) {
        start = startPoint;
        recalculate = true;
    }
    if (end != endPoint) {
        end = endPoint;
        recalculate = true;
    }
    const QVector3D direction = end - start;
    if (start == end || !(double(direction.length()) > DBL_MIN))
        return;
    arrow.setPosition(end);
    arrow.setDirection(direction);
}

void Axis::setLimits(double minimum, double maximum)
{
    if (range.minimum == minimum && range.maximum == maximum)
        return;
    range.minimum = minimum;
    range.maximum = maximum;
    recalculate = true;
}

void Axis::setReversed(bool on)
{
    if (range.reversed == on)
        return;
    range.reversed = on;
    recalculate = true;
}

bool Axis::setMajorInterval(int n)
{
    if (settings.getMajor().setInterval(n))
        recalculate = true;
    return true;
}

bool Axis::setMinorInterval(int n)
{
    if (settings.getMinor().setInterval(n))
        recalculate = true;
    return true;
}

void Axis::setTicsOrientation(const QVector3D& direction)
{
    if (settings.getTics().setOrientation(direction))
        recalculate = true;
}

void Axis::setTicsLength(double major, double minor)
{
    TicsSettings& tics = settings.getTics();
    const bool majorChanged = tics.setMajorLength(major);
    const bool minorChanged = tics.setMinorLength(minor);
    ownTicsLength = true;
    if (majorChanged || minorChanged)
        recalculate = true;
}

void Axis::setComputedTicsLength(double major, double minor)
{
    if (!ownTicsLength && settings.getTics().setComputedLengths(major, minor))
        recalculate = true;
}

void Axis::setLineWidth(double width, double majorFactor, double minorFactor)
{
    settings.getLine().setWidth(width);
    settings.getMajor().setLineWidth(majorFactor * width);
    settings.getMinor().setLineWidth(width * minorFactor);
    settings.getLine().markForSaving();
    settings.getMajor().markForSaving();
    settings.getMinor().markForSaving();
}

void Axis::setScale(Scale* newScale)
{
    if (!newScale || newScale == scale.get())
        return;
    scale.reset(newScale);
    recalculate = true;
}

void Axis::setScale(ScaleType type)
{
    if (type == Linear) {
        setScale(new LinearScale);
    } else if (type == Logarithmic) {
        setScale(new Log10Scale);
        setMinorInterval(9);
    }
}

void Axis::setTicFormat(char format, int precision)
{
    scale->setTicFormat(format, precision);
    automaticTicFormat = false;
    recalculate = true;
}

void Axis::setAutomaticTicFormat(bool on)
{
    if (automaticTicFormat == on)
        return;
    automaticTicFormat = on;
    recalculate = true;
}

void Axis::setHighlightBox(const Parallelepiped& box, AxisType type)
{
    const QVector3D& a = box.minimum;
    const QVector3D& b = box.maximum;
    highlightBox[2] = a;
    highlightBox[4] = b;
    if (type < XFrontBottom || type > ZFrontRight)
        return;
    // The corners of an x axis: bits say which coordinates are the second corner's. The other directions
    // exchange their coordinate with x.
    constexpr std::array<int, 8> pattern{6, 2, 0, 4, 7, 3, 1, 5};
    const int base = int(baseAxisType(type));
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        QVector3D corner;
        for (int axis = 0; axis < 3; ++axis) {
            const int role = axis == base ? 0 : axis == 0 ? base : axis;
            corner[axis] = (pattern[i] & (1 << role)) ? b[axis] : a[axis];
        }
        highlightBox[i] = corner;
    }
}

void Axis::setPixelRatio(double ratio)
{
    if (!label.setPixelRatio(ratio))
        return;
    pixelRatio = label.getPixelRatio();
    for (Major& major : majors)
        major.label.setPixelRatio(pixelRatio);
}

} // namespace Zel3D
