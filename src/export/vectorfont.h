#pragma once

#include <QByteArray>
#include <QFont>
#include <QString>

namespace Zel3D {

/// The fonts that every reader of PDF and PostScript has, for texts that stay texts in such files.
///
/// The fonts of the labels are not embedded. Of the fourteen standard ones, Courier stands for fonts of one
/// width, Times for fonts with serifs and Helvetica for all others, each upright or slanted, regular or bold.
class VectorFont
{
public:
    explicit VectorFont(const QFont& font);

    /// The PostScript name.
    const QByteArray& getName() const { return name; }
    /// The length of a text of plain ASCII in a font of size 1. Other letters count as a figure each.
    double width(const QByteArray& text) const;

    /// A text in the encoding of the files' fonts, Mac Roman for PDF and ASCII for PostScript; null when it
    /// has letters that are not in it.
    static QByteArray macRoman(const QString& text);
    static QByteArray ascii(const QString& text);
    /// With a backslash before what ends or begins a string in PDF and PostScript.
    static QByteArray escaped(const QByteArray& text);

private:
    QByteArray name;
};

} // namespace Zel3D
