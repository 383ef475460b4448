#include "settings/plotstylepage.h"

#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/styleaction.h"
#include "settings/gradienteditor.h"
#include "settings/gradientvalue.h"

namespace Zel3D {

namespace {

/// The styles are those of the plot's actions.
QVector<Field> styleFields(BasePlot& plot)
{
    QVector<Field::Offer> offers;
    for (const StyleAction* action : plot.getStyleActions())
        offers.append({action->text().remove('&'), action->getStyle()});
    QVector<Field> fields;
    if (!offers.isEmpty()) {
        fields.append(Field::choice("style/style", PlotStylePage::tr("Style"),
                                    PlotStylePage::tr("What is drawn of the data."))
                          .offering(offers)
                          .bind([&plot] { return plot.getSettings().getStyle(); },
                                [&plot](int style) { return plot.setPlotStyle(style); })
                          .heardFrom(plot, &BasePlot::plotStyleChanged));
    }
    const BasePlot::GradientsSettings& gradients = plot.getSettings().getGradients();
    fields.append(Field::custom("style/gradient", PlotStylePage::tr("Gradient"),
                                PlotStylePage::tr("The colors of the values."))
                      .editedBy([](const Field&) { return new GradientEditor; })
                      .withoutDefault()
                      .bind(
                          [&gradients] {
                              return GradientValue{gradients.getCurrent(), gradients.getGradients()}.toMap();
                          },
                          [&plot](const QVariantMap& map) {
                              const GradientValue value = GradientValue::from(map);
                              return plot.setGradients(value.current, value.gradients);
                          })
                      .heardFrom(plot, &BasePlot::gradientsChanged));
    return fields;
}

QVector<Field> meshFields(BasePlot& plot)
{
    const BasePlot::MeshSettings& mesh = plot.getSettings().getMesh();
    return {
        Field::color("style/meshColor", PlotStylePage::tr("Color"),
                     PlotStylePage::tr("The color of the mesh lines."))
            .bind([&mesh] { return mesh.getColor(); },
                  [&plot](const QColor& color) { return plot.setMeshColor(color); })
            .heardFrom(plot, &BasePlot::meshColorChanged),
        Field::number("style/meshWidth", PlotStylePage::tr("Width"),
                      PlotStylePage::tr("The width of the mesh lines."))
            .within(0.0, 20.0, 0.5, 2)
            .in(PlotStylePage::tr("px"))
            .bind([&mesh] { return mesh.getLineWidth(); },
                  [&plot](double pixels) { return plot.setMeshLineWidth(pixels); })
            .heardFrom(plot, &BasePlot::meshLineWidthChanged),
        Field::toggle("style/meshX", PlotStylePage::tr("Lines along columns"),
                      PlotStylePage::tr("Mesh lines at equal x."))
            .bind([&mesh] { return mesh.isXVisible(); },
                  [&plot](bool on) { return plot.setMeshXVisible(on); })
            .heardFrom(plot, &BasePlot::meshXVisibleChanged),
        Field::toggle("style/meshY", PlotStylePage::tr("Lines along rows"),
                      PlotStylePage::tr("Mesh lines at equal y."))
            .bind([&mesh] { return mesh.isYVisible(); },
                  [&plot](bool on) { return plot.setMeshYVisible(on); })
            .heardFrom(plot, &BasePlot::meshYVisibleChanged),
        Field::toggle("style/meshSmooth", PlotStylePage::tr("Smooth lines"),
                      PlotStylePage::tr("Draws the mesh without steps."))
            .bind([&mesh] { return mesh.isSmooth(); }, [&plot](bool on) { return plot.setMeshSmooth(on); })
            .heardFrom(plot, &BasePlot::meshSmoothChanged),
    };
}

QVector<Field> normalFields(BasePlot& plot)
{
    const BasePlot::NormalsSettings& normals = plot.getSettings().getNormals();
    const auto visible = [&normals] { return normals.isVisible(); };
    return {
        Field::toggle("style/normals", PlotStylePage::tr("Visible"),
                      PlotStylePage::tr("Shows the normals of the surface as arrows."))
            .bind(visible, [&plot](bool on) { return plot.setNormalsVisible(on); })
            .heardFrom(plot, &BasePlot::normalsChanged),
        Field::number(
            "style/normalsLength", PlotStylePage::tr("Length"),
            PlotStylePage::tr("The length of the arrows in parts of the diagonal of the data's box."))
            .within(0.001, 1.0, 0.01, 3)
            .withSlider()
            .when(visible)
            .bind([&normals] { return normals.getLength(); },
                  [&plot](double part) { return plot.setNormalsLength(part); })
            .heardFrom(plot, &BasePlot::normalsLengthChanged),
        Field::number("style/normalsQuality", PlotStylePage::tr("Quality"),
                      PlotStylePage::tr("The sides of an arrow's head."))
            .within(3.0, 50.0, 1.0)
            .when(visible)
            .bind([&normals] { return normals.getQuality(); },
                  [&plot](double sides) { return plot.setNormalsQuality(sides); })
            .heardFrom(plot, &BasePlot::normalsQualityChanged),
    };
}

} // namespace

QVector<FieldGroup> PlotStylePage::describe(BasePlot& plot) const
{
    QVector<FieldGroup> groups{{tr("Mesh"), meshFields(plot), {}}, {tr("Normals"), normalFields(plot), {}}};
    const QVector<Field> styles = styleFields(plot);
    if (!styles.isEmpty())
        groups.prepend({tr("Style"), styles, {}});
    return groups;
}

} // namespace Zel3D
