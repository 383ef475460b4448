#pragma once

#include "plots/basedot.h"

#include <QColor>

namespace Zel3D {

/// A point in a fixed colour.
class VORANPLOT_EXPORT DotAddition : public BaseDot
{
public:
    DotAddition(double size, bool smooth, const QColor& color);

    const QColor& getColor() const { return color; }
    bool setColor(const QColor& value);

    Addition* clone() const override;
    void draw(const QVector3D& p) override;

private:
    QColor color;
};

} // namespace Zel3D
