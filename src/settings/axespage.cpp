#include "settings/axespage.h"

#include "plots/baseplot.h"
#include "scene/coordinatesystem.h"
#include "settings/recordfields.h"

#include <array>
#include <functional>

namespace Zel3D {

namespace {

struct Direction
{
    const char* id;
    const char* name;
    std::array<AxisType, 4> edges;
};

/// The four edges of a direction look alike: which of them shows its axis changes as the view turns.
constexpr std::array<Direction, 3> directions{{
    {"axes/x",
     QT_TRANSLATE_NOOP("Zel3D::AxesPage", "X axis"),
     {XFrontBottom, XFrontTop, XBackTop, XBackBottom}},
    {"axes/y",
     QT_TRANSLATE_NOOP("Zel3D::AxesPage", "Y axis"),
     {YLeftBottom, YLeftTop, YRightTop, YRightBottom}},
    {"axes/z",
     QT_TRANSLATE_NOOP("Zel3D::AxesPage", "Z axis"),
     {ZBackLeft, ZFrontLeft, ZBackRight, ZFrontRight}},
}};

QVector<Field> edgeFields(BasePlot& plot)
{
    return {Field::toggle("axes/automaticEdges", AxesPage::tr("Best edges"),
                          AxesPage::tr("Shows each axis on the edge of the box where it is easiest to read."))
                .bind([&plot] { return plot.isAutomaticEdges(); },
                      [&plot](bool on) { return plot.setAutomaticEdges(on); })
                .heardFrom(plot, &BasePlot::automaticEdgesChanged)};
}

} // namespace

QVector<FieldGroup> AxesPage::describe(BasePlot& plot) const
{
    QVector<FieldGroup> all{{tr("Edges"), edgeFields(plot), {}}};
    for (const Direction& direction : directions) {
        const QString id = direction.id;
        const auto add = [&](const QString& title, const std::function<QVector<Field>(Axis&)>& describeOne) {
            QVector<QVector<Field>> edges;
            for (AxisType edge : direction.edges)
                edges.append(describeOne(plot.getCoordinateSystem().getAxis(edge)));
            all.append({title, RecordFields::together(edges), tr(direction.name)});
        };
        add(tr("Name"), [&id](Axis& axis) { return RecordFields::text(id + "/name", axis.getLabel()); });
        add(tr("Line"),
            [&id](Axis& axis) { return RecordFields::line(id + "/line", axis.getSettings().getLine()); });
        add(tr("Ticks"),
            [&id](Axis& axis) { return RecordFields::tics(id + "/tics", axis.getSettings().getTics()); });
        add(tr("Numbers"), [&id](Axis& axis) {
            return RecordFields::numbers(id + "/numbers", axis.getSettings().getNumbers());
        });
        add(tr("Arrow"), [&id](Axis& axis) { return RecordFields::arrow(id + "/arrow", axis.getArrow()); });
    }
    return all;
}

} // namespace Zel3D
