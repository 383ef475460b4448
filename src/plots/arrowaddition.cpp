#include "plots/arrowaddition.h"

#include "scene/basedraw.h"
#include "view/glscopes.h"
#include "view/rotateonto.h"

namespace Zel3D {

ArrowAddition::ArrowAddition() : quadric(std::make_unique<Quadric>(GLU_LINE))
{
    configure(3, 0.4, 0.06, 0.02);
    modified = false;
}

ArrowAddition::ArrowAddition(const ArrowAddition& other)
    : VertexAddition(other),
      quadric(std::make_unique<Quadric>(GLU_LINE)),
      tip(other.tip),
      color(other.color),
      slices(other.slices),
      headFraction(other.headFraction),
      headRadius(other.headRadius),
      shaftRadius(other.shaftRadius)
{
}

ArrowAddition& ArrowAddition::operator=(const ArrowAddition& other)
{
    if (this == &other)
        return *this;
    VertexAddition::operator=(other);
    tip = other.tip;
    color = other.color;
    slices = other.slices;
    headFraction = other.headFraction;
    headRadius = other.headRadius;
    shaftRadius = other.shaftRadius;
    return *this;
}

ArrowAddition::~ArrowAddition() = default;

void ArrowAddition::configure(int sides, double headPart, double headWidth, double shaftWidth)
{
    store(slices, sides);
    store(headFraction, headPart);
    store(headRadius, headWidth);
    store(shaftRadius, shaftWidth);
}

bool ArrowAddition::setQuality(int sides)
{
    return store(slices, sides);
}

bool ArrowAddition::setEnd(const QVector3D& point)
{
    return store(tip, point);
}

bool ArrowAddition::setColor(const QColor& value)
{
    return store(color, value);
}

Addition* ArrowAddition::clone() const
{
    return new ArrowAddition(*this);
}

void ArrowAddition::draw(const QVector3D& p)
{
    const QVector3D direction = tip - p;
    const auto length = double(direction.length());
    sendColor(color);
    const ModelViewScope matrix;
    glTranslatef(p.x(), p.y(), p.z());
    rotateOnto(direction);
    BaseDraw::setGLUnclampedLineWidth(1.0F);
    glBegin(GL_LINES);
    glVertex3d(0.0, 0.0, 0.0);
    glVertex3d(0.0, 0.0, length);
    glEnd();
    glTranslatef(0.0F, 0.0F, float((1.0 - headFraction) * length));
    gluCylinder(quadric->get(), headRadius * length, 0.0, headFraction * length, slices, 1);
}

bool ArrowAddition::reach(Parallelepiped& box)
{
    for (int k = 0; k < 3; ++k) {
        box.minimum[k] = std::min(box.minimum[k], tip[k]);
        box.maximum[k] = std::max(box.maximum[k], tip[k]);
    }
    // The head is as wide as a fraction of the arrow, which is no longer than the box's diagonal.
    const float around = std::abs(float(headRadius)) * (box.maximum - box.minimum).length();
    box.minimum -= QVector3D(around, around, around);
    box.maximum += QVector3D(around, around, around);
    return true;
}

} // namespace Zel3D
