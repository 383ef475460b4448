#pragma once

#include "plots/pickcloud.h"

#include <QVector>

namespace Zel3D {

/// The vertices of polygon cells.
class PickCells : public PickCloud
{
public:
    /// \a drawnVertices are drawn and \a givenVertices reported; they are as many.
    PickCells(const QVector<QVector3D>& drawnVertices, const QVector<QVector3D>& givenVertices);

    int size() const override { return drawn.size(); }
    QVector3D position(int index) const override { return drawn.at(index); }
    SelectedObjectsInfo info(int index) const override;

private:
    QVector<QVector3D> drawn;
    QVector<QVector3D> given;
};

} // namespace Zel3D
