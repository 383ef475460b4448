#pragma once

#include "export/pictureoptions.h"
#include "plots/pictureframe.h"

#include <QCoreApplication>
#include <QImage>

namespace Zel3D {

class PictureSession;

/// Renders a plot into an image of any size.
///
/// The image is put together from tiles that the driver can draw, so that neither the window nor the driver
/// limits it, only memory: four bytes a pixel. The plot stays as it
/// is. It need not be visible, nor ever have been. Lines wider than the driver draws are drawn as wide as it
/// can.
class VORANPLOT_EXPORT RasterPicture
{
    Q_DECLARE_TR_FUNCTIONS(Zel3D::RasterPicture)

public:
    RasterPicture(BasePlot& drawnPlot, const PictureOptions& pictureOptions);

    /// The image, with resolution and title; null when that fails or is cancelled.
    QImage render();
    /// One sentence; empty after a success and after a cancellation.
    const QString& getError() const { return error; }
    bool isCancelled() const { return cancelled; }

    /// Writes resolution and title into an image.
    static void describe(QImage& image, const BasePlot& plot, const PictureOptions& options);

private:
    int longestTile() const;
    bool paintTiles(PictureSession& session, QImage& image);
    QImage fail(const QString& reason);

    BasePlot& plot;
    PictureOptions options;
    QString error;
    bool cancelled = false;
};

} // namespace Zel3D
