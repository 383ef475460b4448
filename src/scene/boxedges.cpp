#include "scene/boxedges.h"

namespace Zel3D {

namespace {

constexpr int atSecondX = 1;
constexpr int atSecondY = 2;
constexpr int atSecondZ = 4;

struct EdgeStart
{
    BaseAxisType base;
    int corner;
};

/// By AxisType. Back, right and top are the sides of the second corner.
constexpr std::array<EdgeStart, 12> edges{{{XAxis, 0},
                                           {YAxis, 0},
                                           {ZAxis, atSecondY},
                                           {XAxis, atSecondZ},
                                           {XAxis, atSecondY | atSecondZ},
                                           {XAxis, atSecondY},
                                           {YAxis, atSecondZ},
                                           {YAxis, atSecondX | atSecondZ},
                                           {YAxis, atSecondX},
                                           {ZAxis, 0},
                                           {ZAxis, atSecondX | atSecondY},
                                           {ZAxis, atSecondX}}};

const EdgeStart& edgeStart(AxisType type)
{
    const bool known = type >= XFrontBottom && type <= ZFrontRight;
    return edges[known ? std::size_t(type) : 0];
}

} // namespace

BaseAxisType baseAxisType(AxisType type)
{
    return edgeStart(type).base;
}

const std::array<AxisType, 4>& axesOf(BaseAxisType base)
{
    static const std::array<std::array<AxisType, 4>, 3> axes{
        {{XFrontBottom, XFrontTop, XBackTop, XBackBottom},
         {YLeftBottom, YRightBottom, YRightTop, YLeftTop},
         {ZBackLeft, ZFrontLeft, ZFrontRight, ZBackRight}}};
    const bool known = base >= XAxis && base <= ZAxis;
    return axes[known ? std::size_t(base) : 0];
}

int startCorner(AxisType type)
{
    return edgeStart(type).corner;
}

int endCorner(AxisType type)
{
    return startCorner(type) | (1 << int(baseAxisType(type)));
}

QVector3D boxCorner(int corner, const QVector3D& first, const QVector3D& second)
{
    return QVector3D((corner & atSecondX) ? second.x() : first.x(),
                     (corner & atSecondY) ? second.y() : first.y(),
                     (corner & atSecondZ) ? second.z() : first.z());
}

BoxEdge boxEdge(AxisType type, const QVector3D& first, const QVector3D& second)
{
    const int corner = startCorner(type);
    BoxEdge edge;
    edge.start = boxCorner(corner, first, second);
    edge.end = boxCorner(endCorner(type), first, second);
    if (baseAxisType(type) == XAxis) {
        const bool positive = bool(corner & atSecondY) == (first.y() <= second.y());
        edge.ticDirection = QVector3D(0.0F, positive ? 1.0F : -1.0F, 0.0F);
    } else {
        const bool positive = bool(corner & atSecondX) == (first.x() <= second.x());
        edge.ticDirection = QVector3D(positive ? 1.0F : -1.0F, 0.0F, 0.0F);
    }
    return edge;
}

} // namespace Zel3D
