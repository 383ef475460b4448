#include "plots/sphereaddition.h"

#include "view/glscopes.h"

#include <cmath>
#include <typeinfo>

namespace Zel3D {

SphereAddition::SphereAddition(double sceneUnits, const QColor& fixedColor, int sliceCount, int stackCount)
    : radius(sceneUnits), color(fixedColor), slices(sliceCount), stacks(stackCount)
{
}

bool SphereAddition::setRadius(double sceneUnits)
{
    return store(radius, sceneUnits);
}

bool SphereAddition::setColor(const QColor& value)
{
    return store(color, value);
}

Addition* SphereAddition::clone() const
{
    return new SphereAddition(*this);
}

void SphereAddition::draw(const QVector3D& p)
{
    if (!plot)
        return;
    const ModelViewScope matrix;
    glTranslatef(p.x(), p.y(), p.z());
    const Quadric quadric(GLU_FILL);
    sendColor(color);
    gluSphere(quadric.get(), radius, slices, stacks);
}

bool SphereAddition::reach(Parallelepiped& box)
{
    const float around = std::abs(float(radius));
    box.minimum -= QVector3D(around, around, around);
    box.maximum += QVector3D(around, around, around);
    return true;
}

bool SphereAddition::isOpaque() const
{
    // A subclass may draw anything.
    return typeid(*this) == typeid(SphereAddition) && color.alpha() == 255;
}

} // namespace Zel3D
