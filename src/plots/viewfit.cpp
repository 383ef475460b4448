#include "plots/viewfit.h"

#include <QMatrix4x4>

#include <algorithm>
#include <cmath>

namespace Zel3D::ViewFit {

double zoom(const Parallelepiped& box, const ValueXYZ<double>& scale, const ValueXYZ<double>& rotation,
            double aspect, double part)
{
    const QVector3D half = (box.maximum - box.minimum) * 0.5F;
    // The camera's own turns; on the shorter side of the window its view reaches as far as the corners of the
    // box before scaling.
    QMatrix4x4 turned;
    turned.rotate(float(rotation.x - 90.0), 1.0F, 0.0F, 0.0F);
    turned.rotate(float(rotation.y), 0.0F, 1.0F, 0.0F);
    turned.rotate(float(rotation.z), 0.0F, 0.0F, 1.0F);
    float reach = 0.0F;
    for (int corner = 0; corner < 4; ++corner) {
        const QVector3D p(half.x() * float(scale.x) * ((corner & 1) != 0 ? 1.0F : -1.0F),
                          half.y() * float(scale.y) * ((corner & 2) != 0 ? 1.0F : -1.0F),
                          half.z() * float(scale.z));
        const QVector3D seen = turned.map(p);
        reach = std::max({reach, std::abs(seen.x()) / float(std::max(aspect, 1.0)),
                          std::abs(seen.y()) / float(std::max(1.0 / aspect, 1.0))});
    }
    return reach > 0.0F ? part * double(half.length()) / double(reach) : 1.0;
}

} // namespace Zel3D::ViewFit
