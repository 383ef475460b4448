#include "settings/additionspage.h"

#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "settings/markerseditor.h"

namespace Zel3D {

namespace {

QVector<Field> dotFields(BasePlot& plot)
{
    const Dot& dot = plot.getSettings().getDot();
    return {
        Field::number("additions/dotSize", AdditionsPage::tr("Size"),
                      AdditionsPage::tr("The width of the dots of the style that draws points."))
            .within(0.1, 100.0, 1.0, 1)
            .in(AdditionsPage::tr("px"))
            .bind([&dot] { return dot.getSize(); }, [&plot](double px) { return plot.setDotSize(px); })
            .heardFrom(plot, &BasePlot::dotSizeChanged),
        Field::toggle("additions/dotSmooth", AdditionsPage::tr("Round"),
                      AdditionsPage::tr("Draws round dots in place of squares."))
            .bind([&dot] { return dot.isSmooth(); }, [&plot](bool on) { return plot.setDotSmooth(on); })
            .heardFrom(plot, &BasePlot::dotSmoothChanged),
    };
}

/// The radius comes from the data; a person sets how much of it the bars take.
QVector<Field> barFields(BasePlot& plot)
{
    const CylinderAddition& bar = plot.getSettings().getCylinder();
    return {
        Field::number("additions/barWidth", AdditionsPage::tr("Width"),
                      AdditionsPage::tr("The width of the bars of a histogram; bars of width 1 touch."))
            .within(0.0, 10.0, 0.05, 2)
            .bind([&bar] { return bar.getMultiplier(); },
                  [&plot](double factor) { return plot.setCylinderMultiplier(factor); })
            .heardFrom(plot, &BasePlot::cylinderMultiplier),
        Field::integer("additions/barSides", AdditionsPage::tr("Sides"),
                       AdditionsPage::tr("The number of sides of a bar."))
            .within(3, 100, 1)
            .bind([&bar] { return bar.getRibNumber(); },
                  [&plot](int ribs) { return plot.setCylinderRibNumber(ribs); })
            .heardFrom(plot, &BasePlot::cylinderRibNumberChanged),
        Field::number("additions/barTurn", AdditionsPage::tr("Turn"),
                      AdditionsPage::tr("The turn of a bar around its length."))
            .within(-360.0, 360.0, 5.0, 1)
            .in(QStringLiteral("°"))
            .withSlider()
            .bind([&bar] { return bar.getAngleZ(); },
                  [&plot](double degrees) { return plot.setCylinderAngleZ(degrees); })
            .heardFrom(plot, &BasePlot::cylinderAngleZChanged),
        Field::integer("additions/barOpacity", AdditionsPage::tr("Opacity"),
                       AdditionsPage::tr("How little of what lies behind shines through."))
            .within(0, 100, 5)
            .in(QStringLiteral("%"))
            .withSlider()
            .bind([&bar] { return bar.getOpacity(); },
                  [&plot](int percent) { return plot.setCylinderOpacity(percent); })
            .heardFrom(plot, &BasePlot::cylinderOpacityChanged),
        Field::toggle("additions/barEdges", AdditionsPage::tr("Edges"),
                      AdditionsPage::tr("Draws lines along the edges of the bars."))
            .bind([&bar] { return bar.isFrameVisible(); },
                  [&plot](bool on) { return plot.setCylinderFrameVisible(on); })
            .heardFrom(plot, &BasePlot::cylinderFrameVisibleChanged),
    };
}

QVector<Field> markerFields(BasePlot& plot)
{
    return {Field::custom("additions/markers", AdditionsPage::tr("Markers"),
                          AdditionsPage::tr("What is drawn at every point of the data, whatever the style."))
                .editedBy([](const Field&) { return new MarkersEditor; })
                .bind([&plot] { return plot.getMarkers(); },
                      [&plot](const QVariantList& markers) { return plot.setMarkers(markers); })
                .heardFrom(plot, &BasePlot::additionsChanged)};
}

} // namespace

QVector<FieldGroup> AdditionsPage::describe(BasePlot& plot) const
{
    return {
        {tr("Dots"), dotFields(plot), {}},
        {tr("Bars"), barFields(plot), {}},
        {tr("Markers"), markerFields(plot), {}},
    };
}

} // namespace Zel3D
