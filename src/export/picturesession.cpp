#include "export/picturesession.h"

#include "view/opengl.h"

#include <QCoreApplication>
#include <QGLFramebufferObject>
#include <QImage>

#include <algorithm>
#include <array>

namespace Zel3D {

namespace {

/// The alpha and the premultiplied colour of what looks so on black and so on white.
QRgb separated(QRgb onBlack, QRgb onWhite)
{
    const int difference = std::max(
        {qRed(onWhite) - qRed(onBlack), qGreen(onWhite) - qGreen(onBlack), qBlue(onWhite) - qBlue(onBlack)});
    const int alpha = std::clamp(255 - difference, 0, 255);
    return qRgba(std::min(qRed(onBlack), alpha), std::min(qGreen(onBlack), alpha),
                 std::min(qBlue(onBlack), alpha), alpha);
}

} // namespace

PictureSession::PictureSession(BasePlot& drawnPlot, double strokeScale, bool tellStrokes, bool kept)
    : plot(drawnPlot), ready(plot.beginPicture(strokeScale, tellStrokes, kept))
{
}

PictureSession::~PictureSession()
{
    if (!ready)
        return;
    makeCurrent();
    buffer.reset();
    plot.endPicture();
    // What the texts and the legend remember of their places is the window's again.
    if (plot.isVisible())
        plot.update();
}

QString PictureSession::getProblem() const
{
    const QString problem = plot.getContextProblem();
    return problem.isEmpty() ? QCoreApplication::translate("PictureSession",
                                                           "The plot cannot be drawn: it is just loading.")
                             : problem;
}

void PictureSession::makeCurrent()
{
    plot.makeCurrent();
}

int PictureSession::largestTile() const
{
    std::array<int, 2> viewport{};
    int renderBuffer = 0;
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, viewport.data());
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &renderBuffer);
    return std::max(64, std::min({viewport[0], viewport[1], renderBuffer}));
}

bool PictureSession::reserve(const QSize& size, bool smoothed)
{
    makeCurrent();
    buffer.reset();
    QGLFramebufferObjectFormat format;
    format.setAttachment(QGLFramebufferObject::Depth);
    for (int samples : {smoothed ? std::max(0, plot.format().samples()) : 0, 0}) {
        format.setSamples(samples);
        buffer = std::make_unique<QGLFramebufferObject>(size, format);
        if (buffer->isValid())
            return true;
    }
    buffer.reset();
    return false;
}

QImage PictureSession::paint(const PictureFrame& frame, QVector<float>* depth)
{
    makeCurrent();
    if (!buffer || !buffer->bind())
        return QImage();
    plot.paintPicture(frame);
    QImage image = buffer->toImage();
    if (depth)
        *depth = readDepth(frame.tile.size());
    buffer->release();
    // The tile lies in the lower left corner of the memory.
    const int spare = image.height() - frame.tile.height();
    if (spare != 0 || image.width() != frame.tile.width())
        image = image.copy(0, spare, frame.tile.width(), frame.tile.height());
    return image.convertToFormat(QImage::Format_RGB32);
}

QImage PictureSession::paintTransparent(PictureFrame frame)
{
    // Whatever blending draws with, two backgrounds tell colour and alpha; the alpha in the framebuffer does
    // not.
    frame.background = Qt::black;
    const QImage onBlack = paint(frame);
    frame.background = Qt::white;
    const QImage onWhite = paint(frame);
    if (onBlack.isNull() || onWhite.isNull())
        return QImage();
    QImage image(onBlack.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        const auto* black = reinterpret_cast<const QRgb*>(onBlack.constScanLine(y));
        const auto* white = reinterpret_cast<const QRgb*>(onWhite.constScanLine(y));
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(black, black + image.width(), white, line, separated);
    }
    return image;
}

void PictureSession::paintOnly(const PictureFrame& frame)
{
    plot.paintPicture(frame);
}

QVector<float> PictureSession::readDepth(const QSize& size)
{
    QVector<float> depth(size.width() * size.height());
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    glReadPixels(0, 0, size.width(), size.height(), GL_DEPTH_COMPONENT, GL_FLOAT, depth.data());
    return depth;
}

} // namespace Zel3D
