#include "export/pictureprinter.h"

#include "export/rasterpicture.h"
#include "plots/baseplot.h"

#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include <algorithm>

namespace Zel3D {

namespace {

// Nobody sees more of a picture without texts of its own, and a sheet takes a hundred megabytes.
constexpr int highestResolution = 600;

} // namespace

PicturePrinter::PicturePrinter(BasePlot& drawnPlot, const PictureOptions& pictureOptions)
    : plot(drawnPlot), options(pictureOptions)
{
}

bool PicturePrinter::print(QPrinter& printer)
{
    error.clear();
    const QRect page = printer.pageRect();
    const QSize window = plot.size().expandedTo(QSize(1, 1));
    const QSize area = window.scaled(page.size(), Qt::KeepAspectRatio);
    const int resolution = std::min(printer.resolution(), highestResolution);
    PictureOptions sheet = options;
    sheet.resolution = resolution;
    sheet.pixels = (QSizeF(area) * resolution / printer.resolution()).toSize().expandedTo(QSize(1, 1));
    RasterPicture picture(plot, sheet);
    const QImage image = picture.render();
    if (image.isNull()) {
        error = picture.getError();
        return false;
    }
    printer.setDocName(options.titleFor(plot));
    QPainter painter;
    if (!painter.begin(&printer)) {
        error = tr("The printer takes no page.");
        return false;
    }
    const QPoint corner((page.width() - area.width()) / 2, (page.height() - area.height()) / 2);
    painter.drawImage(QRect(corner, area), image);
    if (!painter.end()) {
        error = tr("The page cannot be printed.");
        return false;
    }
    return true;
}

void PicturePrinter::preview(QWidget* parent)
{
    QPrinter printer(QPrinter::HighResolution);
    const bool wide = plot.width() > plot.height();
    printer.setPageOrientation(wide ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintPreviewDialog dialog(&printer, parent);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [this](QPrinter* shown) { print(*shown); });
    dialog.exec();
}

} // namespace Zel3D
