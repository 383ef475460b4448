#include "settings/plottemplate.h"

#include "core/gradientstops.h"
#include "plots/baseplotsettings.h"
#include "settings/abstractsettingspage.h"
#include "settings/fieldbinder.h"
#include "settings/plotsettingsdialog.h"
#include "settings/templatetext.h"
#include "settings/untouchedplot.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <memory>

namespace Zel3D {

namespace {

const QString typeKey = QStringLiteral("template/type");
const QString versionKey = QStringLiteral("template/version");
const QString gradientNameKey = QStringLiteral("gradient/name");
const QString gradientStopsKey = QStringLiteral("gradient/stops");
const QString typeName = QStringLiteral("plot appearance");

constexpr int shortest = 60;
constexpr int longestName = 100;
/// How often values are written until all hold: one may limit another.
constexpr int passes = 3;

const QRegularExpression& viewIds()
{
    static const QRegularExpression ids(
        "^common/(rotation[XYZ]|shift[XYZ]|viewportShift[XY]|scale[XYZ]|zoom)$");
    return ids;
}

/// What belongs to the data or to the way of working; the gradient is kept with its stops.
const QRegularExpression& foreignIds()
{
    static const QRegularExpression ids(
        "^(title/text|axes/axis\\d+/name/text|common/resolution|scales/./type|"
        "lighting/light\\d+/(radius|target.)|"
        "common/(info|toolTips|autoRotation|threshold)|style/gradient)$");
    return ids;
}

QVector<Field> allFields(BasePlot& plot)
{
    QVector<Field> all;
    for (const SettingsPageEntry& entry : PlotSettingsDialog::libraryPages()) {
        const std::unique_ptr<AbstractSettingsPage> page(entry.make());
        for (const FieldGroup& group : page->describe(plot))
            all += group.fields;
    }
    return all;
}

/// A value to write and the text that states it.
struct Wanted
{
    Field field;
    QVariant value;
    QString text;
};

bool holds(const BasePlot& plot, const Wanted& wanted)
{
    const QVariant now = wanted.field.read();
    if (wanted.field.kind != Field::Number)
        return TemplateText::write(plot, wanted.field, now) ==
               TemplateText::write(plot, wanted.field, wanted.value);
    // Some numbers are kept as float.
    const double a = now.toDouble();
    const double b = wanted.value.toDouble();
    return std::abs(a - b) <= 1e-6 * std::max({1e-3, std::abs(a), std::abs(b)});
}

/// What a plot has from its construction is valid even where nobody can type it.
QHash<QString, QVariant> constructedValues()
{
    UntouchedPlot untouched;
    QHash<QString, QVariant> values;
    for (const Field& field : allFields(untouched))
        values.insert(field.id, field.read());
    return values;
}

bool inRange(const Field& field, const QVariant& value)
{
    const bool number = field.kind == Field::Integer || field.kind == Field::Number;
    return !number || field.minimum >= field.maximum ||
           (value.toDouble() >= field.minimum && value.toDouble() <= field.maximum);
}

/// A name under which the plot has no other gradient.
QString freeName(const BasePlot& plot, const QString& wanted, const QGradient& gradient)
{
    const QMap<QString, QGradient>& taken = plot.getSettings().getGradients().getGradients();
    QString name = wanted;
    for (int i = 2; taken.contains(name) && gradientStops(taken.value(name)) != gradientStops(gradient); ++i)
        name = QString("%1 %2").arg(wanted).arg(i);
    return name;
}

} // namespace

const QString PlotTemplate::suffix = QStringLiteral("plottemplate");

QString PlotTemplate::Report::text() const
{
    QStringList lines{tr("Settings applied: %1.").arg(applied)};
    for (const SkippedEntry& entry : skipped)
        lines.append(entry.value.isEmpty()
                         ? QString("%1: %2").arg(entry.key, entry.reason)
                         : QString("%1 = %2: %3").arg(entry.key, entry.value.left(shortest), entry.reason));
    return lines.join('\n');
}

QVector<Field> PlotTemplate::fields(BasePlot& plot, int parts)
{
    QVector<Field> chosen;
    for (const Field& field : allFields(plot)) {
        const int part = viewIds().match(field.id).hasMatch() ? View : Appearance;
        if ((parts & part) != 0 && field.kind != Field::Custom && !foreignIds().match(field.id).hasMatch())
            chosen.append(field);
    }
    return chosen;
}

PlotTemplate PlotTemplate::of(BasePlot& plot, int parts)
{
    PlotTemplate result;
    // Escapes are not read again.
    const auto plain = [](QString text) { return text.remove(QRegularExpression("[\\\\@\"\\x00-\\x1f]")); };
    const bool scaleIsFree = plot.getBoxScaling() == ManualScaling;
    for (const Field& field : fields(plot, parts)) {
        const QVariant value = field.read();
        const bool offered =
            field.kind != Field::Choice ||
            std::any_of(field.offers.cbegin(), field.offers.cend(),
                        [&value](const Field::Offer& offer) { return offer.value == value; });
        // Automatic scaling makes the scale from the data.
        const bool derived = field.id.startsWith(QLatin1String("common/scale")) && !scaleIsFree;
        if (offered && !derived)
            result.entries.insert(field.id, plain(TemplateText::write(plot, field, value)));
    }
    const QString stops = TemplateText::writeStops(plot.getCurrentGradient());
    if ((parts & Appearance) != 0 && !stops.isEmpty()) {
        result.entries.insert(gradientNameKey, plain(plot.getSettings().getGradients().getCurrent()));
        result.entries.insert(gradientStopsKey, stops);
    }
    return result;
}

bool PlotTemplate::save(const QString& path, QString* error) const
{
    QMap<QString, QString> texts = entries;
    texts.insert(typeKey, typeName);
    texts.insert(versionKey, QString::number(version));
    TemplateFile file(path);
    const bool saved = file.write(texts);
    if (!saved && error)
        *error = file.getError();
    return saved;
}

bool PlotTemplate::load(const QString& path, QString* error)
{
    entries.clear();
    damaged.clear();
    TemplateFile file(path);
    QString problem;
    if (!file.read()) {
        problem = file.getError();
    } else {
        bool valid = false;
        const int stated = file.getEntries().value(versionKey).toInt(&valid);
        if (file.getEntries().value(typeKey) != typeName || !valid || stated < 1)
            problem = tr("\"%1\" is no template of a plot.").arg(path);
        else if (stated > version)
            problem =
                tr("\"%1\" has been written in the format %2 by a newer version; this one reads up to %3.")
                    .arg(path)
                    .arg(stated)
                    .arg(version);
    }
    if (!problem.isEmpty()) {
        if (error)
            *error = problem;
        return false;
    }
    entries = file.getEntries();
    entries.remove(typeKey);
    entries.remove(versionKey);
    damaged = file.getSkipped();
    return true;
}

PlotTemplate::Report PlotTemplate::applyTo(BasePlot& plot) const
{
    Report report;
    report.skipped = damaged;
    applyFields(plot, report);
    applyGradient(plot, report);
    plot.update();
    return report;
}

void PlotTemplate::applyFields(BasePlot& plot, Report& report) const
{
    QMap<QString, QString> left = entries;
    left.remove(gradientNameKey);
    left.remove(gradientStopsKey);
    const auto skip = [&report](const QString& key, const QString& value, const QString& reason) {
        report.skipped.append({key, value, reason});
    };
    QVector<Wanted> all;
    QHash<QString, QVariant> constructed;
    for (const Field& field : fields(plot, Appearance | View)) {
        const auto entry = left.constFind(field.id);
        if (entry == left.constEnd())
            continue;
        const QString text = left.take(field.id);
        QString reason;
        const std::optional<QVariant> value = TemplateText::read(plot, field, text, reason);
        if (!value) {
            skip(field.id, text, reason);
            continue;
        }
        const Wanted wanted{field, *value, text};
        if (!inRange(field, *value) && !holds(plot, wanted)) {
            if (constructed.isEmpty())
                constructed = constructedValues();
            if (!sameValue(constructed.value(field.id), *value)) {
                skip(
                    field.id, text,
                    tr("The value is not in the range from %1 to %2.").arg(field.minimum).arg(field.maximum));
                continue;
            }
        }
        all.append(wanted);
    }
    for (auto entry = left.cbegin(); entry != left.cend(); ++entry)
        skip(entry.key(), entry.value(),
             foreignIds().match(entry.key()).hasMatch()
                 ? tr("This belongs to the data or to the way of working, not to a template.")
                 : tr("The plot has no such setting."));
    for (int pass = 0; pass < passes; ++pass) {
        for (const Wanted& wanted : qAsConst(all)) {
            if (!holds(plot, wanted))
                wanted.field.write(wanted.value);
        }
    }
    for (const Wanted& wanted : qAsConst(all)) {
        if (holds(plot, wanted))
            ++report.applied;
        else
            skip(wanted.field.id, wanted.text,
                 tr("With the other settings the plot keeps the value %1.")
                     .arg(TemplateText::write(plot, wanted.field, wanted.field.read())));
    }
}

void PlotTemplate::applyGradient(BasePlot& plot, Report& report) const
{
    const QString name = entries.value(gradientNameKey).left(longestName);
    const QString stops = entries.value(gradientStopsKey);
    if (!entries.contains(gradientStopsKey)) {
        if (entries.contains(gradientNameKey))
            report.skipped.append({gradientNameKey, name, tr("The stops of the gradient are missing.")});
        return;
    }
    QString reason;
    const std::optional<QLinearGradient> gradient = TemplateText::readStops(stops, reason);
    if (!gradient) {
        report.skipped.append({gradientStopsKey, stops, reason});
        return;
    }
    ++report.applied;
    if (gradientStops(*gradient) == gradientStops(plot.getCurrentGradient()))
        return;
    plot.setGradient(freeName(plot, name.isEmpty() ? tr("Template") : name, *gradient), *gradient);
}

} // namespace Zel3D
