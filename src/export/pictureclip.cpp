#include "export/pictureclip.h"

#include "export/rasterpicture.h"
#include "export/vectorpicture.h"
#include "plots/baseplot.h"

#include <QClipboard>
#include <QDrag>
#include <QGuiApplication>
#include <QPixmap>
#include <QPointer>

namespace Zel3D {

namespace {

constexpr int dragSize = 160;

const QString svgType = QStringLiteral("image/svg+xml");
const QString pdfType = QStringLiteral("application/pdf");

/// An image with vectors that are drawn when they are asked for.
class PictureData : public QMimeData
{
public:
    PictureData(BasePlot& drawnPlot, const PictureOptions& pictureOptions, const QImage& image)
        : plot(&drawnPlot), options(pictureOptions)
    {
        setImageData(image);
        options.progress = nullptr;
    }

    QStringList formats() const override { return QMimeData::formats() + QStringList{svgType, pdfType}; }
    bool hasFormat(const QString& type) const override { return formats().contains(type); }

protected:
    QVariant retrieveData(const QString& type, QVariant::Type wanted) const override
    {
        if (type != svgType && type != pdfType)
            return QMimeData::retrieveData(type, wanted);
        QByteArray& file = drawn[type];
        if (file.isEmpty() && plot) {
            const auto format = type == pdfType ? VectorPicture::Pdf : VectorPicture::Svg;
            file = VectorPicture(*plot, format, options).render();
        }
        return file;
    }

private:
    QPointer<BasePlot> plot;
    PictureOptions options;
    mutable QHash<QString, QByteArray> drawn;
};

} // namespace

std::unique_ptr<QMimeData> PictureClip::mimeData(BasePlot& plot, const PictureOptions& options)
{
    const QImage image = RasterPicture(plot, options).render();
    return image.isNull() ? nullptr : std::make_unique<PictureData>(plot, options, image);
}

bool PictureClip::copy(BasePlot& plot, const PictureOptions& options)
{
    std::unique_ptr<QMimeData> data = mimeData(plot, options);
    if (!data)
        return false;
    QGuiApplication::clipboard()->setMimeData(data.release());
    return true;
}

bool PictureClip::drag(BasePlot& plot, const PictureOptions& options)
{
    std::unique_ptr<QMimeData> data = mimeData(plot, options);
    if (!data)
        return false;
    const QImage image = qvariant_cast<QImage>(data->imageData());
    auto* drag = new QDrag(&plot);
    drag->setPixmap(
        QPixmap::fromImage(image.scaled(dragSize, dragSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    drag->setMimeData(data.release());
    return drag->exec(Qt::CopyAction) == Qt::CopyAction;
}

} // namespace Zel3D
