#include "scene/axis.h"

#include <QSettings>

#include <algorithm>

namespace Zel3D {

// The persisted records of the axis. Loading marks nothing for saving.

Axis::MajorMinorSettings::MajorMinorSettings(int recordKind, double width)
    : kind(recordKind), lineWidth(width)
{
}

QString Axis::MajorMinorSettings::getName() const
{
    if (kind == 0)
        return "major";
    return kind == 1 ? "minor" : "majorminor";
}

bool Axis::MajorMinorSettings::setInterval(int value)
{
    return store(interval, std::max(1, value));
}

void Axis::MajorMinorSettings::loadSettings(const QString& group, const QString& organization,
                                            const QString& application)
{
    const QSettings values(organization, application);
    interval = std::max(1, values.value(QString("%0/%1/interval").arg(group, getName()), interval).toInt());
    lineWidth = values.value(QString("%0/%1/lineWidth").arg(group, getName()), lineWidth).toDouble();
}

void Axis::MajorMinorSettings::saveSettings(const QString& group, const QString& organization,
                                            const QString& application) const
{
    if (!needSave)
        return;
    QSettings values(organization, application);
    values.setValue(QString("%0/%1/interval").arg(group, getName()), interval);
    values.setValue(QString("%0/%1/lineWidth").arg(group, getName()), lineWidth);
}

void Axis::LineSettings::loadSettings(const QString& group, const QString& organization,
                                      const QString& application)
{
    const QSettings values(organization, application);
    visible = values.value(QString("%0/line/visible").arg(group), visible).toBool();
    color = values.value(QString("%0/line/color").arg(group), color).value<QColor>();
    width = values.value(QString("%0/line/width").arg(group), width).toDouble();
}

void Axis::LineSettings::saveSettings(const QString& group, const QString& organization,
                                      const QString& application) const
{
    if (!needSave)
        return;
    QSettings values(organization, application);
    values.setValue(QString("%0/line/visible").arg(group), visible);
    values.setValue(QString("%0/line/color").arg(group), color);
    values.setValue(QString("%0/line/width").arg(group), width);
}

bool Axis::TicsSettings::setOrientation(const QVector3D& value)
{
    const QVector3D direction = value.normalized();
    if (direction == orientation)
        return false;
    orientation = direction.normalized();
    return true;
}

bool Axis::TicsSettings::setComputedLengths(double major, double minor)
{
    if (isZero(majorLength, major) && isZero(minorLength, minor))
        return false;
    majorLength = major;
    minorLength = minor;
    return true;
}

void Axis::TicsSettings::loadSettings(const QString& group, const QString& organization,
                                      const QString& application)
{
    const QSettings values(organization, application);
    visible = values.value(QString("%0/tics/visible").arg(group), visible).toBool();
    style = TicStyle(values.value(QString("%0/tics/style").arg(group), int(style)).toInt());
    majorLength = values.value(QString("%0/tics/majorLength").arg(group), majorLength).toDouble();
    minorLength = values.value(QString("%0/tics/minorLength").arg(group), minorLength).toDouble();
}

void Axis::TicsSettings::saveSettings(const QString& group, const QString& organization,
                                      const QString& application) const
{
    if (!needSave)
        return;
    QSettings values(organization, application);
    values.setValue(QString("%0/tics/visible").arg(group), visible);
    values.setValue(QString("%0/tics/style").arg(group), int(style));
    values.setValue(QString("%0/tics/majorLength").arg(group), majorLength);
    values.setValue(QString("%0/tics/minorLength").arg(group), minorLength);
}

bool Axis::NumbersSettings::setAdjust(int value)
{
    if (adjust == value)
        return false;
    adjust = value;
    return true;
}

bool Axis::NumbersSettings::setDistance(double value)
{
    if (value != value || isZero(distance, value))
        return false;
    distance = value;
    return true;
}

void Axis::NumbersSettings::loadSettings(const QString& group, const QString& organization,
                                         const QString& application)
{
    const QSettings values(organization, application);
    visible = values.value(QString("%0/number/visible").arg(group), visible).toBool();
    color = values.value(QString("%0/number/color").arg(group), color).value<QColor>();
    font = values.value(QString("%0/number/font").arg(group), font).value<QFont>();
    alignment = Alignment(values.value(QString("%0/number/alignment").arg(group), int(alignment)).toInt());
}

void Axis::NumbersSettings::saveSettings(const QString& group, const QString& organization,
                                         const QString& application) const
{
    if (!needSave)
        return;
    QSettings values(organization, application);
    values.setValue(QString("%0/number/visible").arg(group), visible);
    values.setValue(QString("%0/number/font").arg(group), font);
    values.setValue(QString("%0/number/color").arg(group), color);
    values.setValue(QString("%0/number/alignment").arg(group), int(alignment));
}

void Axis::Settings::loadSettings(const QString& group, const QString& organization,
                                  const QString& application)
{
    const QSettings values(organization, application);
    labelShift = values.value(QString("%0/labelShift").arg(group), labelShift).toDouble();
    major.loadSettings(group, organization, application);
    minor.loadSettings(group, organization, application);
    line.loadSettings(group, organization, application);
    tics.loadSettings(group, organization, application);
    numbers.loadSettings(group, organization, application);
}

void Axis::Settings::saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const
{
    if (needSave)
        QSettings(organization, application).setValue(QString("%0/labelShift").arg(group), labelShift);
    major.saveSettings(group, organization, application);
    minor.saveSettings(group, organization, application);
    line.saveSettings(group, organization, application);
    tics.saveSettings(group, organization, application);
    numbers.saveSettings(group, organization, application);
}

void Axis::Settings::resetNeedSave()
{
    needSave = false;
    major.resetNeedSave();
    minor.resetNeedSave();
    line.resetNeedSave();
    tics.resetNeedSave();
    numbers.resetNeedSave();
}

} // namespace Zel3D
