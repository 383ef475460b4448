#include "gradients/csscolor.h"
#include "gradients/gradientcolors.h"
#include "gradients/gradientformats.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int samples = 16;

/// One argument of the function: a colour with a position or without, or a hint, which has a position only.
struct Item
{
    QColor color;
    bool hasPosition = false;
    double position = 0.0;
    int line = 0;

    bool isHint() const { return !color.isValid(); }
};

struct Argument
{
    QString text;
    int line;
};

/// A text without its comments; their line feeds stay, so that lines can be counted.
QString withoutComments(const QString& text)
{
    QString bare;
    int from = 0;
    while (true) {
        const int start = text.indexOf("/*", from);
        if (start < 0)
            return bare + text.mid(from);
        const int end = text.indexOf("*/", start + 2);
        const int after = end < 0 ? text.size() : end + 2;
        bare +=
            text.mid(from, start - from) + ' ' + QString(text.mid(start, after - start).count('\n'), '\n');
        from = after;
    }
}

/// The arguments of the function whose opening bracket stands before the start; false without a closing one.
bool splitArguments(const QString& text, int start, QVector<Argument>& arguments)
{
    int line = text.left(start).count('\n') + 1;
    int depth = 0;
    Argument current{QString(), line};
    for (int i = start; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == '\n')
            ++line;
        if (depth == 0 && (c == ',' || c == ')')) {
            arguments.append(current);
            if (c == ')')
                return true;
            current = {QString(), line};
            continue;
        }
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (current.text.isEmpty() && c.isSpace())
            continue;
        if (current.text.isEmpty())
            current.line = line;
        current.text += c;
    }
    return false;
}

bool readPosition(const QString& word, double& position)
{
    if (word.endsWith('%')) {
        if (!formatNumber(word.left(word.size() - 1), position))
            return false;
        position /= 100.0;
        return true;
    }
    return formatNumber(word, position) && position == 0.0;
}

/// Appends the items of an argument. Says what is wrong with it, or nothing.
QString readArgument(const Argument& argument, QVector<Item>& items)
{
    const QString text = argument.text.simplified();
    static const QRegularExpression form("^([^ (]*[a-zA-Z][^ (]*(?:\\([^()]*\\))?|#[^ ]*)?((?: ?[^ ()]+)*)$");
    const QRegularExpressionMatch match = form.match(text);
    const QString shown = text.left(40);
    QString unreadable = GradientFile::tr("“%1” is no color with a position in per cent.").arg(shown);
    if (!match.hasMatch() || text.isEmpty())
        return unreadable;
    Item item;
    item.line = argument.line;
    if (!match.captured(1).isEmpty()) {
        item.color = cssColor(match.captured(1));
        if (!item.color.isValid())
            return GradientFile::tr("“%1” is no color.").arg(match.captured(1).left(40));
    }
    const QStringList words = match.captured(2).split(' ', Qt::SkipEmptyParts);
    const int most = item.isHint() ? 1 : 2;
    if (words.size() > most || (item.isHint() && words.isEmpty()))
        return unreadable;
    if (words.isEmpty())
        items.append(item);
    for (const QString& word : words) {
        if (!readPosition(word, item.position))
            return GradientFile::tr("“%1” is no position in per cent.").arg(word.left(40));
        item.hasPosition = true;
        items.append(item);
    }
    return {};
}

/// The missing positions as CSS Images Module Level 3, section 3.4.3, gives them.
void fixPositions(QVector<Item>& items)
{
    const auto place = [](Item& item, double position) {
        item.position = position;
        item.hasPosition = true;
    };
    if (!items.first().hasPosition)
        place(items.first(), 0.0);
    if (!items.last().hasPosition)
        place(items.last(), 1.0);
    double greatest = items.first().position;
    for (Item& item : items) {
        if (item.hasPosition)
            item.position = greatest = std::max(greatest, item.position);
    }
    for (int i = 1; i < items.size(); ++i) {
        if (items[i].hasPosition)
            continue;
        int next = i;
        while (!items[next].hasPosition)
            ++next;
        const double step = (items[next].position - items[i - 1].position) / (next - i + 1);
        for (; i < next; ++i)
            place(items[i], items[i - 1].position + step);
    }
}

/// CSS blends colours multiplied by their alpha.
QColor premultipliedBlend(const QColor& a, const QColor& b, double fraction)
{
    const double alpha = a.alphaF() + (b.alphaF() - a.alphaF()) * fraction;
    const auto channel = [&](double from, double to) {
        const double product = from * a.alphaF() + (to * b.alphaF() - from * a.alphaF()) * fraction;
        return alpha > 0.0 ? qRound(product / alpha * 255.0) : 0;
    };
    return {channel(a.redF(), b.redF()), channel(a.greenF(), b.greenF()), channel(a.blueF(), b.blueF()),
            qRound(alpha * 255.0)};
}

QColor withAlphaOf(const QColor& color, const QColor& other)
{
    return {color.red(), color.green(), color.blue(), other.alpha()};
}

/// The stops from one colour to the next; the hint is the share of the way at which half is reached.
void appendSegment(const Item& from, const Item& to, double hint, QGradientStops& stops)
{
    QColor a = from.color;
    QColor b = to.color;
    // What is transparent takes the other colour: it fades in that colour alone.
    if (a.alpha() == 0)
        a = withAlphaOf(b, a);
    if (b.alpha() == 0)
        b = withAlphaOf(a, b);
    const bool isLinear = hint == 0.5 && (a.alpha() == b.alpha() || a.rgb() == b.rgb());
    const auto append = [&](double fraction, const QColor& color) {
        const QGradientStop stop(from.position + (to.position - from.position) * fraction, color);
        if (stops.isEmpty() || stops.last() != stop)
            stops.append(stop);
    };
    append(0.0, a);
    if (!isLinear && to.position > from.position) {
        const double exponent = std::log(0.5) / std::log(qBound(1e-6, hint, 1.0 - 1e-6));
        for (int i = 1; i < samples; ++i) {
            const double way = static_cast<double>(i) / samples;
            append(way, premultipliedBlend(a, b, hint == 0.5 ? way : std::pow(way, exponent)));
        }
    }
    append(1.0, b);
}

/// What lies outside 0 ... 1 is cut off.
QGradientStops clipped(const QGradientStops& stops)
{
    QGradientStops inside;
    if (stops.first().first < 0.0)
        inside.append({0.0, stopsColor(stops, 0.0)});
    for (const QGradientStop& stop : stops) {
        if (stop.first >= 0.0 && stop.first <= 1.0)
            inside.append(stop);
    }
    if (stops.last().first > 1.0)
        inside.append({1.0, stopsColor(stops, 1.0)});
    return inside;
}

bool isDirection(const QString& text)
{
    static const QRegularExpression direction("^(to( (left|right|top|bottom)){1,2}|(left|right|top|bottom)|"
                                              "[-+.0-9e]+(deg|grad|rad|turn)|0)$");
    return direction.match(text.simplified().toLower()).hasMatch();
}

GradientFile::Result build(QVector<Item>& items, int line)
{
    int hints = 0;
    for (int i = 0; i < items.size(); ++i) {
        if (!items[i].isHint())
            continue;
        ++hints;
        if (i == 0 || i == items.size() - 1 || items[i - 1].isHint())
            return formatError(items[i].line, GradientFile::tr("A hint does not stand between two colors."));
    }
    if (items.size() - hints < 2)
        return formatError(line, GradientFile::tr("A gradient needs two colors."));
    fixPositions(items);
    GradientFile::Result result;
    for (int i = 0; i + 1 < items.size();) {
        const Item& from = items[i];
        const int next = items[i + 1].isHint() ? i + 2 : i + 1;
        const Item& to = items[next];
        const double width = to.position - from.position;
        const bool hasHint = next == i + 2 && width > 0.0;
        appendSegment(from, to, hasHint ? (items[i + 1].position - from.position) / width : 0.5,
                      result.stops);
        if (result.stops.size() > GradientFile::maximumStops)
            return tooManyStops(to.line);
        i = next;
    }
    result.stops = coveringStops(clipped(result.stops));
    return result;
}

} // namespace

GradientFile::Result parseCss(const QString& text)
{
    const QString bare = withoutComments(text);
    static const QRegularExpression function("([a-z-]*)linear-gradient\\(",
                                             QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = function.match(bare);
    if (!match.hasMatch())
        return formatError(1, GradientFile::tr("There is no linear-gradient()."));
    const int line = bare.left(match.capturedStart()).count('\n') + 1;
    if (match.captured(1).contains("repeating", Qt::CaseInsensitive))
        return formatError(line, GradientFile::tr("Repeating gradients are not read."));
    QVector<Argument> arguments;
    if (!splitArguments(bare, match.capturedEnd(), arguments))
        return formatError(line, GradientFile::tr("The closing bracket of linear-gradient() is missing."));
    if (isDirection(arguments.first().text))
        arguments.removeFirst();
    QVector<Item> items;
    for (const Argument& argument : qAsConst(arguments)) {
        const QString wrong = readArgument(argument, items);
        if (!wrong.isEmpty())
            return formatError(argument.line, wrong);
        if (items.size() > GradientFile::maximumStops)
            return tooManyStops(argument.line);
    }
    return build(items, line);
}

} // namespace Zel3D
