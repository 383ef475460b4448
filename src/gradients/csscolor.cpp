#include "gradients/csscolor.h"

#include "gradients/gradientcolors.h"
#include "gradients/gradientformats.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace Zel3D {

namespace {

/// A number, or a percentage as a share of whole.
bool readComponent(const QString& text, double whole, double& value)
{
    if (!text.endsWith('%'))
        return formatNumber(text, value);
    if (!formatNumber(text.left(text.size() - 1), value))
        return false;
    value = value * whole / 100.0;
    return true;
}

/// The hue as a share of the circle.
bool readHue(const QString& text, double& hue)
{
    struct Unit
    {
        const char* name;
        double circle;
    };
    // "grad" ends with "rad".
    for (const Unit unit : {Unit{"deg", 360.0}, Unit{"grad", 400.0}, Unit{"rad", 6.283185307179586},
                            Unit{"turn", 1.0}, Unit{"", 360.0}}) {
        const QString name = QLatin1String(unit.name);
        if (!text.endsWith(name))
            continue;
        double number = 0.0;
        if (!formatNumber(text.left(text.size() - name.size()), number))
            return false;
        hue = number / unit.circle;
        hue -= std::floor(hue);
        return true;
    }
    return false;
}

int toByte(double value)
{
    return qRound(qBound(0.0, value, 255.0));
}

QColor functionColor(const QString& name, const QString& arguments)
{
    QString list = arguments;
    list.replace(',', ' ').replace('/', ' ');
    const QStringList words = list.split(' ', Qt::SkipEmptyParts);
    if (words.size() != 3 && words.size() != 4)
        return {};
    double alpha = 1.0;
    if (words.size() == 4 && !readComponent(words[3], 1.0, alpha))
        return {};
    double a = 0.0;
    double b = 0.0;
    double c = 0.0;
    if (name.startsWith("rgb")) {
        if (!readComponent(words[0], 255.0, a) || !readComponent(words[1], 255.0, b) ||
            !readComponent(words[2], 255.0, c))
            return {};
        return {toByte(a), toByte(b), toByte(c), toByte(alpha * 255.0)};
    }
    if (!readHue(words[0], a) || !words[1].endsWith('%') || !words[2].endsWith('%') ||
        !readComponent(words[1], 1.0, b) || !readComponent(words[2], 1.0, c))
        return {};
    const QColor rgb = QColor::fromHslF(a, qBound(0.0, b, 1.0), qBound(0.0, c, 1.0)).toRgb();
    return {rgb.red(), rgb.green(), rgb.blue(), toByte(alpha * 255.0)};
}

} // namespace

QColor cssColor(const QString& text)
{
    const QString color = text.trimmed().toLower();
    if (color.startsWith('#'))
        return colorFromText(color);
    static const QRegularExpression function("^(rgba?|hsla?)\\(([^()]*)\\)$");
    const QRegularExpressionMatch match = function.match(color.simplified());
    if (match.hasMatch())
        return functionColor(match.captured(1), match.captured(2));
    if (color == "transparent")
        return {0, 0, 0, 0};
    if (color == "rebeccapurple")
        return {102, 51, 153};
    static const QRegularExpression name("^[a-z]+$");
    return name.match(color).hasMatch() ? QColor(color) : QColor();
}

} // namespace Zel3D
