#include "gradients/gradientformats.h"

#include <QLocale>

#include <cmath>

namespace Zel3D {

QVector<FormatLine> formatLines(const QString& text)
{
    QVector<FormatLine> lines;
    int number = 0;
    const QStringList all = text.split('\n');
    for (const QString& line : all) {
        ++number;
        QString trimmed = line.trimmed();
        trimmed.replace('\t', ' ');
        if (!trimmed.isEmpty())
            lines.append({number, trimmed});
    }
    return lines;
}

bool formatNumber(const QString& text, double& number)
{
    bool ok = false;
    const double value = QLocale::c().toDouble(text, &ok);
    if (!ok || !std::isfinite(value))
        return false;
    number = value;
    return true;
}

GradientFile::Result formatError(int line, const QString& what)
{
    GradientFile::Result result;
    result.error = what;
    result.line = line;
    return result;
}

GradientFile::Result tooManyStops(int line)
{
    return formatError(line,
                       GradientFile::tr("There are more than %1 stops.").arg(GradientFile::maximumStops));
}

} // namespace Zel3D
