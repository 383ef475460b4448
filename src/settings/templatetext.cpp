#include "settings/templatetext.h"

#include "core/gradientstops.h"
#include "plots/shplot.h"
#include "plots/spectrum.h"
#include "scene/linestyle.h"
#include "settings/field.h"

#include <QCoreApplication>
#include <QFont>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(PlotTemplate)
};

constexpr int longestText = 1000;
constexpr double largestFont = 1000.0;

/// What the values 0, 1, 2 and so on of a choice are called in a file.
struct Names
{
    QRegularExpression ids;
    QStringList names;
};

const QVector<Names>& knownNames()
{
    const auto ids = [](const char* pattern) {
        return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
    };
    static const QVector<Names> all{
        {ids("common/projection"), {"orthogonal", "perspective"}},
        {ids("common/boxScaling"), {"cube", "equal units", "off"}},
        {ids("common/shading"), {"flat", "smooth"}},
        {ids("common/contour"), {"none", "top", "bottom"}},
        {ids("legend/position"), {"top", "bottom", "left", "right"}},
        {ids("lighting/light\\d+/type"), {"directional", "dotted", "spot"}},
        {ids(".*/tics/style"), {"out", "both"}},
        {ids(".*/alignment"),
         {"topleft", "topcenter", "topright", "centerleft", "automatic", "centerright", "bottomleft",
          "bottomcenter", "bottomright"}},
        {ids(".*/arrow/style"), {"filled", "outline", "points", "lines"}},
        {ids(".*/arrow/size"), {"small", "normal", "large"}},
        {ids("grid/(major|minor)Style"),
         {"solidline", "dashline", "dotline", "dashdotline", "dashdotdotline"}},
    };
    return all;
}

QStringList styleNames(const BasePlot& plot)
{
    if (qobject_cast<const SHPlot*>(&plot))
        return {"no plot", "points", "wireframe", "hidden line", "filled", "filled and mesh", "histogram"};
    if (qobject_cast<const Spectrum*>(&plot))
        return {"no plot", "points", "lines", "filled", "filled and frame"};
    return {};
}

QStringList namesOf(const BasePlot& plot, const QString& id)
{
    if (id == QLatin1String("style/style"))
        return styleNames(plot);
    for (const Names& known : knownNames()) {
        if (known.ids.match(id).hasMatch())
            return known.names;
    }
    return {};
}

QString fontText(const QFont& font)
{
    QStringList parts{font.family()};
    parts.append(font.pixelSize() > 0 ? QString("%1 px").arg(font.pixelSize())
                                      : QString("%1 pt").arg(font.pointSizeF()));
    if (font.weight() == QFont::Bold)
        parts.append("bold");
    else if (font.weight() != QFont::Normal)
        parts.append(QString("weight %1").arg(font.weight()));
    if (font.italic())
        parts.append("italic");
    if (font.underline())
        parts.append("underline");
    if (font.strikeOut())
        parts.append("strike out");
    return parts.join(", ");
}

bool takeFontSize(QFont& font, const QString& text)
{
    static const QRegularExpression form("^(\\d{1,4}(?:\\.\\d{1,6})?) ?(pt|px)$");
    const QRegularExpressionMatch match = form.match(text);
    const double size = match.captured(1).toDouble();
    if (!match.hasMatch() || size < 1.0 || size > largestFont)
        return false;
    if (match.captured(2) == QLatin1String("px"))
        font.setPixelSize(int(size));
    else
        font.setPointSizeF(size);
    return true;
}

bool takeFontPart(QFont& font, const QString& text)
{
    static const QRegularExpression weight("^weight (\\d{1,2})$");
    const QRegularExpressionMatch match = weight.match(text);
    if (match.hasMatch())
        font.setWeight(match.captured(1).toInt());
    else if (text == QLatin1String("bold"))
        font.setBold(true);
    else if (text == QLatin1String("italic"))
        font.setItalic(true);
    else if (text == QLatin1String("underline"))
        font.setUnderline(true);
    else if (text == QLatin1String("strike out"))
        font.setStrikeOut(true);
    else
        return false;
    return true;
}

std::optional<QVariant> readFont(const QString& text)
{
    QStringList parts = text.split(',');
    for (QString& part : parts)
        part = part.trimmed();
    QFont font(parts.takeFirst());
    if (font.family().isEmpty() || parts.isEmpty() || !takeFontSize(font, parts.takeFirst()))
        return {};
    for (const QString& part : qAsConst(parts)) {
        if (!takeFontPart(font, part))
            return {};
    }
    return QVariant(font);
}

std::optional<QVariant> readColor(const QString& text)
{
    static const QRegularExpression form("^#(?:[0-9a-fA-F]{6}|[0-9a-fA-F]{8})$");
    if (!form.match(text).hasMatch())
        return {};
    return QVariant(QColor(text));
}

std::optional<QVariant> readNumber(const Field& field, const QString& text)
{
    bool valid = false;
    if (field.kind == Field::Integer) {
        const int whole = text.toInt(&valid);
        return valid ? std::optional<QVariant>(whole) : std::nullopt;
    }
    const double number = text.toDouble(&valid);
    return valid && std::isfinite(number) ? std::optional<QVariant>(number) : std::nullopt;
}

QStringList offerNames(const BasePlot& plot, const Field& field)
{
    QStringList names;
    for (const Field::Offer& offer : field.offers)
        names.append(TemplateText::offerName(plot, field, offer.value));
    return names;
}

std::optional<QVariant> readChoice(const BasePlot& plot, const Field& field, const QString& text)
{
    const int index = offerNames(plot, field).indexOf(text.toLower());
    return index < 0 ? std::nullopt : std::optional<QVariant>(field.offers.at(index).value);
}

/// What a field takes, as the end of a sentence.
QString expected(const BasePlot& plot, const Field& field)
{
    switch (field.kind) {
    case Field::Switch:
        return Words::tr("true or false is expected");
    case Field::Integer:
        return Words::tr("a whole number is expected");
    case Field::Number:
        return Words::tr("a number is expected");
    case Field::Color:
        return Words::tr("a color such as #ff336699 is expected");
    case Field::Font:
        return Words::tr("a font such as \"DejaVu Sans, 10 pt, bold\" is expected");
    case Field::Choice:
        return Words::tr("the plot offers: %1").arg(offerNames(plot, field).join(", "));
    case Field::Text:
        return Words::tr("a text of at most %1 letters is expected").arg(longestText);
    case Field::Custom:
        break;
    }
    return {};
}

} // namespace

QString TemplateText::offerName(const BasePlot& plot, const Field& field, const QVariant& value)
{
    const bool pattern = field.id == QLatin1String("grid/majorStyle") || field.id == "grid/minorStyle";
    const int index = pattern ? lineStyleIndex(value.toInt()) : value.toInt();
    return namesOf(plot, field.id).value(index, value.toString().toLower());
}

QString TemplateText::write(const BasePlot& plot, const Field& field, const QVariant& value)
{
    switch (field.kind) {
    case Field::Switch:
        return value.toBool() ? "true" : "false";
    case Field::Integer:
        return QString::number(value.toInt());
    case Field::Number:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case Field::Color:
        return value.value<QColor>().name(QColor::HexArgb);
    case Field::Font:
        return fontText(value.value<QFont>());
    case Field::Choice:
        return offerName(plot, field, value);
    case Field::Text:
        return value.toString();
    case Field::Custom:
        break; // has no text
    }
    return {};
}

std::optional<QVariant> TemplateText::read(const BasePlot& plot, const Field& field, const QString& text,
                                           QString& reason)
{
    std::optional<QVariant> value;
    switch (field.kind) {
    case Field::Switch:
        if (text == QLatin1String("true") || text == QLatin1String("false"))
            value = text == QLatin1String("true");
        break;
    case Field::Integer:
    case Field::Number:
        value = readNumber(field, text);
        break;
    case Field::Color:
        value = readColor(text);
        break;
    case Field::Font:
        value = readFont(text);
        break;
    case Field::Choice:
        value = readChoice(plot, field, text);
        break;
    case Field::Text:
        if (text.size() <= longestText)
            value = text;
        break;
    case Field::Custom:
        break;
    }
    if (!value)
        reason = Words::tr("This is no value of the setting; %1.").arg(expected(plot, field));
    return value;
}

QString TemplateText::writeStops(const QGradient& gradient)
{
    QStringList stops;
    for (const QGradientStop& stop : gradientStops(gradient))
        stops.append(QString("%1 %2").arg(QString::number(stop.first, 'g', QLocale::FloatingPointShortest),
                                          stop.second.name(QColor::HexArgb)));
    return stops.join(", ");
}

std::optional<QLinearGradient> TemplateText::readStops(const QString& text, QString& reason)
{
    if (text.count(',') >= mostStops) {
        reason = Words::tr("The gradient has more than %1 stops.").arg(mostStops);
        return {};
    }
    QLinearGradient gradient;
    double last = 0.0;
    for (const QString& stop : text.split(',')) {
        const QStringList parts = stop.simplified().split(' ');
        bool valid = false;
        const double position = parts.first().toDouble(&valid);
        const std::optional<QVariant> color = readColor(parts.value(1));
        // What is not a number compares as false.
        if (!valid || parts.size() != 2 || !color || !(position >= last) || position > 1.0) {
            reason = Words::tr("The stop \"%1\" is not a position from 0 to 1, at or behind the one before, "
                               "and a color such as #ff336699.")
                         .arg(stop.simplified().left(40));
            return {};
        }
        gradient.setColorAt(position, color->value<QColor>());
        last = position;
    }
    return gradient;
}

} // namespace Zel3D
