#include "settings/legendpage.h"

#include "plots/baseplot.h"
#include "scene/legend.h"
#include "settings/recordfields.h"

namespace Zel3D {

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
    };
    return {
        {tr("Legend"), bar, {}},
        {tr("Axis line"), RecordFields::line("legend/line", axis.getLine()), {}},
        {tr("Ticks"), RecordFields::tics("legend/tics", axis.getTics()), {}},
        {tr("Numbers"), RecordFields::numbers("legend/numbers", axis.getNumbers()), {}},
    };
}

} // namespace Zel3D
