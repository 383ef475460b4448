#include "export/feedbackpass.h"

#include "export/picturesession.h"
#include "scene/drawtarget.h"
#include "view/opengl.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int vertexValues = 7; // of GL_3D_COLOR: place and colour

// A triangle: its token, its number of corners and they; twice that for what is told of strokes.
constexpr qint64 valuesPerPrimitive = 2 + 3 * vertexValues;
constexpr float smallestArea = 0.02F; // twice the area, in pixels

constexpr qint64 fewestValues = 1 << 18;

WindowPrimitive::Vertex vertexAt(const float* values)
{
    return {{values[0], values[1], values[2]}, {values[3], values[4], values[5], values[6]}};
}

/// Whether a triangle shows anything. Strips that turn have triangles without; seen from the side, a triangle
/// that is thinner than this cannot be sorted.
bool hasArea(const WindowPrimitive& triangle)
{
    const auto& a = triangle.vertices[0].place;
    const auto& b = triangle.vertices[1].place;
    const auto& c = triangle.vertices[2].place;
    return std::abs((b[0] - a[0]) * (c[1] - a[1]) - (c[0] - a[0]) * (b[1] - a[1])) > smallestArea;
}

} // namespace

bool FeedbackPass::run(PictureSession& session, const PictureFrame& frame)
{
    primitives.clear();
    QVector<float> values(int(std::max(fewestValues, valuesPerPrimitive * (mostPrimitives + 1))));
    glFeedbackBuffer(values.size(), GL_3D_COLOR, values.data());
    glRenderMode(GL_FEEDBACK);
    session.paintOnly(frame);
    const int count = glRenderMode(GL_RENDER);
    return count >= 0 && read(values, count);
}

bool FeedbackPass::read(const QVector<float>& values, int count)
{
    for (int i = 0; i < count && primitives.size() <= mostPrimitives;) {
        const int kind = int(values.at(i++));
        const float* data = values.constData() + i;
        switch (kind) {
        case GL_POINT_TOKEN:
            add(data, 1);
            i += vertexValues;
            break;
        case GL_LINE_TOKEN:
        case GL_LINE_RESET_TOKEN:
            add(data, 2);
            i += 2 * vertexValues;
            break;
        case GL_POLYGON_TOKEN:
            addPolygon(data + 1, int(data[0]));
            i += 1 + int(data[0]) * vertexValues;
            break;
        case GL_PASS_THROUGH_TOKEN:
            take(data[0]);
            ++i;
            break;
        default: // pixels of texts, which are told by the plot
            i += vertexValues;
        }
    }
    return primitives.size() <= mostPrimitives;
}

void FeedbackPass::addPolygon(const float* values, int corners)
{
    for (int corner = 2; corner < corners; ++corner) {
        WindowPrimitive triangle;
        triangle.count = 3;
        triangle.vertices = {vertexAt(values), vertexAt(values + (corner - 1) * vertexValues),
                             vertexAt(values + corner * vertexValues)};
        if (hasArea(triangle))
            primitives.append(triangle);
    }
}

void FeedbackPass::add(const float* values, int vertices)
{
    WindowPrimitive primitive;
    primitive.count = vertices;
    for (int i = 0; i < vertices; ++i)
        primitive.vertices[std::size_t(i)] = vertexAt(values + i * vertexValues);
    primitive.width = vertices == 1 ? pointSize : lineWidth;
    primitive.stipple = stipple;
    primitive.stippleRepeat = vertices == 1 ? 0 : stippleRepeat;
    primitives.append(primitive);
}

/// A token of a stroke or one of its values; see StrokeToken.
void FeedbackPass::take(float value)
{
    if (awaited == 0) {
        token = int(value);
        awaited = token == LineStippleToken ? 2 : token == LineWidthToken || token == PointSizeToken ? 1 : 0;
        return;
    }
    --awaited;
    if (token == LineWidthToken)
        lineWidth = value;
    else if (token == PointSizeToken)
        pointSize = value;
    else
        (awaited == 1 ? stipple : stippleRepeat) = int(value);
}

} // namespace Zel3D
