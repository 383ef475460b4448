#include "plots/dot.h"

#include "core/datacolor.h"
#include "plots/baseplot.h"
#include "view/opengl.h"

namespace Zel3D {

Addition* Dot::clone() const
{
    return new Dot(*this);
}

bool Dot::sendDataColor(const QVector3D& p) const
{
    if (!plot || !plot->getDataColor())
        return false;
    sendColor((*plot->getDataColor())(p));
    return true;
}

void Dot::draw(const QVector3D& p)
{
    if (sendDataColor(p))
        glVertex3d(double(p.x()), double(p.y()), double(p.z()));
}

void Dot::selectProjection(const QVector3D& p, double z)
{
    glBegin(GL_POINTS);
    if (sendDataColor(p))
        glVertex3d(double(p.x()), double(p.y()), z);
    glEnd();
}

} // namespace Zel3D
