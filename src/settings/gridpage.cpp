#include "settings/gridpage.h"

#include "plots/baseplot.h"
#include "scene/coordinatesystem.h"
#include "scene/linestyle.h"

namespace Zel3D {

namespace {

struct Plane
{
    Grid bit;
    const char* id;
    const char* name;
    const char* row;
};

constexpr Plane planes[] = {
    {GridTop, "top", QT_TRANSLATE_NOOP("Zel3D::GridPage", "Top"),
     QT_TRANSLATE_NOOP("Zel3D::GridPage", "Horizontal")},
    {GridBottom, "bottom", QT_TRANSLATE_NOOP("Zel3D::GridPage", "Bottom"),
     QT_TRANSLATE_NOOP("Zel3D::GridPage", "Horizontal")},
    {GridLeft, "left", QT_TRANSLATE_NOOP("Zel3D::GridPage", "Left"),
     QT_TRANSLATE_NOOP("Zel3D::GridPage", "Sides")},
    {GridRight, "right", QT_TRANSLATE_NOOP("Zel3D::GridPage", "Right"),
     QT_TRANSLATE_NOOP("Zel3D::GridPage", "Sides")},
    {GridFront, "front", QT_TRANSLATE_NOOP("Zel3D::GridPage", "Front"),
     QT_TRANSLATE_NOOP("Zel3D::GridPage", "Depth")},
    {GridBack, "back", QT_TRANSLATE_NOOP("Zel3D::GridPage", "Back"),
     QT_TRANSLATE_NOOP("Zel3D::GridPage", "Depth")},
};

QVector<Field::Offer> lineStyles()
{
    return {{GridPage::tr("SolidLine"), lineStylePattern(0)},
            {GridPage::tr("DashLine"), lineStylePattern(1)},
            {GridPage::tr("DotLine"), lineStylePattern(2)},
            {GridPage::tr("DashDotLine"), lineStylePattern(3)},
            {GridPage::tr("DashDotDotLine"), lineStylePattern(4)}};
}

QVector<Field> planeFields(BasePlot& plot)
{
    const CoordinateSystem::CoordinateSystemSettings& record = plot.getCoordinateSystem().getSettings();
    QVector<Field> fields;
    for (const Plane& plane : planes) {
        const int bit = plane.bit;
        fields.append(Field::toggle(QString("grid/%1").arg(plane.id), GridPage::tr(plane.name),
                                    GridPage::tr("Whether this plane of the box shows grid lines."))
                          .inRow(GridPage::tr(plane.row))
                          .bind([&record, bit] { return (record.getGridStyle() & bit) != 0; },
                                [&plot, &record, bit](bool on) {
                                    const int others = record.getGridStyle() & ~bit;
                                    return plot.setGridStyle(on ? others | bit : others);
                                })
                          .heardFrom(plot, &BasePlot::gridStyleChanged));
    }
    fields.append(
        Field::toggle("grid/automatic", GridPage::tr("Behind the data"),
                      GridPage::tr("Of two opposite planes the one behind the data shows the lines."))
            .bind([&plot] { return plot.isAutomaticFaces(); },
                  [&plot](bool on) { return plot.setAutomaticFaces(on); })
            .heardFrom(plot, &BasePlot::automaticFacesChanged));
    return fields;
}

QVector<Field> colorFields(CoordinateSystem::CoordinateSystemSettings& record)
{
    return {
        Field::color("grid/color", GridPage::tr("Color"), GridPage::tr("The color of all grid lines."))
            .bind([&record] { return record.getGridColor(); },
                  [&record](const QColor& color) { return record.setGridColor(color); }),
        Field::toggle("grid/smooth", GridPage::tr("Smooth lines"),
                      GridPage::tr("Draws the axes without steps."))
            .bind([&record] { return record.isLineSmooth(); },
                  [&record](bool on) { return record.setLineSmooth(on); }),
    };
}

/// The width of the other lines limits that of these.
Field widthField(const QString& id)
{
    return Field::number(id, GridPage::tr("Width"),
                         GridPage::tr("The width of the lines; minor lines are never wider than major ones."))
        .within(0.1, 20.0, 0.1, 2)
        .in(GridPage::tr("px"));
}

QVector<Field> majorFields(CoordinateSystem& system)
{
    CoordinateSystem::CoordinateSystemSettings& record = system.getSettings();
    return {
        Field::toggle("grid/majorVisible", GridPage::tr("Visible"), GridPage::tr("Lines at the numbers."))
            .bind([&record] { return record.isMajorVisible(); },
                  [&record](bool on) { return record.setMajorVisible(on); }),
        widthField("grid/majorWidth")
            .bind([&record] { return record.getMajorLineWidth(); },
                  [&system](double pixels) { system.setMajorLineWidth(pixels); }),
        Field::choice("grid/majorStyle", GridPage::tr("Style"), GridPage::tr("How the lines are broken."))
            .offering(lineStyles())
            .bind([&record] { return record.getMajorLineStyle(); },
                  [&record](int pattern) { return record.setMajorLineStyle(pattern); }),
    };
}

QVector<Field> minorFields(CoordinateSystem& system)
{
    CoordinateSystem::CoordinateSystemSettings& record = system.getSettings();
    return {
        Field::toggle("grid/minorVisible", GridPage::tr("Visible"),
                      GridPage::tr("Lines between the numbers."))
            .bind([&record] { return record.isMinorVisible(); },
                  [&record](bool on) { return record.setMinorVisible(on); }),
        widthField("grid/minorWidth")
            .bind([&record] { return record.getMinorLineWidth(); },
                  [&system](double pixels) { system.setMinorLineWidth(pixels); }),
        Field::choice("grid/minorStyle", GridPage::tr("Style"), GridPage::tr("How the lines are broken."))
            .offering(lineStyles())
            .bind([&record] { return record.getMinorLineStyle(); },
                  [&record](int pattern) { return record.setMinorLineStyle(pattern); }),
    };
}

} // namespace

QVector<FieldGroup> GridPage::describe(BasePlot& plot) const
{
    CoordinateSystem& system = plot.getCoordinateSystem();
    return {
        {tr("Planes"), planeFields(plot), {}},
        {tr("Lines"), colorFields(system.getSettings()), {}},
        {tr("Major lines"), majorFields(system), {}},
        {tr("Minor lines"), minorFields(system), {}},
    };
}

} // namespace Zel3D
