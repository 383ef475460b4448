#pragma once

#include "export/pictureoptions.h"

#include <QCoreApplication>

class QPrinter;
class QWidget;

namespace Zel3D {

/// Prints a plot on a page, as large as it fits in the shape of the window.
///
/// The page gets an image: hidden surfaces need a drawing that is sorted, which printers do not take. It has
/// the printer's resolution, up to 600 dots per inch. For vectors on paper print a file of PictureWriter.
class VORANPLOT_EXPORT PicturePrinter
{
    Q_DECLARE_TR_FUNCTIONS(Zel3D::PicturePrinter)

public:
    /// Size and resolution of the options are those of the printer.
    PicturePrinter(BasePlot& drawnPlot, const PictureOptions& pictureOptions = {});

    /// Draws one page. False when that fails or is cancelled.
    bool print(QPrinter& printer);
    /// Shows the page in a dialog that can change printer and paper and print; returns once it is closed.
    void preview(QWidget* parent);
    /// One sentence; empty after a success and after a cancellation.
    const QString& getError() const { return error; }

private:
    BasePlot& plot;
    PictureOptions options;
    QString error;
};

} // namespace Zel3D
