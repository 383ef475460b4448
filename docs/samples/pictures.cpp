#include "samples.h"

#include "plots/shplot.h"

#include <QImage>

namespace samples {

QImage screenshot(Zel3D::SHPlot& plot, const QString& path)
{
    //! [screenshot]
    plot.updateGL();
    const QImage image = plot.grabFrameBuffer();
    image.save(path); // the ending of the name chooses the format
    //! [screenshot]
    return image;
}

} // namespace samples
