#include "scene/coordinatesystem.h"

#include <QSettings>

#include <algorithm>

namespace Zel3D {

bool CoordinateSystem::CoordinateSystemSettings::setMajorLineWidth(double width)
{
    return store(majorLineWidth, minorLineWidth > width ? minorLineWidth : width);
}

bool CoordinateSystem::CoordinateSystemSettings::setMinorLineWidth(double width)
{
    return store(minorLineWidth, majorLineWidth < width ? majorLineWidth : width);
}

void CoordinateSystem::CoordinateSystemSettings::loadSettings(const QString& group,
                                                              const QString& organization,
                                                              const QString& application)
{
    const QSettings values(organization, application);
    setLineSmooth(values.value(QString("%0/lineSmooth").arg(group), lineSmooth).toBool());
    setGridStyle(values.value(QString("%0/gridStyle").arg(group), gridStyle).toInt());
    setGridColor(values.value(QString("%0/gridColor").arg(group), gridColor).value<QColor>());
    setMajorVisible(values.value(QString("%0/majorVisible").arg(group), majorVisible).toBool());
    // Not through the setters: each would hold the stored width against the other width from before.
    store(majorLineWidth, values.value(QString("%0/majorLineWidth").arg(group), majorLineWidth).toDouble());
    setMajorLineStyle(values.value(QString("%0/majorLineStyle").arg(group), majorLineStyle).toInt());
    setMinorVisible(values.value(QString("%0/minorVisible").arg(group), minorVisible).toBool());
    store(minorLineWidth, values.value(QString("%0/minorLineWidth").arg(group), minorLineWidth).toDouble());
    setMinorLineStyle(values.value(QString("%0/minorLineStyle").arg(group), minorLineStyle).toInt());
}

void CoordinateSystem::CoordinateSystemSettings::saveSettings(const QString& group,
                                                              const QString& organization,
                                                              const QString& application) const
{
    if (!needSave)
        return;
    QSettings values(organization, application);
    values.setValue(QString("%0/lineSmooth").arg(group), lineSmooth);
    values.setValue(QString("%0/gridStyle").arg(group), gridStyle);
    values.setValue(QString("%0/gridColor").arg(group), gridColor);
    values.setValue(QString("%0/majorVisible").arg(group), majorVisible);
    values.setValue(QString("%0/majorLineWidth").arg(group), majorLineWidth);
    values.setValue(QString("%0/majorLineStyle").arg(group), majorLineStyle);
    values.setValue(QString("%0/minorVisible").arg(group), minorVisible);
    values.setValue(QString("%0/minorLineWidth").arg(group), minorLineWidth);
    values.setValue(QString("%0/minorLineStyle").arg(group), minorLineStyle);
}

} // namespace Zel3D
