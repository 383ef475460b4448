#pragma once

#include "gradients/gradientfile.h"

#include <QVector>

namespace Zel3D {

/// A line of a gradient file that is not empty, trimmed, tabs as spaces.
struct FormatLine
{
    int number;
    QString text;

    /// The text as an error message shows it.
    QString shortText() const { return text.left(40); }
};

QVector<FormatLine> formatLines(const QString& text);
/// A finite number in C notation. False for anything else.
bool formatNumber(const QString& text, double& number);
GradientFile::Result formatError(int line, const QString& what);
GradientFile::Result tooManyStops(int line);

// The parsers of the forms: checked text with lines that end in a line feed in, stops or an error out.
GradientFile::Result parseGradientText(const QString& text);
GradientFile::Result parseCss(const QString& text);
GradientFile::Result parseCpt(const QString& text);
GradientFile::Result parseGgr(const QString& text);

} // namespace Zel3D
