#include "plots/pickcells.h"

namespace Zel3D {

PickCells::PickCells(const QVector<QVector3D>& drawnVertices, const QVector<QVector3D>& givenVertices)
    : drawn(drawnVertices), given(givenVertices)
{
    orderPoints();
}

SelectedObjectsInfo PickCells::info(int index) const
{
    const QVector3D& p = given.at(index);
    return {double(p.x()), double(p.y()), double(p.z()), true};
}

} // namespace Zel3D
