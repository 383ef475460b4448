#pragma once

#include "export/vectorpicture.h"

#include <QCoreApplication>
#include <QImage>
#include <QStringList>

namespace Zel3D {

/// What became of a picture.
struct PictureResult
{
    bool done = false;
    bool cancelled = false;
    /// A vector file whose data are an embedded image; message then says so.
    bool hybrid = false;
    /// One sentence for people: why there is no picture, or what is special about it. Else empty.
    QString message;
};

/// Writes pictures of plots to files, whole or not at all: what was there before stays when that fails.
///
/// \code
/// Zel3D::PictureOptions options;
/// options.millimetres = QSizeF(160, 120);
/// options.resolution = 300;
/// const Zel3D::PictureResult result = Zel3D::PictureWriter::save(plot, "terrain.png", options);
/// if (!result.done && !result.cancelled)
///     QMessageBox::warning(&plot, "Export", result.message);
/// \endcode
class VORANPLOT_EXPORT PictureWriter
{
    Q_DECLARE_TR_FUNCTIONS(Zel3D::PictureWriter)

public:
    /// The suffix of the path chooses the format: PNG, JPEG, TIFF and WebP as far as Qt has the
    /// plugin, and as vectors PDF, SVG and EPS. \a format, one of suffixes(), is used instead where it is
    /// given.
    static PictureResult save(BasePlot& plot, const QString& path, const PictureOptions& options = {},
                              const QString& format = {});
    /// Writes an image; its resolution and texts go into the file where the format has a place for them.
    static PictureResult write(const QImage& image, const QString& path, int quality = -1,
                               const QColor& background = Qt::white, const QString& format = {});
    /// Writes bytes.
    static PictureResult write(const QByteArray& bytes, const QString& path);
    /// The suffixes that save() writes here, the usual one of each format.
    static QStringList suffixes();

private:
    static PictureResult saveVectors(BasePlot& plot, const QString& path, VectorPicture::Format format,
                                     const PictureOptions& options);
    static PictureResult failure(const QString& path, const QString& reason);
};

} // namespace Zel3D
