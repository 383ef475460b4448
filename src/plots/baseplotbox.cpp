// The box of a plot: the hull of the data, the scene's corners, scaling and the division of the axes.

#include "core/data.h"
#include "core/tofloat.h"
#include "plots/autoscaling.h"
#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/plotparts.h"
#include "plots/viewfit.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

bool isOrigin(const QVector3D& p)
{
    return p.x() == 0.0F && p.y() == 0.0F && p.z() == 0.0F;
}

} // namespace

Parallelepiped BasePlot::dataBox() const
{
    const bool usable = fixedHull.minimum != fixedHull.maximum && !isOrigin(fixedHull.minimum) &&
                        !isOrigin(fixedHull.maximum);
    if (usable) {
        const ValueXYZ<double>& o = getDataOrigin();
        const auto moved = [&o](const QVector3D& p) {
            return QVector3D(toFloat(double(p.x()) - o.x), toFloat(double(p.y()) - o.y),
                             toFloat(double(p.z()) - o.z));
        };
        return {moved(fixedHull.minimum), moved(fixedHull.maximum)};
    }
    Parallelepiped box{data->getMinimum(), data->getMaximum()};
    for (int i = 0; i < 3; ++i) {
        if (!std::isfinite(box.minimum[i]) || !std::isfinite(box.maximum[i]))
            box.minimum[i] = box.maximum[i] = 0.0F;
    }
    return box;
}

const ValueXYZ<double>& BasePlot::getDataOrigin() const
{
    return coordinateSystem->getOrigin();
}

void BasePlot::setDataOrigin(const ValueXYZ<double>& origin)
{
    coordinateSystem->setOrigin(origin);
}

bool BasePlot::setHull(const Parallelepiped& box)
{
    const bool changed = !(hull == box);
    if (changed) {
        hull = box;
        updateAutoScale();
    }
    updateLegend();
    return changed;
}

void BasePlot::setFixedHull(const Parallelepiped& box)
{
    fixedHull = box;
    markAllChanged();
    createCoordinateSystem();
}

void BasePlot::updateLegend()
{
    const Pair<double> range = getLegendRange();
    legend->setLimits(range.first + getDataOrigin().z, range.second + getDataOrigin().z);
}

void BasePlot::createCoordinateSystem(const QVector3D& firstCorner, const QVector3D& secondCorner)
{
    if (Parallelepiped{firstCorner, secondCorner} == Parallelepiped{first(), second()})
        return;
    coordinateSystem->init(firstCorner, secondCorner);
    setLightsHeight(double((secondCorner - firstCorner).length()) * 0.5 / 10.0);
    updateLights();
}

void BasePlot::createCoordinateSystem()
{
    calculateHull();
    createCoordinateSystem(hull.minimum, hull.maximum);
}

Pair<double> BasePlot::getLegendRange() const
{
    if (isZero(gradientRange.first, gradientRange.second))
        return {double(hull.minimum.z()), double(hull.maximum.z())};
    return {gradientRange.first - getDataOrigin().z, gradientRange.second - getDataOrigin().z};
}

void BasePlot::fitView(double part)
{
    setRotation({30.0, 0.0, 30.0});
    setShift({0.0, 0.0, 0.0});
    setViewportShift({0.0, 0.0});
    const double aspect = isKeepProportions() ? double(std::max(width(), 1)) / std::max(height(), 1) : 1.0;
    setZoom(ViewFit::zoom(hull, getScale(), getRotation(), aspect, part));
}

double BasePlot::getViewProjectionZ() const
{
    if (data && settings->getViewProjection() == TopProjection)
        return double(data->getMaximum().z());
    if (data && settings->getViewProjection() == BottomProjection)
        return double(data->getMinimum().z());
    return 0.0;
}

ValueXYZ<double> BasePlot::recalculateAutoScale()
{
    return AutoScaling::scaleOf(hull);
}

void BasePlot::updateAutoScale()
{
    setScalingAllowed(boxScaling == ManualScaling);
    switch (boxScaling) {
    case CubeScaling:
        parts->automaticScale = recalculateAutoScale();
        setScale(parts->automaticScale);
        break;
    case EqualUnits:
        setScale({1.0, 1.0, 1.0});
        break;
    case ManualScaling:
        setScale(parts->userScale);
        break;
    }
}

void BasePlot::applyScale(BaseAxisType axis)
{
    const ScaleType type = settings->getAxes().getAxesScaleType(axis);
    coordinateSystem->setScale(axis, type);
    if (axis == ZAxis)
        legend->setScale(type);
}

void BasePlot::applyIntervals(BaseAxisType axis)
{
    const AxesSettings& division = settings->getAxes();
    coordinateSystem->setMinorInterval(axis, int(division.getMinorInterval(axis)));
    coordinateSystem->setMajorInterval(axis, int(division.getMajorInterval(axis)));
    if (axis != ZAxis)
        return;
    legend->setMinorInterval(int(division.getMinorInterval(axis)));
    legend->setMajorInterval(int(division.getMajorInterval(axis)));
}

void BasePlot::applyIntervals()
{
    for (BaseAxisType axis : {XAxis, YAxis, ZAxis}) {
        applyScale(axis);
        applyIntervals(axis);
    }
}

ValueXYZ<double> BasePlot::getAutoScaleInverse() const
{
    return AutoScaling::inverseOf(parts->automaticScale);
}

} // namespace Zel3D
