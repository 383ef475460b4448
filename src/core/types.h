#pragma once

#include "core/export.h"

#include <QMetaType>
#include <QObject>
#include <QVector3D>

namespace Zel3D {

// Forms name the values of an enumeration that is known here.
Q_NAMESPACE_EXPORT(VORANPLOT_EXPORT)

// Enumerations that are stored have a fixed type: a damaged store may hold any number.

/// The camera of the view. The values are persisted and are the order of the settings' combo box.
enum ProjectionType : int {
    Orthogonal = 0, ///< parallel rays, shown as "Orthogonal"
    Perspective = 1 ///< rays through one eye point, shown as "Perspective"
};
Q_ENUM_NS(ProjectionType)

/// The scale of an axis. The values are persisted and are the order of the settings' combo box.
enum ScaleType : int {
    Linear = 0,     ///< shown as "Linear"
    Logarithmic = 1 ///< base 10; positions are decimal exponents; shown as "Logarithmic"
};

/// A coordinate direction.
enum BaseAxisType : int {
    XAxis = 0, ///< the x direction
    YAxis = 1, ///< the y direction
    ZAxis = 2  ///< the z direction
};

/// One of the twelve edges of the coordinate box and the axis object that stands on it. The name says the
/// direction of the edge and the two faces that meet in it.
enum AxisType : int {
    XFrontBottom = 0,
    YLeftBottom = 1,
    ZBackLeft = 2,
    XFrontTop = 3,
    XBackTop = 4,
    XBackBottom = 5,
    YLeftTop = 6,
    YRightTop = 7,
    YRightBottom = 8,
    ZFrontLeft = 9,
    ZBackRight = 10,
    ZFrontRight = 11
};

/// Whether a and b are equal up to relative machine epsilon.
///
/// Despite its name this is a fuzzy equality test: for b == 0 it tells whether |a| is at most the smallest
/// normal double, otherwise whether |a - b| <= 2.22e-16 * min(|a|, |b|). The tolerance is much tighter than
/// Qt's own fuzzy compare. Not symmetric in a zero: isZero(1e-310, 0) is true, isZero(0, 1e-310) is not.
template <class T>
bool isZero(T a, T b);

template <>
VORANPLOT_EXPORT bool isZero<double>(double a, double b);

/// degrees * pi / 180.
VORANPLOT_EXPORT double translateToRadian(double degrees);

/// The rotation that turns the +Z axis onto the direction from -> to.
///
/// Sets \a axis to the normalised cross product of (0, 0, 1) and the direction and returns the angle between
/// them in degrees, 0 to 180: `glRotatef(angle, axis.x(), axis.y(), axis.z())` turns an object drawn along
/// +Z. For a direction along Z the axis is the zero vector.
VORANPLOT_EXPORT double getRotationAngle(QVector3D& axis, const QVector3D& from, const QVector3D& to);

/// Three values in x, y, z order: a rotation in degrees, a shift in scene units or a scale.
template <class T>
struct ValueXYZ
{
    T x = T();
    T y = T();
    T z = T();

    /// Fuzzy per component with the rule of isZero(): true when any pair differs.
    bool operator!=(const ValueXYZ& other) const
    {
        return !isZero(x, other.x) || !isZero(y, other.y) || !isZero(z, other.z);
    }
};

/// Two values: the viewport shift in fractions of the view radius.
template <class T>
struct ValueXY
{
    T x = T();
    T y = T();
};

/// The lower and the upper end of a range.
template <class T>
class Pair
{
public:
    Pair() = default;
    Pair(T lower, T upper) : first(lower), second(upper) {}
    Pair(const Pair&) = default;
    Pair& operator=(const Pair&) = default;
    virtual ~Pair() = default;

    T first = T();  ///< the lower end
    T second = T(); ///< the upper end
};

/// An axis-aligned box given by two corners.
struct Parallelepiped
{
    QVector3D minimum;
    QVector3D maximum;
};

/// Whether all six coordinates are exactly equal.
VORANPLOT_EXPORT bool operator==(const Parallelepiped& a, const Parallelepiped& b);

/// One hit of a pick through the OpenGL selection buffer.
struct SelectionInfo
{
    int id = 0;                ///< the innermost name on the hit's name stack, always positive
    int stackPosition = 0;     ///< the number of names on the hit's stack
    double minimumDepth = 0.0; ///< 0 (near) to about 2: the unsigned depth divided by 2147483647
    double maximumDepth = 0.0; ///< as minimumDepth
};

/// What a pick reports about the picked object. A record with valid false means that nothing is selected.
struct SelectedObjectsInfo
{
    double x = 0.0; ///< coordinates as the caller of the plot gave them
    double y = 0.0;
    double z = 0.0;
    bool valid = false;
};

} // namespace Zel3D

Q_DECLARE_METATYPE(Zel3D::ProjectionType)
Q_DECLARE_METATYPE(Zel3D::ScaleType)
Q_DECLARE_METATYPE(Zel3D::SelectedObjectsInfo)
