#include "settings/axespage.h"

#include "plots/baseplot.h"
#include "scene/boxedges.h"
#include "scene/coordinatesystem.h"
#include "settings/axesgroupbox.h"
#include "settings/boxpicker.h"
#include "settings/recordfields.h"

namespace Zel3D {

namespace {

QString idOf(AxisType type)
{
    return QString("axes/axis%1").arg(int(type));
}

QVector<Field> edgeFields(BasePlot& plot)
{
    return {Field::toggle("axes/automaticEdges", AxesPage::tr("Best edges"),
                          AxesPage::tr("Shows each axis on the edge of the box where it is easiest to read."))
                .bind([&plot] { return plot.isAutomaticEdges(); },
                      [&plot](bool on) { return plot.setAutomaticEdges(on); })
                .heardFrom(plot, &BasePlot::automaticEdgesChanged)};
}

/// Which axes are seen is the plot's to choose while it chooses the best edges.
Field shownField(BasePlot& plot, AxisType type)
{
    CoordinateSystem& system = plot.getCoordinateSystem();
    return Field::toggle(
               idOf(type) + "/shown", AxesPage::tr("Axis visible"),
               AxesPage::tr("Whether the axis is shown; the plot chooses while it shows the axes on "
                            "their best edges."))
        .when([&plot] { return !plot.isAutomaticEdges(); })
        .bind([&plot, &system, type] { return plot.isAutomaticEdges() || system.isAxisVisible(type); },
              [&system, type](bool on) {
                  if (system.isAxisVisible(type) == on)
                      return false;
                  system.setAxesVisible(type, on);
                  return true;
              });
}

QVector<Field> nameFields(const QString& id, Axis& axis)
{
    Axis::Settings& record = axis.getSettings();
    QVector<Field> fields = RecordFields::text(id + "/name", axis.getLabel());
    fields += RecordFields::place(id + "/name", axis.getLabel());
    fields.append(Field::number(id + "/name/shift", AxesPage::tr("Distance"),
                                AxesPage::tr("Moves the name away from the axis, in units of the data."))
                      .within(-1e9, 1e9, 0.1, 4)
                      .bind([&record] { return record.getLabelShift(); },
                            [&record](double units) { return record.setLabelShift(units); }));
    return fields;
}

QVector<FieldGroup> axisGroups(BasePlot& plot, AxisType type)
{
    Axis& axis = plot.getCoordinateSystem().getAxis(type);
    Axis::Settings& record = axis.getSettings();
    const QString id = idOf(type);
    const QString name = axisName(type);
    QVector<Field> line{shownField(plot, type)};
    for (Field field : RecordFields::line(id + "/line", record.getLine())) {
        if (field.id.endsWith("/visible"))
            field.label = AxesPage::tr("Line visible");
        line.append(field);
    }
    return {
        {AxesPage::tr("Line"), line, name},
        {AxesPage::tr("Name"), nameFields(id, axis), name},
        {AxesPage::tr("Ticks"), RecordFields::tics(id + "/tics", record.getTics()), name},
        {AxesPage::tr("Numbers"), RecordFields::numbers(id + "/numbers", record.getNumbers()), name},
        {AxesPage::tr("Arrow"), RecordFields::arrow(id + "/arrow", axis.getArrow()), name},
    };
}

/// The same fields of the other axes of the direction.
void addAlike(QVector<FieldGroup>& groups, AxisType type)
{
    const QString own = idOf(type) + '/';
    for (FieldGroup& group : groups) {
        for (Field& field : group.fields) {
            QStringList others;
            for (AxisType other : axesOf(baseAxisType(type))) {
                if (other != type)
                    others.append(idOf(other) + '/' + field.id.mid(own.size()));
            }
            field.alongWith(others);
        }
    }
}

} // namespace

QVector<FieldGroup> AxesPage::describe(BasePlot& plot) const
{
    QVector<FieldGroup> all{{tr("Edges"), edgeFields(plot), {}}};
    for (AxisType type : listedAxes()) {
        QVector<FieldGroup> groups = axisGroups(plot, type);
        addAlike(groups, type);
        all += groups;
    }
    return all;
}

AbstractSettingsGroupBox* AxesPage::makeTabs(const QVector<FieldGroup>& groups, FieldBinder& binder)
{
    return new AxesGroupBox(groups, binder, this);
}

} // namespace Zel3D
