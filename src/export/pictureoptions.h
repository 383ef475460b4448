#pragma once

#include "core/export.h"

#include <QColor>
#include <QSize>
#include <QString>

#include <functional>

namespace Zel3D {

class BasePlot;

/// What a picture shall be. A plain value; as it is made, a picture of the window's size.
///
/// A picture has the layout of the window: texts, lines, points and legend take the same part of it,
/// whatever its resolution. A picture of another shape is laid out as a window of that shape would be; its
/// texts are as large as in a window that fits into it.
struct VORANPLOT_EXPORT PictureOptions
{
    /// Told how much of how much is done; false gives up, which leaves no file. It may paint windows and take
    /// events, but must not change the plot.
    using Progress = std::function<bool(int done, int total)>;

    /// The size in pixels; empty: the size in millimetres, or else the window's pixels.
    QSize pixels;
    /// The size on paper; used where pixels is empty.
    QSizeF millimetres;
    /// Dots per inch: gives the pixels of a size in millimetres, the size on paper of a size in pixels, and
    /// is written into the file. Values at or below zero count as 96.
    double resolution = 96.0;
    /// Nothing behind the plot. In JPEG files, which know no transparency, the background colour.
    bool transparent = false;
    /// Behind the plot; invalid: the plot's own background.
    QColor background;
    /// Written into the file; empty: the text of the plot's title.
    QString title;
    /// 0, small, to 100, good, of lossy formats; below zero the format's usual one.
    int quality = -1;
    /// The longest edge in pixels of what is drawn at once; a picture is put together from as many tiles as
    /// it needs. 0: what the driver offers, 2048 at most.
    int largestTile = 0;
    /// Vector pictures of data with more polygons, lines and points than this show the data as an image. See
    /// VectorPicture for the reason of the value.
    int mostPolygons = 20000;
    Progress progress;

    /// The pixels of the picture of a plot; see pixels.
    QSize pixelSize(const BasePlot& plot) const;
    /// The size on paper in points of 1/72 inch.
    QSizeF pointSize(const BasePlot& plot) const;
    /// resolution where it is usable, else 96.
    double usableResolution() const;
    QColor backgroundFor(const BasePlot& plot) const;
    QString titleFor(const BasePlot& plot) const;
    /// Pixels of a picture of a size to one logical pixel of the plot's window.
    static double ratio(const BasePlot& plot, const QSizeF& size);
    /// Calls progress, if there is one; false to give up.
    bool report(int done, int total) const { return !progress || progress(done, total); }
};

} // namespace Zel3D
