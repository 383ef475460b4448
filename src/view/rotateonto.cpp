#include "view/rotateonto.h"

#include "core/types.h"
#include "view/opengl.h"

namespace Zel3D {

void rotateOnto(const QVector3D& direction)
{
    QVector3D axis;
    const double angle = getRotationAngle(axis, QVector3D(), direction);
    if (axis.isNull())
        axis = QVector3D(1.0F, 0.0F, 0.0F);
    glRotatef(float(angle), axis.x(), axis.y(), axis.z());
}

} // namespace Zel3D
