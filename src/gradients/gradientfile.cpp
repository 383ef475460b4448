#include "gradients/gradientfile.h"

#include "gradients/gradientcolors.h"
#include "gradients/gradientformats.h"

#include <QIODevice>
#include <QLocale>

namespace Zel3D {

namespace {

const QString header = QStringLiteral("VORANPLOT gradient 1");

/// Whether the content is text with lines of bearable length; if not, the result says so.
bool isText(const QString& text, GradientFile::Result& result)
{
    int line = 1;
    int length = 0;
    for (const QChar c : text) {
        if (c == '\n') {
            ++line;
            length = 0;
        } else if (c == QChar(0) || c == QChar(QChar::ReplacementCharacter)) {
            result = formatError(line, GradientFile::tr("This is not a text file."));
            return false;
        } else if (++length > GradientFile::maximumLine) {
            result = formatError(
                line,
                GradientFile::tr("The line is longer than %1 characters.").arg(GradientFile::maximumLine));
            return false;
        }
    }
    return true;
}

} // namespace

QString GradientFile::Result::message() const
{
    return line > 0 ? GradientFile::tr("Line %1: %2").arg(line).arg(error) : error;
}

GradientFile::Format GradientFile::detect(const QByteArray& content)
{
    const QByteArray start = content.startsWith("\xef\xbb\xbf") ? content.mid(3) : content;
    if (start.startsWith("GIMP Gradient"))
        return Format::Ggr;
    if (start.startsWith("VORANPLOT gradient"))
        return Format::Text;
    return content.toLower().contains("linear-gradient(") ? Format::Css : Format::Cpt;
}

GradientFile::Result GradientFile::parse(const QByteArray& content)
{
    return parse(content, detect(content));
}

GradientFile::Result GradientFile::parse(const QByteArray& content, Format format)
{
    if (content.size() > maximumBytes)
        return formatError(0, tr("The file is larger than %1 bytes.").arg(maximumBytes));
    QString text = QString::fromUtf8(content.constData(), content.size()); // beyond a zero as well
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    text.replace("\r\n", "\n");
    text.replace('\r', '\n');
    Result result;
    if (!isText(text, result))
        return result;
    switch (format) {
    case Format::Text:
        return parseGradientText(text);
    case Format::Css:
        return parseCss(text);
    case Format::Cpt:
        return parseCpt(text);
    case Format::Ggr:
        return parseGgr(text);
    }
    return result;
}

GradientFile::Result GradientFile::read(QIODevice& device)
{
    return parse(device.read(maximumBytes + 1));
}

QByteArray GradientFile::write(const QString& name, const QGradientStops& stops)
{
    QString text = header + '\n';
    const QString line = name.simplified();
    if (!line.isEmpty())
        text += "name: " + line + '\n';
    for (const QGradientStop& stop : stops) {
        text +=
            QString::number(stop.first, 'g', QLocale::FloatingPointShortest) + ' ' + colorText(stop.second);
        text += '\n';
    }
    return text.toUtf8();
}

GradientFile::Result parseGradientText(const QString& text)
{
    const QVector<FormatLine> lines = formatLines(text);
    if (lines.isEmpty() || lines.first().text != header)
        return formatError(1, GradientFile::tr("The first line is not “%1”.").arg(header));
    GradientFile::Result result;
    for (int i = 1; i < lines.size(); ++i) {
        const FormatLine& line = lines[i];
        if (line.text.startsWith('#'))
            continue;
        if (line.text.startsWith("name:")) {
            result.name = line.text.mid(5).trimmed();
            continue;
        }
        const QStringList words = line.text.split(' ', Qt::SkipEmptyParts);
        double position = 0.0;
        if (words.size() != 2 || !formatNumber(words[0], position) || position < 0.0 || position > 1.0)
            return formatError(line.number,
                               GradientFile::tr("A stop is a position from 0 to 1 and a color, not “%1”.")
                                   .arg(line.shortText()));
        const QColor color = colorFromText(words[1]);
        if (!color.isValid())
            return formatError(line.number,
                               GradientFile::tr("“%1” is no color like #rrggbbaa.").arg(words[1].left(40)));
        if (!result.stops.isEmpty() && position < result.stops.last().first)
            return formatError(line.number, GradientFile::tr("The position is less than the one before."));
        if (result.stops.size() == GradientFile::maximumStops)
            return tooManyStops(line.number);
        result.stops.append({position, color});
    }
    if (result.stops.isEmpty())
        return formatError(lines.last().number, GradientFile::tr("There is no stop."));
    return result;
}

} // namespace Zel3D
