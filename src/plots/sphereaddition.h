#pragma once

#include "plots/vertexaddition.h"

#include <QColor>

namespace Zel3D {

/// A filled sphere in a fixed colour. Draws nothing without a plot.
class VORANPLOT_EXPORT SphereAddition : public VertexAddition
{
public:
    /// \a radius in scene units; \a slices and \a stacks as for gluSphere().
    SphereAddition(double radius, const QColor& color, int slices, int stacks);

    double getRadius() const { return radius; }
    const QColor& getColor() const { return color; }
    int getSlices() const { return slices; }
    int getStacks() const { return stacks; }
    bool setRadius(double sceneUnits);
    bool setColor(const QColor& value);

    Addition* clone() const override;
    void draw(const QVector3D& p) override;
    bool reach(Parallelepiped& box) override;
    bool isOpaque() const override;

private:
    double radius;
    QColor color;
    int slices;
    int stacks;
};

} // namespace Zel3D
