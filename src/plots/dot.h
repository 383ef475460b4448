#pragma once

#include "plots/basedot.h"

namespace Zel3D {

/// A point in the colour that the plot's data colouring gives its place. Draws nothing without a plot.
class VORANPLOT_EXPORT Dot : public BaseDot
{
public:
    using BaseDot::BaseDot;

    Addition* clone() const override;
    void draw(const QVector3D& p) override;
    /// The point at (p.x, p.y, z), coloured by p.
    void selectProjection(const QVector3D& p, double z) override;

private:
    bool sendDataColor(const QVector3D& p) const;
};

} // namespace Zel3D
