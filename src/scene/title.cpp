#include "scene/title.h"

#include <QSettings>

#include <algorithm>

namespace Zel3D {

namespace {

double fraction(double value)
{
    return value >= 0.0 && value <= 1.0 ? value : 0.5;
}

/// The start of a length that is moved into a range from low on, if it has room there.
int movedInside(int start, int length, int low, int range)
{
    return length > range ? start : std::clamp(start, low, low + range - length);
}

} // namespace

Title::Title()
{
    name = "title";
    visible = true;
}

void Title::loadSettings(const QString& prefix, const QString& organization, const QString& application)
{
    const QString key = QString("%0/%1/relativePosition").arg(prefix, name);
    setRelativePosition(QSettings(organization, application).value(key, relative).toPointF());
    Label::loadSettings(prefix, organization, application);
}

void Title::saveSettings(const QString& prefix, const QString& organization, const QString& application)
{
    if (needSave) {
        const QString key = QString("%0/%1/relativePosition").arg(prefix, name);
        QSettings(organization, application).setValue(key, relative);
    }
    Label::saveSettings(prefix, organization, application);
}

void Title::calculate()
{
    fetchMatrices();
    WindowPoint anchor;
    anchor.x = viewport[0] + relative.x() * viewport[2];
    anchor.y = viewport[1] + relative.y() * viewport[3];
    anchor.valid = true;
    placement = placeLabel(anchor, getBox());
    const QSize size = getImageSize();
    placement.corner.setX(movedInside(placement.corner.x(), size.width(), viewport[0], viewport[2]));
    placement.corner.setY(movedInside(placement.corner.y(), size.height(), viewport[1], viewport[3]));
}

bool Title::setRelativePosition(QPointF position)
{
    const QPointF normalised(fraction(position.x()), fraction(position.y()));
    if (normalised == relative)
        return false;
    relative = normalised;
    needSave = true;
    return true;
}

} // namespace Zel3D
