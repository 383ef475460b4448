#include "export/vectorpicture.h"

#include "export/picturesession.h"
#include "export/visiblelines.h"
#include "scene/label.h"
#include "view/opengl.h"

#include <QVector2D>

#include <algorithm>
#include <random>

namespace Zel3D {

namespace {

// Texts stand at whole pixels of the frame, which is finer than the window.
constexpr double framePixels = 4.0;
constexpr double largestFrame = 16000.0;

// Axes, grid and legend: never as many, except in plots that nobody could read.
constexpr int mostFurniture = 20000;

constexpr int largestImage = 2048;
constexpr double imagePixelsPerPoint = 300.0 / 72.0;

// Of the width: how far lines stand off the surfaces on which they lie. gl2ps cuts surfaces into pieces that
// it orders by planes, which must not hide the lines on a neighbouring piece.
constexpr double lineOffset = 0.006;

// Pixels between lines that cover each other.
constexpr double samePlace = 1.0;

constexpr int steps = 4; // of the progress

/// Spreads the depths over as much as the width, so that what is steep for gl2ps is steep in the window, and
/// moves lines towards the eye.
void arrangeDepth(QVector<WindowPrimitive>& primitives, double width)
{
    float nearest = 1.0F;
    float farthest = 0.0F;
    for (const WindowPrimitive& primitive : qAsConst(primitives)) {
        for (int i = 0; i < primitive.count; ++i) {
            nearest = std::min(nearest, primitive.vertices[std::size_t(i)].place[2]);
            farthest = std::max(farthest, primitive.vertices[std::size_t(i)].place[2]);
        }
    }
    const double spread = farthest > nearest ? width / double(farthest - nearest) : 0.0;
    for (WindowPrimitive& primitive : primitives) {
        const double towardsEye = primitive.count == 2 ? lineOffset * width : 0.0;
        for (int i = 0; i < primitive.count; ++i) {
            float& z = primitive.vertices[std::size_t(i)].place[2];
            z = float(double(z - nearest) * spread - towardsEye);
        }
    }
}

bool isOpaque(const QVector<WindowPrimitive>& primitives)
{
    return std::all_of(primitives.begin(), primitives.end(), [](const WindowPrimitive& primitive) {
        return primitive.count != 3 || primitive.vertices[0].color[3] >= 1.0F;
    });
}

/// Whether a point lies on a line.
bool isOn(const WindowPrimitive& line, const WindowPrimitive::Vertex& point)
{
    const QVector2D a(line.vertices[0].place[0], line.vertices[0].place[1]);
    const QVector2D b(line.vertices[1].place[0], line.vertices[1].place[1]);
    const QVector2D p(point.place[0], point.place[1]);
    const float length = (b - a).length();
    if (length <= 0.0F)
        return double((p - a).length()) < samePlace;
    const float along = QVector2D::dotProduct(p - a, b - a) / length;
    const QVector2D foot = a + (b - a) * (qBound(0.0F, along, length) / length);
    return double((p - foot).length()) < samePlace;
}

/// Without the lines that run along earlier ones: in a window, whose depth test keeps what is there first,
/// they are not seen.
QVector<WindowPrimitive> withoutCovered(const QVector<WindowPrimitive>& primitives)
{
    QVector<WindowPrimitive> seen;
    for (const WindowPrimitive& primitive : primitives) {
        const auto covers = [&primitive](const WindowPrimitive& earlier) {
            return earlier.count == 2 && isOn(earlier, primitive.vertices[0]) &&
                   isOn(earlier, primitive.vertices[1]);
        };
        if (primitive.count != 2 || std::none_of(seen.begin(), seen.end(), covers))
            seen.append(primitive);
    }
    return seen;
}

} // namespace

VectorPicture::VectorPicture(BasePlot& drawnPlot, Format fileFormat, const PictureOptions& pictureOptions)
    : plot(drawnPlot), format(fileFormat), options(pictureOptions)
{
}

QByteArray VectorPicture::fail(const QString& reason)
{
    error = reason;
    return QByteArray();
}

bool VectorPicture::report(int done)
{
    cancelled = cancelled || !options.report(done, steps);
    return !cancelled;
}

PictureFrame VectorPicture::frameOf(double pixelsPerPoint) const
{
    PictureFrame result;
    result.size = (QSizeF(pageSize) * pixelsPerPoint).toSize().expandedTo(QSize(1, 1));
    result.tile = QRect(QPoint(0, 0), result.size);
    result.textRatio = PictureOptions::ratio(plot, QSizeF(pageSize) * pixelsPerPoint);
    result.background = options.transparent ? QColor(Qt::white) : options.backgroundFor(plot);
    return result;
}

QByteArray VectorPicture::render()
{
    error.clear();
    cancelled = false;
    hybrid = false;
    data.clear();
    pageSize = options.pointSize(plot).toSize().expandedTo(QSize(1, 1));
    const double longest = std::max(pageSize.width(), pageSize.height());
    const double window = PictureOptions::ratio(plot, pageSize);
    const double pixelsPerPoint = std::min(framePixels / window, largestFrame / longest);
    frame = frameOf(pixelsPerPoint);
    scale = 1.0 / pixelsPerPoint;
    if (!report(0))
        return QByteArray();
    {
        PictureSession session(plot, frame.textRatio / plot.devicePixelRatioF(), true);
        if (!session.isReady())
            return fail(session.getProblem());
        if (!collect(session))
            return fail(tr("Axes and legend have too many lines for a vector picture."));
        if (!hybrid)
            return report(2) ? write(session) : QByteArray();
    }
    if (!report(1))
        return QByteArray();
    if (!paintData())
        return fail(tr("The driver could not draw the picture."));
    if (!report(2))
        return QByteArray();
    // Texts remember their places in the last picture, which was that of the data.
    PictureSession session(plot, frame.textRatio / plot.devicePixelRatioF(), true);
    return session.isReady() && collect(session) ? write(session) : fail(tr("The plot cannot be drawn."));
}

/// Everything around the data, and the data where they are not too many.
bool VectorPicture::collect(PictureSession& session)
{
    FeedbackPass furniture(mostFurniture);
    frame.parts = PictureFrame::Overlay;
    if (!furniture.run(session, frame))
        return false;
    overlay = furniture.getPrimitives();
    frame.parts = PictureFrame::Box;
    if (!furniture.run(session, frame))
        return false;
    box = withoutCovered(furniture.getPrimitives());
    if (hybrid)
        return true;
    FeedbackPass pass(std::max(options.mostPolygons, 0));
    frame.parts = PictureFrame::Data;
    hybrid = !pass.run(session, frame);
    if (!hybrid)
        data = pass.getPrimitives();
    return true;
}

/// The image of the data and what it hides.
bool VectorPicture::paintData()
{
    const double longest = std::max(pageSize.width(), pageSize.height());
    PictureFrame part = frameOf(std::min(imagePixelsPerPoint, largestImage / longest));
    part.parts = PictureFrame::Data;
    PictureSession session(plot, part.textRatio / plot.devicePixelRatioF(), false);
    if (!session.isReady() || !session.reserve(part.size, false))
        return false;
    if (session.paint(part, &depth).isNull() || !session.reserve(part.size))
        return false;
    const bool alpha = options.transparent && format != Eps;
    image = alpha ? session.paintTransparent(part) : session.paint(part);
    return !image.isNull();
}

QByteArray VectorPicture::write(PictureSession& session)
{
    session.makeCurrent();
    VectorPage page(VectorPage::Format(format), pageSize, options.titleFor(plot), isOpaque(data));
    if (!options.transparent) {
        page.beginLayer(false);
        page.addRectangle(QRectF(QPointF(0.0, 0.0), pageSize), options.backgroundFor(plot));
        page.endLayer();
    }
    drawData(page);
    // In the window the depth test shows frames and ticks before the fills.
    page.beginLayer(false);
    for (const bool lines : {false, true}) {
        for (const WindowPrimitive& primitive : qAsConst(overlay)) {
            if ((primitive.count != 3) == lines)
                page.add(primitive, scale);
        }
    }
    drawTexts(page);
    page.endLayer();
    const QByteArray file = page.finish();
    glRenderMode(GL_RENDER);
    if (file.isEmpty())
        return fail(tr("The vector file cannot be made."));
    return report(steps) ? file : QByteArray();
}

void VectorPicture::drawData(VectorPage& page) const
{
    if (hybrid) {
        page.beginLayer(false);
        page.addImage(image);
        page.endLayer();
        addSorted(page,
                  VisibleLines(depth, image.size(), double(image.width()) / frame.size.width()).of(box));
        return;
    }
    addSorted(page, data + box);
}

void VectorPicture::addSorted(VectorPage& page, QVector<WindowPrimitive> primitives) const
{
    arrangeDepth(primitives, frame.size.width());
    // A tree of planes is deep when it grows in the order of a grid, and shallow in no order.
    std::minstd_rand order(1);
    for (int i = primitives.size() - 1; i > 0; --i)
        std::swap(primitives[i], primitives[int(order() % unsigned(i + 1))]);
    page.beginLayer(true);
    for (const WindowPrimitive& primitive : qAsConst(primitives))
        page.add(primitive, scale);
    page.endLayer();
}

void VectorPicture::drawTexts(VectorPage& page) const
{
    for (const Label* label : plot.getShownTexts()) {
        const Label::Settings& text = label->getSettings();
        page.addText(text.getText(), text.getFont(), frame.textRatio * scale, text.getColor(),
                     label->getRectangle().center() * scale, text.getAngle());
    }
}

} // namespace Zel3D
