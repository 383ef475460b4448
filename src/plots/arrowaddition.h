#pragma once

#include "plots/vertexaddition.h"

#include <QColor>

#include <memory>

namespace Zel3D {

class Quadric;

/// An arrow from the marked point to an end point.
class VORANPLOT_EXPORT ArrowAddition : public VertexAddition
{
public:
    /// configure(3, 0.4, 0.06, 0.02), black, ending at the origin.
    ArrowAddition();
    ArrowAddition(const ArrowAddition& other);
    ArrowAddition& operator=(const ArrowAddition& other);
    ~ArrowAddition() override;

    /// \a sides of the head; \a headPart and \a headWidth are the head's length and radius as fractions of
    /// the arrow's length. \a shaftWidth is kept and not drawn: the shaft is a line.
    void configure(int sides, double headPart, double headWidth, double shaftWidth);
    /// The sides of the head alone.
    bool setQuality(int sides);
    /// The tip, in scene units.
    bool setEnd(const QVector3D& point);
    bool setColor(const QColor& value);
    const QVector3D& getEnd() const { return tip; }
    const QColor& getColor() const { return color; }
    int getQuality() const { return slices; }

    Addition* clone() const override;
    void draw(const QVector3D& p) override;
    bool reach(Parallelepiped& box) override;

private:
    std::unique_ptr<Quadric> quadric;
    QVector3D tip;
    QColor color = Qt::black;
    int slices = 0;
    double headFraction = 0.0;
    double headRadius = 0.0;
    double shaftRadius = 0.0;
};

} // namespace Zel3D
