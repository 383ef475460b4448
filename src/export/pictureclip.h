#pragma once

#include "export/pictureoptions.h"

#include <QMimeData>

#include <memory>

namespace Zel3D {

/// Pictures of a plot for other programs: the clipboard, and dragging out of the window.
///
/// Both offer the picture as an image at once, and as SVG and PDF drawn only when a program asks for them; as
/// long as the plot lives, and as it is then.
class VORANPLOT_EXPORT PictureClip
{
public:
    /// Puts the picture on the clipboard. False when it cannot be drawn.
    static bool copy(BasePlot& plot, const PictureOptions& options = {});
    /// Drags the picture from the plot until it is dropped: call it from a mouse event. False when it was
    /// dropped nowhere or cannot be drawn.
    static bool drag(BasePlot& plot, const PictureOptions& options = {});
    /// What copy() and drag() offer; null when the picture cannot be drawn.
    static std::unique_ptr<QMimeData> mimeData(BasePlot& plot, const PictureOptions& options = {});
};

} // namespace Zel3D
