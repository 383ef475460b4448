#include "gradients/gradientcolors.h"
#include "gradients/gradientformats.h"

#include <QColor>
#include <QRegularExpression>

#include <array>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int hsvSamples = 8;

enum class Model { Rgb, Hsv, Cmyk };

/// A colour palette table of the Generic Mapping Tools while it is read.
class CptReader
{
public:
    /// False with an error set.
    bool readLine(const FormatLine& line);
    GradientFile::Result result(int lastLine) const;

private:
    struct Slice
    {
        double from, to;
        QColor first, last;
    };

    bool fail(const QString& what);
    void readComment(const QString& text);
    bool readSlice(const QStringList& words);
    bool readColor(const QStringList& words, QColor& color);
    bool readComponents(const QStringList& words, Model kind, QColor& color);
    void appendSlice(const Slice& slice, double start, double span, QGradientStops& stops) const;

    Model model = Model::Rgb;
    bool blendsHsv = false;
    int current = 0;
    QVector<Slice> slices;
    GradientFile::Result error;
};

bool CptReader::fail(const QString& what)
{
    error = formatError(current, what);
    return false;
}

void CptReader::readComment(const QString& text)
{
    static const QRegularExpression setting("^#\\s*COLOR_MODEL\\s*=\\s*(\\+?)(RGB|HSV|CMYK)\\b",
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = setting.match(text);
    if (!match.hasMatch())
        return;
    const QString name = match.captured(2).toUpper();
    model = name == "HSV" ? Model::Hsv : name == "CMYK" ? Model::Cmyk : Model::Rgb;
    // With a plus the tables are blended in their own model, without one the colours are blended as RGB.
    blendsHsv = model == Model::Hsv && !match.captured(1).isEmpty();
}

bool CptReader::readLine(const FormatLine& line)
{
    current = line.number;
    if (line.text.startsWith('#')) {
        readComment(line.text);
        return true;
    }
    QStringList words = line.text.section(';', 0, 0).split(' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return true;
    // Colours below, above and for no value: a gradient has no place for them, but they must be right.
    if (QStringList{"B", "F", "N"}.contains(words.first())) {
        QColor color;
        const QStringList rest = words.mid(1);
        return rest == QStringList{"-"} || readColor(rest, color);
    }
    // The annotation flag.
    if (QStringList{"L", "U", "B"}.contains(words.last()))
        words.removeLast();
    return readSlice(words);
}

bool CptReader::readSlice(const QStringList& words)
{
    const int components = model == Model::Cmyk ? 4 : 3;
    const auto isNumber = [](const QString& word) {
        double ignored = 0.0;
        return formatNumber(word, ignored);
    };
    int firstSize = 0;
    if (words.size() == 4)
        firstSize = 1;
    else if (words.size() == 2 + 2 * components)
        firstSize = components;
    else if (words.size() == 3 + components)
        firstSize = isNumber(words[1]) ? components : 1;
    else
        return fail(GradientFile::tr("A slice is a value, a color, a value and a color."));
    Slice slice{};
    if (!formatNumber(words[0], slice.from) || !formatNumber(words[firstSize + 1], slice.to))
        return fail(GradientFile::tr("The ends of the slice are not numbers."));
    if (!(slice.to > slice.from))
        return fail(GradientFile::tr("The slice does not rise."));
    if (!slices.isEmpty() &&
        std::abs(slice.from - slices.last().to) > 1e-6 * (slice.to - slices.first().from))
        return fail(GradientFile::tr("The slice does not begin where the one before ends."));
    if (!slices.isEmpty())
        slice.from = slices.last().to;
    if (!(slice.to > slice.from))
        return fail(GradientFile::tr("The slice does not rise."));
    if (!readColor(words.mid(1, firstSize), slice.first) || !readColor(words.mid(firstSize + 2), slice.last))
        return false;
    if (slices.size() >= GradientFile::maximumStops) {
        error = tooManyStops(current);
        return false;
    }
    slices.append(slice);
    return true;
}

bool CptReader::readColor(const QStringList& words, QColor& color)
{
    if (words.size() > 1)
        return readComponents(words, model, color);
    const QString whole = words.isEmpty() ? QString() : words.first();
    const QString word = whole.section('@', 0, 0);
    const int slashes = word.count('/');
    const QStringList dashed = word.split('-');
    double grey = 0.0;
    bool ok = true;
    if (slashes == 2 || slashes == 3)
        ok = readComponents(word.split('/'), slashes == 3 ? Model::Cmyk : Model::Rgb, color);
    else if (dashed.size() == 3 && !dashed.contains(QString()))
        ok = readComponents(dashed, Model::Hsv, color);
    else if (formatNumber(word, grey))
        ok = readComponents({word, word, word}, Model::Rgb, color);
    else if (word.startsWith('#'))
        color = colorFromText(word);
    else if (!word.isEmpty() && word.at(0).isLetter())
        color = QColor(word);
    if (!ok)
        return false;
    if (!color.isValid())
        return fail(GradientFile::tr("“%1” is no color.").arg(whole.left(40)));
    if (whole.contains('@')) {
        double transparency = 0.0;
        if (!formatNumber(whole.section('@', 1), transparency) || transparency < 0.0 || transparency > 100.0)
            return fail(GradientFile::tr("The transparency lies outside 0 ... 100."));
        color.setAlpha(qRound(255.0 * (1.0 - transparency / 100.0)));
    }
    return true;
}

bool CptReader::readComponents(const QStringList& words, Model kind, QColor& color)
{
    std::array<double, 4> n{};
    if (words.size() != (kind == Model::Cmyk ? 4 : 3))
        return fail(GradientFile::tr("The color has %1 components.").arg(words.size()));
    std::array<double, 4> limits = {255.0, 255.0, 255.0, 255.0};
    if (kind == Model::Hsv)
        limits = {360.0, 1.0, 1.0, 1.0};
    else if (kind == Model::Cmyk)
        limits = {100.0, 100.0, 100.0, 100.0};
    for (int i = 0; i < words.size(); ++i) {
        const auto index = static_cast<std::size_t>(i);
        if (!formatNumber(words[i], n[index]) || n[index] < 0.0 || n[index] > limits[index])
            return fail(GradientFile::tr("The color component “%1” is no number from 0 to %2.")
                            .arg(words[i].left(40))
                            .arg(limits[index]));
    }
    if (kind == Model::Hsv)
        color = QColor::fromHsvF(std::fmod(n[0], 360.0) / 360.0, n[1], n[2]).toRgb();
    else if (kind == Model::Cmyk)
        color = QColor::fromCmykF(n[0] / 100.0, n[1] / 100.0, n[2] / 100.0, n[3] / 100.0).toRgb();
    else
        color = QColor(qRound(n[0]), qRound(n[1]), qRound(n[2]));
    return true;
}

void CptReader::appendSlice(const Slice& slice, double start, double span, QGradientStops& stops) const
{
    const auto append = [&](double z, const QColor& color) {
        const QGradientStop stop(qBound(0.0, (z - start) / span, 1.0), color);
        if (stops.isEmpty() || stops.last() != stop)
            stops.append(stop);
    };
    append(slice.from, slice.first);
    if (blendsHsv) {
        const double hue = std::max(slice.first.hsvHueF(), 0.0);
        const double turn = std::max(slice.last.hsvHueF(), 0.0) - hue;
        for (int i = 1; i < hsvSamples; ++i) {
            const double f = static_cast<double>(i) / hsvSamples;
            const auto mix = [f](double a, double b) { return a + (b - a) * f; };
            append(mix(slice.from, slice.to),
                   QColor::fromHsvF(hue + turn * f,
                                    mix(slice.first.hsvSaturationF(), slice.last.hsvSaturationF()),
                                    mix(slice.first.valueF(), slice.last.valueF()),
                                    mix(slice.first.alphaF(), slice.last.alphaF()))
                       .toRgb());
        }
    }
    append(slice.to, slice.last);
}

GradientFile::Result CptReader::result(int lastLine) const
{
    if (!error.isOk())
        return error;
    if (slices.isEmpty())
        return formatError(lastLine, GradientFile::tr("There is no slice of colors."));
    const double start = slices.first().from;
    const double span = slices.last().to - start;
    if (!std::isfinite(span))
        return formatError(lastLine, GradientFile::tr("The values span too much."));
    GradientFile::Result all;
    for (const Slice& slice : slices) {
        appendSlice(slice, start, span, all.stops);
        if (all.stops.size() > GradientFile::maximumStops)
            return tooManyStops(lastLine);
    }
    return all;
}

} // namespace

GradientFile::Result parseCpt(const QString& text)
{
    const QVector<FormatLine> lines = formatLines(text);
    CptReader reader;
    for (const FormatLine& line : lines) {
        if (!reader.readLine(line))
            break;
    }
    return reader.result(lines.isEmpty() ? 1 : lines.last().number);
}

} // namespace Zel3D
