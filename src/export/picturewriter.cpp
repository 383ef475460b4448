#include "export/picturewriter.h"

#include "export/rasterpicture.h"
#include "plots/baseplot.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>

#include <array>
#include <utility>

namespace Zel3D {

namespace {

constexpr std::array<std::pair<const char*, VectorPicture::Format>, 3> vectorFormats{
    {{"pdf", VectorPicture::Pdf}, {"svg", VectorPicture::Svg}, {"eps", VectorPicture::Eps}}};

/// The name by which QImageWriter knows a suffix; empty for one that is no format of this library.
QByteArray imageFormat(const QString& suffix)
{
    const QString lower = suffix.toLower();
    if (lower == QLatin1String("jpg") || lower == QLatin1String("jpeg"))
        return "jpeg";
    if (lower == QLatin1String("tif") || lower == QLatin1String("tiff"))
        return "tiff";
    if (lower == QLatin1String("png") || lower == QLatin1String("webp"))
        return lower.toLatin1();
    return QByteArray();
}

QImage withoutAlpha(const QImage& image, const QColor& background)
{
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(background);
    QPainter(&opaque).drawImage(0, 0, image);
    opaque.setDotsPerMeterX(image.dotsPerMeterX());
    opaque.setDotsPerMeterY(image.dotsPerMeterY());
    for (const QString& key : image.textKeys())
        opaque.setText(key, image.text(key));
    return opaque;
}

} // namespace

PictureResult PictureWriter::failure(const QString& path, const QString& reason)
{
    PictureResult result;
    result.message = tr("The picture \"%1\" cannot be written: %2.").arg(path, reason);
    return result;
}

PictureResult PictureWriter::save(BasePlot& plot, const QString& path, const PictureOptions& options,
                                  const QString& format)
{
    const QString suffix = format.isEmpty() ? QFileInfo(path).suffix() : format;
    const QString lower = suffix.toLower();
    for (const auto& [name, vectors] : vectorFormats) {
        if (lower == QLatin1String(name))
            return saveVectors(plot, path, vectors, options);
    }
    if (imageFormat(suffix).isEmpty())
        return failure(path, suffix.isEmpty() ? tr("its name has no suffix that tells the format")
                                              : tr("\"%1\" is not a format of pictures").arg(suffix));
    RasterPicture picture(plot, options);
    const QImage image = picture.render();
    if (!image.isNull())
        return write(image, path, options.quality, options.backgroundFor(plot), suffix);
    PictureResult result;
    result.cancelled = picture.isCancelled();
    result.message = picture.getError();
    return result;
}

PictureResult PictureWriter::saveVectors(BasePlot& plot, const QString& path, VectorPicture::Format format,
                                         const PictureOptions& options)
{
    VectorPicture picture(plot, format, options);
    const QByteArray file = picture.render();
    PictureResult result;
    if (file.isEmpty()) {
        result.cancelled = picture.isCancelled();
        result.message = picture.getError();
        return result;
    }
    result = write(file, path);
    result.hybrid = picture.isHybrid();
    if (result.done && result.hybrid)
        result.message =
            tr("The data have more than %1 polygons, lines and points; they are an image in the file.")
                .arg(options.mostPolygons);
    return result;
}

PictureResult PictureWriter::write(const QImage& image, const QString& path, int quality,
                                   const QColor& background, const QString& format)
{
    const QString suffix = format.isEmpty() ? QFileInfo(path).suffix() : format;
    const QByteArray written = imageFormat(suffix);
    if (!QImageWriter::supportedImageFormats().contains(written))
        return failure(path, tr("Qt has no plugin that writes \"%1\"").arg(suffix));
    // Into memory first: plugins leave out what a device that fails does not take.
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, written);
    writer.setQuality(quality);
    if (written == "tiff")
        writer.setCompression(1);
    const bool opaque = written == "jpeg" && image.hasAlphaChannel();
    if (!writer.write(opaque ? withoutAlpha(image, background) : image))
        return failure(path, writer.errorString());
    return write(buffer.data(), path);
}

PictureResult PictureWriter::write(const QByteArray& bytes, const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return failure(path, tr("it is a folder"));
    if (!info.absoluteDir().exists())
        return failure(path, tr("the folder \"%1\" does not exist").arg(info.path()));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return failure(path, file.errorString());
    PictureResult result;
    result.done = true;
    return result;
}

QStringList PictureWriter::suffixes()
{
    QStringList found;
    const QList<QByteArray> supported = QImageWriter::supportedImageFormats();
    for (const char* suffix : {"png", "jpg", "tif", "webp"}) {
        if (supported.contains(imageFormat(QLatin1String(suffix))))
            found.append(QLatin1String(suffix));
    }
    for (const auto& format : vectorFormats)
        found.append(QLatin1String(format.first));
    return found;
}

} // namespace Zel3D
