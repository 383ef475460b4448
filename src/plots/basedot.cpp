#include "plots/basedot.h"

#include "scene/basedraw.h"
#include "view/opengl.h"

#include <QSettings>

namespace Zel3D {

BaseDot::BaseDot(double pixels, bool round) : size(pixels), smooth(round) {}

bool BaseDot::setSize(double pixels)
{
    return store(size, pixels);
}

bool BaseDot::setSmooth(bool on)
{
    return store(smooth, on);
}

void BaseDot::drawBegin()
{
    begin();
    glBegin(GL_POINTS);
}

void BaseDot::drawEnd()
{
    glEnd();
    end();
}

void BaseDot::begin()
{
    previousSmooth = glIsEnabled(GL_POINT_SMOOTH) == GL_TRUE;
    glGetFloatv(GL_POINT_SIZE, &previousSize);
    BaseDraw::setGLEnable(GL_POINT_SMOOTH, smooth);
    BaseDraw::setGLPointSize(float(size));
}

void BaseDot::end()
{
    BaseDraw::setGLEnable(GL_POINT_SMOOTH, previousSmooth);
    BaseDraw::restoreGLPointSize(previousSize);
}

void BaseDot::select(const QVector3D& p)
{
    glBegin(GL_POINTS);
    draw(p);
    glEnd();
}

bool BaseDot::reach(Parallelepiped& /*box*/)
{
    return true;
}

void BaseDot::saveSettings(const QString& group, const QString& organization, const QString& application)
{
    if (!modified)
        return;
    QSettings store(organization, application);
    store.setValue(QString("%0/dot/size").arg(group), size);
    store.setValue(QString("%0/dot/smooth").arg(group), smooth);
}

void BaseDot::loadSettings(const QString& group, const QString& organization, const QString& application)
{
    const QSettings store(organization, application);
    size = store.value(QString("%0/dot/size").arg(group), size).toDouble();
    smooth = store.value(QString("%0/dot/smooth").arg(group), smooth).toBool();
}

} // namespace Zel3D
