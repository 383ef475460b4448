#include "export/rasterpicture.h"

#include "export/picturesession.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Zel3D {

namespace {

constexpr int usualTile = 2048;
constexpr int smallestTile = 64;

// Lines and points that reach over the edge of a tile from outside are cut there by OpenGL: a tile is drawn
// with a margin, which must be wider than half of the widest.
constexpr double marginPerRatio = 12.0;
constexpr int largestMargin = 256;

constexpr double inchesPerMetre = 1000.0 / 25.4;

void copyTile(const QImage& drawn, const QPoint& from, QImage& image, const QRect& place)
{
    for (int y = 0; y < place.height(); ++y) {
        const uchar* source = drawn.constScanLine(from.y() + y) + 4 * from.x();
        std::memcpy(image.scanLine(place.y() + y) + 4 * place.x(), source,
                    std::size_t(4) * std::size_t(place.width()));
    }
}

} // namespace

RasterPicture::RasterPicture(BasePlot& drawnPlot, const PictureOptions& pictureOptions)
    : plot(drawnPlot), options(pictureOptions)
{
}

QImage RasterPicture::fail(const QString& reason)
{
    error = reason;
    return QImage();
}

void RasterPicture::describe(QImage& image, const BasePlot& plot, const PictureOptions& options)
{
    const int dots = qRound(options.usableResolution() * inchesPerMetre);
    image.setDotsPerMeterX(dots);
    image.setDotsPerMeterY(dots);
    const QString title = options.titleFor(plot);
    if (!title.isEmpty())
        image.setText(QStringLiteral("Title"), title);
}

QImage RasterPicture::render()
{
    error.clear();
    cancelled = false;
    const QSize size = options.pixelSize(plot);
    QImage image(size, options.transparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull())
        return fail(tr("A picture of %1 by %2 pixels is too large.").arg(size.width()).arg(size.height()));
    const double ratio = PictureOptions::ratio(plot, size);
    // The progress may let the window go on; all tiles show one moment.
    const bool kept = options.progress && std::max(size.width(), size.height()) > longestTile();
    PictureSession session(plot, ratio / plot.devicePixelRatioF(), false, kept);
    if (!session.isReady())
        return fail(session.getProblem());
    if (!paintTiles(session, image))
        return QImage();
    describe(image, plot, options);
    return image;
}

int RasterPicture::longestTile() const
{
    return options.largestTile > 0 ? options.largestTile : usualTile;
}

bool RasterPicture::paintTiles(PictureSession& session, QImage& image)
{
    PictureFrame frame;
    frame.size = image.size();
    frame.textRatio = PictureOptions::ratio(plot, image.size());
    frame.background = options.backgroundFor(plot);
    int edge = std::min(session.largestTile(), longestTile());
    edge = std::max(edge, smallestTile);
    const bool whole = std::max(image.width(), image.height()) <= edge;
    const int margin =
        whole ? 0 : std::min({int(std::ceil(marginPerRatio * frame.textRatio)), largestMargin, edge / 4});
    const QSize most =
        whole ? image.size() : image.size().boundedTo(QSize(edge, edge) - 2 * QSize(margin, margin));
    if (!session.reserve(most + 2 * QSize(margin, margin)))
        return fail(tr("The driver has no memory for a picture.")), false;
    const int columns = (image.width() + most.width() - 1) / most.width();
    const int rows = (image.height() + most.height() - 1) / most.height();
    for (int i = 0; i < columns * rows; ++i) {
        if (!options.report(i, columns * rows)) {
            cancelled = true;
            return false;
        }
        const QRect place =
            QRect(QPoint(i % columns * most.width(), i / columns * most.height()), most) & image.rect();
        const QPoint corner(place.x(), image.height() - place.y() - place.height());
        frame.tile = QRect(corner, place.size()).adjusted(-margin, -margin, margin, margin);
        const QImage drawn = options.transparent ? session.paintTransparent(frame) : session.paint(frame);
        if (drawn.isNull())
            return fail(tr("The driver could not draw the picture.")), false;
        copyTile(drawn, QPoint(margin, margin), image, place);
    }
    options.report(columns * rows, columns * rows);
    return true;
}

} // namespace Zel3D
