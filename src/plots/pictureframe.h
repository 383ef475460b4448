#pragma once

#include <QColor>
#include <QFlags>
#include <QRect>
#include <QSize>

namespace Zel3D {

/// What BasePlot::paintPicture() draws.
struct PictureFrame
{
    enum Part { Data = 1, Box = 2, Overlay = 4 };
    Q_DECLARE_FLAGS(Parts, Part)

    QSize size; ///< pixels of the whole picture
    /// The part that is drawn, in pixels from the lower left corner of the picture; may reach beyond it.
    QRect tile;
    double textRatio = 1.0; ///< pixels of the picture to a logical pixel of the layout
    QColor background = Qt::white;
    /// Data, normals and additions; axes, numbers and grid; legend and title. The box is laid out around the
    /// overlay that was drawn last.
    Parts parts = Parts(Data | Box | Overlay);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(PictureFrame::Parts)

} // namespace Zel3D
