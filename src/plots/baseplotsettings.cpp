#include "plots/baseplotsettings.h"

#include "core/gradientstops.h"
#include "gradients/gradientmanager.h"

#include <QSettings>

#include <algorithm>

namespace Zel3D {

namespace {

bool sameGradients(const QMap<QString, QGradient>& a, const QMap<QString, QGradient>& b)
{
    return a.keys() == b.keys() &&
           std::equal(a.cbegin(), a.cend(), b.cbegin(),
                      [](const QGradient& x, const QGradient& y) { return sameGradient(x, y); });
}

/// The built-in gradient as settings name it, in every language.
const QString builtIn = QStringLiteral("Default");

/// The built-in gradient always comes from the gradient store.
bool isBuiltIn(const QString& name)
{
    return name == builtIn || name == GradientManager::tr("Default");
}

QString storedName(const QString& name)
{
    return isBuiltIn(name) ? builtIn : name;
}

} // namespace

bool BasePlot::MeshSettings::setLineWidth(double pixels)
{
    return pixels >= 0.0 && store(lineWidth, pixels);
}

bool BasePlot::MeshSettings::setColor(const QColor& value)
{
    return store(color, value);
}

bool BasePlot::MeshSettings::setSmooth(bool on)
{
    return store(smooth, on);
}

bool BasePlot::MeshSettings::setXVisible(bool on)
{
    return store(xVisible, on);
}

bool BasePlot::MeshSettings::setYVisible(bool on)
{
    return store(yVisible, on);
}

void BasePlot::MeshSettings::saveSettings(const QString& prefix, const QString& organization,
                                          const QString& application)
{
    if (!needSave)
        return;
    QSettings settings(organization, application);
    settings.setValue(QString("%0/mesh/lineWidth").arg(prefix), lineWidth);
    settings.setValue(QString("%0/mesh/color").arg(prefix), color);
    settings.setValue(QString("%0/mesh/smooth").arg(prefix), smooth);
    settings.setValue(QString("%0/mesh/xVisible").arg(prefix), xVisible);
    settings.setValue(QString("%0/mesh/yVisible").arg(prefix), yVisible);
}

void BasePlot::MeshSettings::loadSettings(const QString& prefix, const QString& organization,
                                          const QString& application)
{
    const QSettings settings(organization, application);
    lineWidth = settings.value(QString("%0/mesh/lineWidth").arg(prefix), lineWidth).toDouble();
    color = settings.value(QString("%0/mesh/color").arg(prefix), color).value<QColor>();
    smooth = settings.value(QString("%0/mesh/smooth").arg(prefix), smooth).toBool();
    xVisible = settings.value(QString("%0/mesh/xVisible").arg(prefix), xVisible).toBool();
    yVisible = settings.value(QString("%0/mesh/yVisible").arg(prefix), yVisible).toBool();
}

bool BasePlot::NormalsSettings::setVisible(bool on)
{
    return store(visible, on);
}

bool BasePlot::NormalsSettings::setQuality(double sides)
{
    return store(quality, sides);
}

bool BasePlot::NormalsSettings::setLength(double part)
{
    return store(length, part);
}

void BasePlot::NormalsSettings::saveSettings(const QString& prefix, const QString& organization,
                                             const QString& application)
{
    if (!needSave)
        return;
    QSettings settings(organization, application);
    settings.setValue(QString("%0/normals/visible").arg(prefix), visible);
    settings.setValue(QString("%0/normals/quality").arg(prefix), quality);
    settings.setValue(QString("%0/normals/length").arg(prefix), length);
}

void BasePlot::NormalsSettings::loadSettings(const QString& prefix, const QString& organization,
                                             const QString& application)
{
    const QSettings settings(organization, application);
    visible = settings.value(QString("%0/normals/visible").arg(prefix), visible).toBool();
    quality = settings.value(QString("%0/normals/quality").arg(prefix), quality).toDouble();
    length = settings.value(QString("%0/normals/length").arg(prefix), length).toDouble();
}

bool BasePlot::GradientsSettings::setCurrent(const QString& name)
{
    return store(current, name);
}

bool BasePlot::GradientsSettings::setGradients(const QMap<QString, QGradient>& all)
{
    if (sameGradients(gradients, all))
        return false;
    gradients = all;
    needSave = true;
    return true;
}

bool BasePlot::GradientsSettings::setData(const QString& name, const QMap<QString, QGradient>& all)
{
    if (current == name && sameGradients(gradients, all))
        return false;
    current = name;
    gradients = all;
    needSave = true;
    return true;
}

bool BasePlot::GradientsSettings::addGradient(const QString& name, const QGradient& gradient)
{
    if (gradients.contains(name))
        return false;
    gradients.insert(name, gradient);
    return true;
}

bool BasePlot::GradientsSettings::setGradient(const QString& name, const QGradient& gradient)
{
    gradients.insert(name, gradient);
    current = name;
    return true;
}

void BasePlot::GradientsSettings::saveSettings(const QString& prefix, const QString& organization,
                                               const QString& application)
{
    if (!needSave)
        return;
    QSettings settings(organization, application);
    QStringList names;
    for (const QString& name : gradients.keys())
        names.append(storedName(name));
    names.removeDuplicates();
    settings.setValue(QString("%0/gradients/names").arg(prefix), names);
    for (auto it = gradients.cbegin(); it != gradients.cend(); ++it) {
        if (isBuiltIn(it.key()))
            continue;
        const QGradientStops stops = gradientStops(it.value());
        settings.setValue(QString("%0/gradients/%1/size").arg(prefix).arg(it.key()), stops.size());
        for (int i = 0; i < stops.size(); ++i) {
            settings.setValue(QString("%0/gradients/%1/%2/pos").arg(prefix).arg(it.key()).arg(i),
                              stops[i].first);
            settings.setValue(QString("%0/gradients/%1/%2/color").arg(prefix).arg(it.key()).arg(i),
                              stops[i].second);
        }
    }
    settings.setValue(QString("%0/gradients/current").arg(prefix), storedName(current));
}

void BasePlot::GradientsSettings::loadSettings(const QString& prefix, const QString& organization,
                                               const QString& application)
{
    const QSettings settings(organization, application);
    const QStringList names = settings.value(QString("%0/gradients/names").arg(prefix)).toStringList();
    if (names.isEmpty())
        return;
    for (const QString& name : names) {
        if (isBuiltIn(name))
            continue;
        const int size =
            storedStopCount(settings.value(QString("%0/gradients/%1/size").arg(prefix).arg(name), 0));
        if (size < 1)
            continue;
        QLinearGradient gradient;
        for (int i = 0; i < size; ++i) {
            const auto value = [&](const char* key, const QVariant& missing) {
                return settings.value(QString(key).arg(prefix).arg(name).arg(i), missing);
            };
            const auto color = value("%0/gradients/%1/%2/color", QColor()).value<QColor>();
            gradient.setColorAt(value("%0/gradients/%1/%2/pos", 0.0).toDouble(), color);
        }
        gradients.insert(name, gradient);
    }
    current = settings.value(QString("%0/gradients/current").arg(prefix), QString()).toString();
    if (current == builtIn)
        current = GradientManager::tr("Default");
}

BasePlot::SingleAxesSettings::SingleAxesSettings(unsigned int minorCount, unsigned int majorCount,
                                                 const QList<unsigned int>& offered)
    : minor(minorCount), major(majorCount), minorIntervals(offered)
{
    if (minor != 0 && major != 0 && !minorIntervals.isEmpty())
        minor = minorIntervals.first();
}

BasePlot::BaseAxesSettings::BaseAxesSettings(ScaleType type) : scaleType(type)
{
    scales.insert(Linear, SingleAxesSettings(2, 10, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    scales.insert(Logarithmic, SingleAxesSettings(2, 10, {2, 3, 5, 9}));
}

BasePlot::SingleAxesSettings BasePlot::AxesSettings::division(BaseAxisType axis, ScaleType scale) const
{
    const auto found = axes.constFind(axis);
    return found == axes.constEnd() ? SingleAxesSettings() : found->scales.value(scale);
}

BasePlot::SingleAxesSettings* BasePlot::AxesSettings::find(BaseAxisType axis, ScaleType scale)
{
    const auto found = axes.find(axis);
    if (found == axes.end())
        return nullptr;
    const auto entry = found->scales.find(scale);
    return entry == found->scales.end() ? nullptr : &entry.value();
}

ScaleType BasePlot::AxesSettings::getAxesScaleType(BaseAxisType axis) const
{
    const auto found = axes.constFind(axis);
    return found == axes.constEnd() ? Linear : found->scaleType;
}

unsigned int BasePlot::AxesSettings::getMinorInterval(BaseAxisType axis, ScaleType scale) const
{
    return division(axis, scale).minor;
}

unsigned int BasePlot::AxesSettings::getMajorInterval(BaseAxisType axis, ScaleType scale) const
{
    return division(axis, scale).major;
}

QList<unsigned int> BasePlot::AxesSettings::getMinorIntervals(BaseAxisType axis, ScaleType scale) const
{
    return division(axis, scale).minorIntervals;
}

unsigned int BasePlot::AxesSettings::getMinorInterval(BaseAxisType axis) const
{
    return getMinorInterval(axis, getAxesScaleType(axis));
}

unsigned int BasePlot::AxesSettings::getMajorInterval(BaseAxisType axis) const
{
    return getMajorInterval(axis, getAxesScaleType(axis));
}

QList<unsigned int> BasePlot::AxesSettings::getMinorIntervals(BaseAxisType axis) const
{
    return getMinorIntervals(axis, getAxesScaleType(axis));
}

bool BasePlot::AxesSettings::setAxesScaleType(BaseAxisType axis, ScaleType scale)
{
    const auto found = axes.find(axis);
    return found != axes.end() && store(found->scaleType, scale);
}

bool BasePlot::AxesSettings::setMinorInterval(BaseAxisType axis, ScaleType scale, unsigned int count)
{
    SingleAxesSettings* entry = find(axis, scale);
    return entry && store(entry->minor, count);
}

bool BasePlot::AxesSettings::setMajorInterval(BaseAxisType axis, ScaleType scale, unsigned int count)
{
    SingleAxesSettings* entry = find(axis, scale);
    return entry && store(entry->major, count);
}

void BasePlot::AxesSettings::saveSettings(const QString& prefix, const QString& organization,
                                          const QString& application)
{
    if (!needSave)
        return;
    QSettings settings(organization, application);
    for (auto axis = axes.cbegin(); axis != axes.cend(); ++axis) {
        for (auto scale = axis->scales.cbegin(); scale != axis->scales.cend(); ++scale) {
            const auto key = [&](const char* name) {
                return QString(name).arg(prefix).arg(int(axis.key())).arg(int(scale.key()));
            };
            settings.setValue(key("%0/axis%1/scale%2/minor"), scale->minor);
            settings.setValue(key("%0/axis%1/scale%2/major"), scale->major);
        }
    }
}

void BasePlot::AxesSettings::loadSettings(const QString& prefix, const QString& organization,
                                          const QString& application)
{
    const QSettings settings(organization, application);
    for (auto axis = axes.begin(); axis != axes.end(); ++axis) {
        for (auto scale = axis->scales.begin(); scale != axis->scales.end(); ++scale) {
            const auto key = [&](const char* name) {
                return QString(name).arg(prefix).arg(int(axis.key())).arg(int(scale.key()));
            };
            scale->minor = settings.value(key("%0/axis%1/scale%2/minor"), scale->minor).toUInt();
            scale->major = settings.value(key("%0/axis%1/scale%2/major"), scale->major).toUInt();
        }
    }
}

BasePlot::BasePlotSettings::BasePlotSettings() : cylinder(10, 0.05, false, 45.0) {}

bool BasePlot::BasePlotSettings::setResolution(int step)
{
    return step >= 1 && store(resolution, step);
}

bool BasePlot::BasePlotSettings::setStyle(int index)
{
    return store(style, index);
}

bool BasePlot::BasePlotSettings::setShadingStyle(ShadingStyle value)
{
    return store(shadingStyle, value);
}

bool BasePlot::BasePlotSettings::setPolygonOffset(double factor)
{
    return store(polygonOffset, factor);
}

bool BasePlot::BasePlotSettings::setViewProjection(ViewProjection value)
{
    return store(viewProjection, value);
}

void BasePlot::BasePlotSettings::resetNeedSave()
{
    SettingsRecord::resetNeedSave();
    mesh.resetNeedSave();
    normals.resetNeedSave();
    dot.resetModified();
    cylinder.resetModified();
    axes.resetNeedSave();
}

void BasePlot::BasePlotSettings::saveSettings(const QString& prefix, const QString& organization,
                                              const QString& application)
{
    if (needSave) {
        QSettings settings(organization, application);
        settings.setValue(QString("%0/resolution").arg(prefix), resolution);
        settings.setValue(QString("%0/style").arg(prefix), style);
        settings.setValue(QString("%0/shadingStyle").arg(prefix), int(shadingStyle));
        settings.setValue(QString("%0/polygonOffset").arg(prefix), polygonOffset);
        settings.setValue(QString("%0/viewProjection").arg(prefix), int(viewProjection));
    }
    mesh.saveSettings(prefix, organization, application);
    normals.saveSettings(prefix, organization, application);
    dot.saveSettings(prefix, organization, application);
    cylinder.saveSettings(prefix, organization, application);
    gradients.saveSettings(prefix, organization, application);
    axes.saveSettings(prefix, organization, application);
}

void BasePlot::BasePlotSettings::loadSettings(const QString& prefix, const QString& organization,
                                              const QString& application)
{
    {
        const QSettings settings(organization, application);
        const auto number = [&](const char* key, int current) {
            return settings.value(QString(key).arg(prefix), current).toInt();
        };
        resolution = number("%0/resolution", resolution);
        style = number("%0/style", style);
        shadingStyle = ShadingStyle(number("%0/shadingStyle", shadingStyle));
        polygonOffset = settings.value(QString("%0/polygonOffset").arg(prefix), polygonOffset).toDouble();
        viewProjection = ViewProjection(number("%0/viewProjection", viewProjection));
    }
    mesh.loadSettings(prefix, organization, application);
    normals.loadSettings(prefix, organization, application);
    dot.loadSettings(prefix, organization, application);
    cylinder.loadSettings(prefix, organization, application);
    gradients.loadSettings(prefix, organization, application);
    axes.loadSettings(prefix, organization, application);
}

} // namespace Zel3D
