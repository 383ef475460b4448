#pragma once

#include "plots/pictureframe.h"

#include <QVector>

#include <array>

namespace Zel3D {

class PictureSession;

/// A point, a line or a triangle as OpenGL would rasterise it.
struct WindowPrimitive
{
    struct Vertex
    {
        std::array<float, 3> place{}; ///< pixels from the lower left corner of the picture; depth 0 to 1
        std::array<float, 4> color{}; ///< lit, as it is drawn
    };

    int count = 0; ///< of vertices: 1, 2 or 3
    std::array<Vertex, 3> vertices;
    float width = 1.0F; ///< of a line or a point, in pixels
    int stipple = 0xFFFF;
    int stippleRepeat = 0; ///< 0: a solid line
};

/// Draws parts of a plot in OpenGL's feedback mode: what would be rasterised, clipped, lit and in window
/// coordinates, in the order in which it is drawn.
class FeedbackPass
{
public:
    /// A pass of more primitives than \a most fails.
    explicit FeedbackPass(int most) : mostPrimitives(most) {}

    /// False when there are too many primitives. Needs the context of the session's plot.
    bool run(PictureSession& session, const PictureFrame& frame);
    const QVector<WindowPrimitive>& getPrimitives() const { return primitives; }

private:
    bool read(const QVector<float>& values, int count);
    void addPolygon(const float* values, int corners);
    void add(const float* values, int vertices);
    void take(float value);

    int mostPrimitives;
    QVector<WindowPrimitive> primitives;
    float lineWidth = 1.0F;
    float pointSize = 1.0F;
    int stipple = 0xFFFF;
    int stippleRepeat = 0;
    int token = 0;
    int awaited = 0; ///< values of the token
};

} // namespace Zel3D
