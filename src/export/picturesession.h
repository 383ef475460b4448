#pragma once

#include "plots/baseplot.h"
#include "plots/pictureframe.h"

class QImage;
class QGLFramebufferObject;

namespace Zel3D {

/// Keeps a plot ready to draw pictures while it lives, and draws them tile by tile into memory.
class PictureSession
{
public:
    /// See BasePlot::beginPicture().
    PictureSession(BasePlot& drawnPlot, double strokeScale, bool tellStrokes, bool kept = false);
    ~PictureSession();
    PictureSession(const PictureSession&) = delete;
    PictureSession& operator=(const PictureSession&) = delete;

    /// False when the plot has no context or is just loading.
    bool isReady() const { return ready; }
    /// Why not, as a sentence.
    QString getProblem() const;
    /// Reserves memory for tiles of a size; false when the driver has none. Depths can only be read back
    /// where edges are not smoothed.
    bool reserve(const QSize& size, bool smoothed = true);
    /// The longest edge of a tile that the driver offers.
    int largestTile() const;
    /// Draws into the reserved memory. The image has the tile's size and rows downwards. \a depth, if given,
    /// receives the depth of each pixel, 0 to 1, rows upwards.
    QImage paint(const PictureFrame& frame, QVector<float>* depth = nullptr);
    /// As paint(), with an alpha channel and nothing in the background.
    QImage paintTransparent(PictureFrame frame);
    /// Draws without reading pixels back, for what feedback mode reports.
    void paintOnly(const PictureFrame& frame);

    /// Makes the context of the plot current.
    void makeCurrent();

private:
    QVector<float> readDepth(const QSize& size);

    BasePlot& plot;
    bool ready;
    std::unique_ptr<QGLFramebufferObject> buffer;
};

} // namespace Zel3D
