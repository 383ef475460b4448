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
    placement = placedIn(QRect(viewport[0], viewport[1], viewport[2], viewport[3]));
}

LabelPlacement Title::placedIn(const QRect& window)
{
    WindowPoint anchor;
    anchor.x = window.x() + relative.x() * window.width();
    anchor.y = window.y() + relative.y() * window.height();
    anchor.valid = true;
    LabelPlacement place = placeLabel(anchor, getBox());
    const QSize size = getImageSize();
    place.corner.setX(movedInside(place.corner.x(), size.width(), window.x(), window.width()));
    place.corner.setY(movedInside(place.corner.y(), size.height(), window.y(), window.height()));
    return place;
}

double Title::getReservedTop(const QSize& window)
{
    if (!visible || getSettings().getText().isEmpty() || getSettings().isBlank() || relative.y() < 0.5)
        return 0.0;
    const int lowerEdge = placedIn(QRect(QPoint(0, 0), window)).corner.y();
    return std::clamp(window.height() - lowerEdge, 0, window.height()) / getPixelRatio();
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
