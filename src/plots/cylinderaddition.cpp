#include "plots/cylinderaddition.h"

#include "core/colorlookup.h"
#include "core/data.h"
#include "core/datacolor.h"
#include "core/types.h"
#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "view/opengl.h"

#include <QSettings>

#include <algorithm>
#include <cmath>
#include <typeinfo>

namespace Zel3D {

namespace {
constexpr int fewestRibs = 3;
constexpr int mostRibs = 360;
} // namespace

CylinderAddition::CylinderAddition(int ribs, double sceneUnits, bool frame, double degrees)
    : ribNumber(fewestRibs)
{
    CylinderAddition::setRibNumber(ribs);
    CylinderAddition::setRadius(sceneUnits);
    CylinderAddition::setFrameVisible(frame);
    CylinderAddition::setAngleZ(degrees);
    modified = false;
}

bool CylinderAddition::setParameters(int ribs, double sceneUnits, bool frame, double degrees)
{
    bool changed = setRibNumber(ribs);
    changed = setRadius(sceneUnits) || changed;
    changed = setFrameVisible(frame) || changed;
    return setAngleZ(degrees) || changed;
}

bool CylinderAddition::setRibNumber(int ribs)
{
    return ribs >= fewestRibs && store(ribNumber, ribs);
}

bool CylinderAddition::setRadius(double sceneUnits)
{
    return sceneUnits >= 0.0 && store(radius, sceneUnits);
}

bool CylinderAddition::setFrameVisible(bool on)
{
    return store(frameVisible, on);
}

bool CylinderAddition::setAngleZ(double degrees)
{
    return store(angleZ, degrees);
}

bool CylinderAddition::setMultiplier(double factor)
{
    return factor >= 0.0 && store(multiplier, factor);
}

bool CylinderAddition::setOpacity(int percent)
{
    return percent >= 0 && percent <= 100 && store(opacity, percent);
}

Addition* CylinderAddition::clone() const
{
    auto* copy = new CylinderAddition(*this);
    // Laid out anew, with what the plot holds then.
    copy->corners.clear();
    return copy;
}

void CylinderAddition::begin()
{
    layOut();
}

void CylinderAddition::layOut()
{
    double stepX = plot && plot->getData() ? std::abs(plot->getData()->getStepX()) : 1.0;
    double stepY = plot && plot->getData() ? std::abs(plot->getData()->getStepY()) : 1.0;
    if (!(stepX > 0.0 && stepY > 0.0))
        stepX = stepY = 1.0;
    const double smaller = std::min(stepX, stepY);
    const int ribs = std::clamp(ribNumber, fewestRibs, mostRibs);
    const auto angle = [&](double corner) { return translateToRadian(angleZ + 360.0 * corner / ribs); };
    // The outline reaches just to the radius in x and in y: bars touch their neighbours and do not overlap.
    double widest = 0.0;
    double deepest = 0.0;
    for (int i = 0; i < ribs; ++i) {
        widest = std::max(widest, std::abs(std::cos(angle(i))));
        deepest = std::max(deepest, std::abs(std::sin(angle(i))));
    }
    const double radiusX = radius * multiplier * stepX / smaller / widest;
    const double radiusY = radius * multiplier * stepY / smaller / deepest;
    corners.resize(ribs);
    normals.resize(ribs);
    for (int i = 0; i < ribs; ++i) {
        corners[i] = QPointF(radiusX * std::cos(angle(i)), radiusY * std::sin(angle(i)));
        const QPointF normal(std::cos(angle(i + 0.5)) * radiusY, std::sin(angle(i + 0.5)) * radiusX);
        const double length = std::hypot(normal.x(), normal.y());
        normals[i] =
            length > 0.0 ? normal / length : QPointF(std::cos(angle(i + 0.5)), std::sin(angle(i + 0.5)));
    }
}

double CylinderAddition::baseLevel() const
{
    const Parallelepiped& hull = plot->getHull();
    const double low = std::min(double(hull.minimum.z()), double(hull.maximum.z()));
    const double high = std::max(double(hull.minimum.z()), double(hull.maximum.z()));
    return std::clamp(0.0, low, high);
}

void CylinderAddition::draw(const QVector3D& p)
{
    if (!plot || !plot->getDataColor())
        return;
    if (corners.isEmpty())
        layOut();
    const double base = baseLevel();
    const auto level = double(p.z());
    const double bottom = std::min(base, level);
    const double top = std::max(base, level);
    QColor color = (*plot->getDataColor())(p);
    color.setAlphaF(color.alphaF() * opacity / 100.0);
    sendColor(color);
    // All faces are counter-clockwise seen from outside.
    int frontFace = GL_CCW;
    glGetIntegerv(GL_FRONT_FACE, &frontFace);
    if (frontFace != GL_CCW)
        glFrontFace(GL_CCW);
    drawSides(p, bottom, top);
    drawCap(p, top, true);
    drawCap(p, bottom, false);
    if (frontFace != GL_CCW)
        glFrontFace(GLenum(frontFace));
    if (frameVisible)
        drawFrame(p, bottom, top);
}

bool CylinderAddition::reach(Parallelepiped& box)
{
    if (!plot)
        return true;
    if (corners.isEmpty())
        layOut();
    const auto base = float(baseLevel());
    box.minimum.setZ(std::min(box.minimum.z(), base));
    box.maximum.setZ(std::max(box.maximum.z(), base));
    float aroundX = 0.0F;
    float aroundY = 0.0F;
    for (const QPointF& corner : qAsConst(corners)) {
        aroundX = std::max(aroundX, std::abs(float(corner.x())));
        aroundY = std::max(aroundY, std::abs(float(corner.y())));
    }
    box.minimum -= QVector3D(aroundX, aroundY, 0.0F);
    box.maximum += QVector3D(aroundX, aroundY, 0.0F);
    return true;
}

bool CylinderAddition::isOpaque() const
{
    // The frame's lines may be smooth, and a subclass may draw anything.
    return typeid(*this) == typeid(CylinderAddition) && !frameVisible && opacity == 100 && plot &&
           plot->getDataColor() && ColorLookup(*plot->getDataColor()).isOpaque();
}

void CylinderAddition::drawSides(const QVector3D& p, double bottom, double top) const
{
    const auto x = double(p.x());
    const auto y = double(p.y());
    glBegin(GL_QUADS);
    for (int i = 0; i < corners.size(); ++i) {
        const QPointF& from = corners[i];
        const QPointF& to = corners[(i + 1) % corners.size()];
        glNormal3d(normals[i].x(), normals[i].y(), 0.0);
        glVertex3d(x + from.x(), y + from.y(), bottom);
        glVertex3d(x + to.x(), y + to.y(), bottom);
        glVertex3d(x + to.x(), y + to.y(), top);
        glVertex3d(x + from.x(), y + from.y(), top);
    }
    glEnd();
}

void CylinderAddition::drawCap(const QVector3D& p, double z, bool up) const
{
    const int count = corners.size();
    glBegin(GL_POLYGON);
    glNormal3d(0.0, 0.0, up ? 1.0 : -1.0);
    for (int i = 0; i < count; ++i) {
        const QPointF& corner = corners[up ? i : count - 1 - i];
        glVertex3d(double(p.x()) + corner.x(), double(p.y()) + corner.y(), z);
    }
    glEnd();
}

void CylinderAddition::drawFrame(const QVector3D& p, double bottom, double top) const
{
    sendColor(plot->getSettings().getMesh().getColor());
    for (const double z : {bottom, top}) {
        glBegin(GL_LINE_LOOP);
        for (const QPointF& corner : corners)
            glVertex3d(double(p.x()) + corner.x(), double(p.y()) + corner.y(), z);
        glEnd();
    }
    glBegin(GL_LINES);
    for (const QPointF& corner : corners) {
        glVertex3d(double(p.x()) + corner.x(), double(p.y()) + corner.y(), bottom);
        glVertex3d(double(p.x()) + corner.x(), double(p.y()) + corner.y(), top);
    }
    glEnd();
}

void CylinderAddition::saveSettings(const QString& group, const QString& organization,
                                    const QString& application)
{
    if (!modified)
        return;
    QSettings store(organization, application);
    store.setValue(QString("%0/cylinder/ribNumber").arg(group), ribNumber);
    store.setValue(QString("%0/cylinder/radius").arg(group), radius);
    store.setValue(QString("%0/cylinder/frameVisible").arg(group), frameVisible);
    store.setValue(QString("%0/cylinder/angleZ").arg(group), angleZ);
}

void CylinderAddition::loadSettings(const QString& group, const QString& organization,
                                    const QString& application)
{
    const QSettings store(organization, application);
    ribNumber = store.value(QString("%0/cylinder/ribNumber").arg(group), ribNumber).toInt();
    radius = store.value(QString("%0/cylinder/radius").arg(group), radius).toDouble();
    frameVisible = store.value(QString("%0/cylinder/frameVisible").arg(group), frameVisible).toBool();
    angleZ = store.value(QString("%0/cylinder/angleZ").arg(group), angleZ).toDouble();
}

} // namespace Zel3D
