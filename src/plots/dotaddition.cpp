#include "plots/dotaddition.h"

#include "view/opengl.h"

namespace Zel3D {

DotAddition::DotAddition(double pixels, bool round, const QColor& fixedColor)
    : BaseDot(pixels, round), color(fixedColor)
{
}

bool DotAddition::setColor(const QColor& value)
{
    return store(color, value);
}

Addition* DotAddition::clone() const
{
    return new DotAddition(*this);
}

void DotAddition::draw(const QVector3D& p)
{
    sendColor(color);
    glVertex3d(double(p.x()), double(p.y()), double(p.z()));
}

} // namespace Zel3D
