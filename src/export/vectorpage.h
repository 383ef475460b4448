#pragma once

#include "export/feedbackpass.h"

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPointF>
#include <QSize>
#include <QString>

#include <cstddef>
#include <cstdio>

class QPainterPath;
class QTransform;

namespace Zel3D {

/// One page of a vector file, written by gl2ps. Lengths are in the page's units, y upwards: points of 1/72
/// inch, in SVG pixels of 1/96 inch.
///
/// A page is made of layers, one above the other. gl2ps knows one page at a time.
class VectorPage
{
public:
    enum Format { Pdf, Svg, Eps };

    /// \a cull leaves out of sorted layers what opaque polygons hide; gl2ps takes all for opaque.
    VectorPage(Format pageFormat, const QSize& pageSize, const QString& title, bool cull);
    ~VectorPage();
    VectorPage(const VectorPage&) = delete;
    VectorPage& operator=(const VectorPage&) = delete;

    /// \a sorted: what lies behind is hidden; else what comes later covers what came before.
    void beginLayer(bool sorted);
    void endLayer();
    /// \a scale turns the pixels of the primitive into the page's units.
    void add(const WindowPrimitive& primitive, double scale);
    void addRectangle(const QRectF& rectangle, const QColor& color);
    /// Spread over the whole page; once.
    void addImage(const QImage& spread);
    /// A line of text about a centre, turned clockwise by degrees; \a scale is the size of a logical pixel.
    /// Letters that the format cannot name become outlines.
    void addText(const QString& text, const QFont& font, double scale, const QColor& color,
                 const QPointF& centre, double angle);
    /// The file; empty when gl2ps failed.
    QByteArray finish();

    Format getFormat() const { return format; }

private:
    void addSvgText(const QString& text, const QFont& font, double fontSize, const QColor& color,
                    const QPointF& place, double angle);
    /// The code of a format that draws an outline, in the page's units.
    QByteArray pathCode(const QPainterPath& path, const QColor& color) const;
    QByteArray colorCode(const QColor& color) const;
    /// Code between what gl2ps writes: as it is, or in PDF with a mark in its place.
    void addCode(const QByteArray& code, const QByteArray& fontName = "Helvetica");
    QByteArray completedPdf() const;

    Format format;
    QSize size;
    char* written = nullptr;
    std::size_t writtenSize = 0;
    std::FILE* stream;
    bool failed = false;
    QVector<QByteArray> pieces; ///< for the marks of a PDF file
    QImage image;               ///< for the place that gl2ps keeps in a PDF file
};

} // namespace Zel3D
