#include "plots/addition.h"

#include "view/opengl.h"

#include <QColor>

namespace Zel3D {

Addition::~Addition() = default;

void Addition::drawBegin()
{
    begin();
}

void Addition::drawEnd()
{
    end();
}

void Addition::begin() {}

void Addition::end() {}

void Addition::setPlot(const BasePlot& owner)
{
    plot = &owner;
}

void Addition::select(const QVector3D& p)
{
    draw(p);
}

void Addition::selectProjection(const QVector3D& p, double z)
{
    select(QVector3D(p.x(), p.y(), float(z)));
}

void Addition::sendColor(const QColor& color)
{
    glColor4d(color.redF(), color.greenF(), color.blueF(), color.alphaF());
}

bool Addition::reach(Parallelepiped& /*box*/)
{
    return false;
}

bool Addition::isOpaque() const
{
    return false;
}

} // namespace Zel3D
