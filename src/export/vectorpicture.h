#pragma once

#include "export/pictureoptions.h"
#include "export/vectorpage.h"

#include <QCoreApplication>

namespace Zel3D {

class PictureSession;

/// Draws a plot into a PDF, SVG or EPS file: polygons, lines and points with hidden surfaces removed, and
/// texts as texts.
///
/// gl2ps sorts the data by a tree of planes, which cuts polygons into pieces, and viewers draw each piece by
/// itself. At the limit that PictureOptions::mostPolygons gives by default that takes some seconds and 250
/// megabytes of memory, and the file has 3 (PDF) to 11 megabytes (SVG); all grow faster than the number of
/// polygons. Beyond the limit the data become an image of up to 2048 pixels a side, and axes, grid, numbers,
/// title and legend stay vectors; isHybrid() says so.
class VORANPLOT_EXPORT VectorPicture
{
    Q_DECLARE_TR_FUNCTIONS(Zel3D::VectorPicture)

public:
    enum Format { Pdf, Svg, Eps };

    VectorPicture(BasePlot& drawnPlot, Format fileFormat, const PictureOptions& pictureOptions);

    /// The file; empty when that fails or is cancelled.
    QByteArray render();
    /// Whether the data of the last picture are an image.
    bool isHybrid() const { return hybrid; }
    /// One sentence; empty after a success and after a cancellation.
    const QString& getError() const { return error; }
    bool isCancelled() const { return cancelled; }

private:
    bool report(int done);
    QByteArray fail(const QString& reason);
    PictureFrame frameOf(double pixelsPerUnit) const;
    bool collect(PictureSession& session);
    bool paintData();
    void drawTexts(VectorPage& page) const;
    void drawData(VectorPage& page) const;
    void addSorted(VectorPage& page, QVector<WindowPrimitive> primitives) const;
    QByteArray write(PictureSession& session);

    BasePlot& plot;
    Format format;
    PictureOptions options;
    QSize pageSize; ///< in points
    PictureFrame frame;
    double scale = 1.0; ///< points per pixel of the frame
    QVector<WindowPrimitive> overlay;
    QVector<WindowPrimitive> box;
    QVector<WindowPrimitive> data;
    QImage image;
    QVector<float> depth; ///< of the image, rows upwards
    bool hybrid = false;
    bool cancelled = false;
    QString error;
};

} // namespace Zel3D
