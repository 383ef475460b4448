#pragma once

#include <QByteArray>
#include <QImage>
#include <QVector>

class QSize;

namespace Zel3D {

/// The objects of a PDF file that gl2ps wrote, for what gl2ps cannot write: texts in sizes that are not whole
/// numbers, outlines of letters, and images with more than one pixel a point or with transparency. In their
/// places gl2ps writes marks and an image of one pixel.
class PdfFile
{
public:
    /// Takes a file apart by its table of objects. isValid() tells whether that succeeded.
    explicit PdfFile(const QByteArray& file);

    bool isValid() const { return valid; }
    /// The text that stands for piece \a index.
    static QByteArray mark(int index);
    /// Puts code in the place of the drawing of each mark. "%F" in the code is the font in which gl2ps wrote
    /// the mark.
    void replaceMarks(const QVector<QByteArray>& pieces);
    /// Puts an image in the place of the one that gl2ps wrote, over a width and a height in points.
    void replaceImage(const QImage& image, const QSize& size);
    /// The file, with its content compressed.
    QByteArray file();

private:
    bool valid = false;
    QByteArray header;
    QVector<QByteArray> objects; ///< object n, from "n 0 obj" on, at n - 1
    QByteArray trailer;
    QByteArray code; ///< of the page
    int contentObject = -1;
};

} // namespace Zel3D
