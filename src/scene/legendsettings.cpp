#include "scene/legend.h"

#include <QSettings>

namespace Zel3D {

void Legend::Settings::loadSettings(const QString& group, const QString& organization,
                                    const QString& application)
{
    const QSettings values(organization, application);
    setPosition(Position(values.value(QString("%0/position").arg(group), int(position)).toInt()));
    setOrientation(values.value(QString("%0/orientation").arg(group), orientation).toInt());
    axis.setAlignment(values.value(QString("%0/axis/alignment").arg(group), axis.getAlignment()).toInt());
}

void Legend::Settings::saveSettings(const QString& group, const QString& organization,
                                    const QString& application) const
{
    if (!needSave)
        return;
    QSettings values(organization, application);
    values.setValue(QString("%0/position").arg(group), int(position));
    values.setValue(QString("%0/orientation").arg(group), orientation);
    values.setValue(QString("%0/axis/alignment").arg(group), axis.getAlignment());
}

void Legend::Settings::resetNeedSave()
{
    needSave = false;
    axis.resetNeedSave();
}

bool Legend::Settings::placeAt(Position value)
{
    if (position == value)
        return false;
    position = value;
    if (value < Top || value > Right)
        return true;
    orientation = value == Top || value == Bottom ? 1 : 0;
    axis.placeAt(value);
    return true;
}

bool Legend::Settings::setAutoPositioning(bool on)
{
    if (autoPositioning == on)
        return false;
    autoPositioning = on;
    return true;
}

bool Legend::Settings::setRelativePositions(const QHash<Position, QRectF>& rectangles)
{
    if (relativePositions == rectangles)
        return false;
    relativePositions = rectangles;
    return true;
}

} // namespace Zel3D
