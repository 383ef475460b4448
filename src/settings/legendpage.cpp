#include "settings/legendpage.h"

#include "plots/baseplot.h"
#include "scene/legend.h"
#include "settings/recordfields.h"

namespace Zel3D {

namespace {

/// The bar without automatic placement, in percent of the window from its lower left corner.
QVector<Field> rectangleFields(Legend& legend)
{
    const struct
    {
        const char* id;
        QString name;
        QString row;
        double (QRectF::*get)() const;
        void (QRectF::*set)(double);
    } parts[] = {
        {"legend/left", LegendPage::tr("Across"), LegendPage::tr("Corner"), &QRectF::x, &QRectF::moveLeft},
        {"legend/bottom", LegendPage::tr("Up"), LegendPage::tr("Corner"), &QRectF::y, &QRectF::moveTop},
        {"legend/width", LegendPage::tr("Width"), LegendPage::tr("Size"), &QRectF::width, &QRectF::setWidth},
        {"legend/height", LegendPage::tr("Height"), LegendPage::tr("Size"), &QRectF::height,
         &QRectF::setHeight}};
    QVector<Field> fields;
    for (const auto& part : parts) {
        fields.append(
            Field::number(
                part.id, part.name,
                LegendPage::tr("The place of the bar, in percent of the window from its lower left corner."))
                .within(0.0, 100.0, 1.0, 1)
                .in(QStringLiteral("%"))
                .inRow(part.row)
                .when([&legend] { return !legend.getSettings().isAutoPositioning(); })
                .bind([&legend, get = part.get] { return 100.0 * (legend.getManualRectangle().*get)(); },
                      [&legend, set = part.set](double percent) {
                          QRectF rectangle = legend.getManualRectangle();
                          (rectangle.*set)(percent / 100.0);
                          return legend.setManualRectangle(rectangle);
                      }));
    }
    return fields;
}

/// The ticks of the legend have widths of their own; those of the other axes are the grid's.
QVector<Field> ticFields(Axis::Settings& axis)
{
    QVector<Field> fields = RecordFields::tics("legend/tics", axis.getTics());
    const auto width = [](const QString& id, const QString& name, Axis::MajorMinorSettings& record) {
        return Field::number(id, name, LegendPage::tr("The width of the ticks."))
            .within(0.1, 20.0, 0.1, 2)
            .in(LegendPage::tr("px"))
            .inRow(LegendPage::tr("Width"))
            .bind([&record] { return record.getLineWidth(); },
                  [&record](double pixels) { return record.setLineWidth(pixels); });
    };
    fields.append(width("legend/tics/majorWidth", LegendPage::tr("Major"), axis.getMajor()));
    fields.append(width("legend/tics/minorWidth", LegendPage::tr("Minor"), axis.getMinor()));
    return fields;
}

} // namespace

QVector<FieldGroup> LegendPage::describe(BasePlot& plot) const
{
    Legend& legend = plot.getLegend();
    Axis::Settings& axis = legend.getAxis().getSettings();
    const QVector<Field> bar{
        Field::toggle("legend/visible", tr("Visible"), tr("Whether the color legend is shown."))
            .bind([&legend] { return legend.isVisible(); },
                  [&legend](bool on) { return legend.setVisible(on); }),
        Field::choice("legend/position", tr("Position"),
                      tr("The edge of the window at which the legend stands."))
            .offering(QStringList{tr("Top"), tr("Bottom"), tr("Left"), tr("Right")})
            .bind([&legend] { return legend.getSettings().getPosition(); },
                  [&plot, &legend](Legend::Position position) {
                      if (!legend.setPosition(position))
                          return false;
                      // Moving the legend alone does not save its place.
                      legend.markSettingsForSaving();
                      emit plot.legendPositionChanged(unsigned(position));
                      return true;
                  })
            .heardFrom(plot, &BasePlot::legendPositionChanged),
        Field::toggle("legend/automatic", tr("Automatic place"),
                      tr("Places the legend along that edge; otherwise in the rectangle below."))
            .bind([&legend] { return legend.getSettings().isAutoPositioning(); },
                  [&legend](bool on) { return legend.setAutoPositioning(on); }),
    };
    return {
        {tr("Legend"), bar, {}},
        {tr("Rectangle"), rectangleFields(legend), {}},
        {tr("Axis line"), RecordFields::line("legend/line", axis.getLine()), {}},
        {tr("Ticks"), ticFields(axis), {}},
        {tr("Numbers"), RecordFields::numbers("legend/numbers", axis.getNumbers()), {}},
    };
}

} // namespace Zel3D
