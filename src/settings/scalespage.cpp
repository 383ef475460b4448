#include "settings/scalespage.h"

#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"

namespace Zel3D {

namespace {

constexpr int mostIntervals = 100;

Field scaleField(BasePlot& plot, const QString& id, BaseAxisType axis)
{
    const BasePlot::AxesSettings& axes = plot.getSettings().getAxes();
    return Field::choice(id + "/type", ScalesPage::tr("Scale"),
                         ScalesPage::tr("How values lie along the axis."))
        .offering(QStringList{ScalesPage::tr("Linear"), ScalesPage::tr("Logarithmic")})
        .bind([&axes, axis] { return axes.getAxesScaleType(axis); },
              [&plot, axis](ScaleType type) { return plot.setAxesScaleType(axis, type); })
        .heardFrom(plot, &BasePlot::axesScaleChanged);
}

/// The division that an axis has under a scale, whether that is in force or not.
QVector<Field> divisionFields(BasePlot& plot, const QString& id, BaseAxisType axis, ScaleType scale,
                              const QString& row)
{
    const BasePlot::AxesSettings& axes = plot.getSettings().getAxes();
    QVector<Field::Offer> offers;
    for (unsigned int count : axes.getMinorIntervals(axis, scale))
        offers.append({QString::number(count), int(count)});
    return {
        Field::integer(id + "/major", ScalesPage::tr("Major"),
                       ScalesPage::tr("Into how many parts numbers divide the axis."))
            .within(1, mostIntervals, 1)
            .inRow(row)
            .bind([&axes, axis, scale] { return int(axes.getMajorInterval(axis, scale)); },
                  [&plot, axis, scale](int count) { return plot.setMajorInterval(axis, scale, count); })
            .heardFrom(plot, &BasePlot::majorIntervalChanged),
        Field::choice(id + "/minor", ScalesPage::tr("Minor"),
                      ScalesPage::tr("Into how many parts small ticks divide each of them."))
            .offering(offers)
            .inRow(row)
            .bind([&axes, axis, scale] { return int(axes.getMinorInterval(axis, scale)); },
                  [&plot, axis, scale](int count) { return plot.setMinorInterval(axis, scale, count); })
            .heardFrom(plot, &BasePlot::minorIntervalChanged),
    };
}

} // namespace

QVector<FieldGroup> ScalesPage::describe(BasePlot& plot) const
{
    const struct
    {
        BaseAxisType axis;
        QString id;
        QString title;
    } directions[] = {{XAxis, "scales/x", tr("X axis")},
                      {YAxis, "scales/y", tr("Y axis")},
                      {ZAxis, "scales/z", tr("Z axis and legend")}};
    QVector<FieldGroup> groups;
    for (const auto& direction : directions) {
        QVector<Field> fields{scaleField(plot, direction.id, direction.axis)};
        fields +=
            divisionFields(plot, direction.id + "/linear", direction.axis, Linear, tr("Linear intervals"));
        fields += divisionFields(plot, direction.id + "/logarithmic", direction.axis, Logarithmic,
                                 tr("Logarithmic intervals"));
        groups.append({direction.title, fields, {}});
    }
    return groups;
}

} // namespace Zel3D
