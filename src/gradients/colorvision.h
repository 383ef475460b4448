#pragma once

#include <QCoreApplication>
#include <QGradient>

namespace Zel3D {

/// How people see colours: simulated colour-vision deficiencies and the lightness along a gradient.
class Q_DECL_EXPORT ColorVision
{
    Q_DECLARE_TR_FUNCTIONS(Zel3D::ColorVision)
public:
    enum class Kind { Normal, Protanopia, Deuteranopia, Tritanopia };

    /// What a person with the deficiency sees in place of an sRGB colour; alpha is kept. Matrices of
    /// Machado, Oliveira and Fernandes, "A Physiologically-based Model for Simulation of Color Vision
    /// Deficiency", IEEE TVCG 15(6), 2009, severity 1.0, applied to linear RGB and clamped.
    static QColor simulate(const QColor& color, Kind kind);
    /// The translated name of a kind.
    static QString name(Kind kind);

    /// CIE 1976 lightness L* (0 ... 100) of an sRGB colour under D65 (IEC 61966-2-1, CIE 15). Alpha is not
    /// looked at.
    static double lightness(const QColor& color);

    /// The course of the lightness along a gradient.
    struct Course
    {
        enum class Shape { None, Flat, Rising, Falling, Peak, Valley, Wavy };
        Shape shape = Shape::None;
        /// Turning points, reversals of less than one unit of L* not counted.
        int turns = 0;
        /// Position of the first turning point, 0 ... 1; 0 without one.
        double turn = 0.0;
        /// Greatest distance from straight lines between ends and turning point, as a share of the range of
        /// L*: 0 is perfectly even. Not told for flat and wavy courses.
        double unevenness = 0.0;
        /// Where that distance is greatest, 0 ... 1.
        double unevenAt = 0.0;

        bool isMonotone() const { return shape == Shape::Rising || shape == Shape::Falling; }
        /// Even enough that equal steps of the data look about equal: monotone courses up to 0.12, courses
        /// with one turning point up to 0.25, because good diverging gradients are rounded there.
        bool isEven() const;
    };
    static Course lightnessCourse(const QGradientStops& stops);
    /// A translated sentence for people about the course; empty for one without stops.
    static QString note(const Course& course);
};

} // namespace Zel3D
