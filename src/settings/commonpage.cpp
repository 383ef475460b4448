#include "settings/commonpage.h"

#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"

namespace Zel3D {

namespace {

using Vector = ValueXYZ<double>;
using Plane = ValueXY<double>;

constexpr double farAway = 1e9;

/// Reads and writes one component of a vector of the plot.
template <class Value>
void bindPart(Field& field, BasePlot& plot, double Value::*part, const Value& (ZelGLWidget::*get)() const,
              bool (ZelGLWidget::*set)(const Value&))
{
    field.bind([&plot, part, get] { return (plot.*get)().*part; },
               [&plot, part, get, set](double number) {
                   Value value = (plot.*get)();
                   value.*part = number;
                   return (plot.*set)(value);
               });
}

struct Part
{
    const char* id;
    const char* name;
    double Vector::*part;
};

constexpr Part parts[] = {{"X", "X", &Vector::x}, {"Y", "Y", &Vector::y}, {"Z", "Z", &Vector::z}};

QVector<Field> viewFields(BasePlot& plot)
{
    return {
        Field::color("common/background", CommonPage::tr("Background"),
                     CommonPage::tr("The color behind the scene."))
            .bind([&plot] { return plot.getBackgroundColor(); },
                  [&plot](const QColor& color) { return plot.setBackgroundColor(color); })
            .heardFrom(plot, &BasePlot::backgroundColorChanged),
        Field::choice("common/projection", CommonPage::tr("Projection"),
                      CommonPage::tr("Parallel rays, or rays through one eye point."))
            .offering(QStringList{CommonPage::tr("Orthogonal"), CommonPage::tr("Perspective")})
            .bind([&plot] { return plot.getProjectionType(); },
                  [&plot](ProjectionType type) { return plot.setProjectionType(type); })
            .heardFrom(plot, &BasePlot::projectionTypeChanged),
        Field::toggle("common/keepProportions", CommonPage::tr("Keep proportions"),
                      CommonPage::tr("The scene does not stretch with the window."))
            .bind([&plot] { return plot.isKeepProportions(); },
                  [&plot](bool on) { return plot.setKeepProportions(on); })
            .heardFrom(plot, &BasePlot::keepProportionsChanged),
        Field::toggle("common/info", CommonPage::tr("Frame rate"),
                      CommonPage::tr("Writes the information on drawn frames into the corner."))
            .bind([&plot] { return plot.isShowInfo(); }, [&plot](bool on) { return plot.setShowInfo(on); })
            .heardFrom(plot, &BasePlot::showInfoChanged),
        Field::toggle("common/toolTips", CommonPage::tr("Tool tips"),
                      CommonPage::tr("Shows the values of what is under the mouse."))
            .bind([&plot] { return plot.isShowToolTips(); },
                  [&plot](bool on) { return plot.setShowToolTips(on); }),
        Field::toggle("common/selecting", CommonPage::tr("Picking"),
                      CommonPage::tr("Finds the point of the data under the mouse."))
            .bind([&plot] { return plot.isSelecting(); }, [&plot](bool on) { return plot.setSelecting(on); })
            .heardFrom(plot, &BasePlot::selectingChanged),
        Field::toggle("common/pickHighlight", CommonPage::tr("Mark picked point"),
                      CommonPage::tr("Marks the point that was found in the scene."))
            .bind([&plot] { return plot.isPickHighlight(); },
                  [&plot](bool on) { return plot.setPickHighlight(on); })
            .heardFrom(plot, &BasePlot::pickHighlightChanged),
    };
}

QVector<Field> rotationFields(BasePlot& plot)
{
    QVector<Field> fields;
    for (const Part& part : parts) {
        Field field = Field::number(QString("common/rotation%1").arg(part.id),
                                    CommonPage::tr("Around %1").arg(part.name),
                                    CommonPage::tr("The rotation of the scene around the axis."));
        field.within(-360.0, 360.0, 5.0, 1).in(QStringLiteral("°")).withSlider();
        bindPart(field, plot, part.part, &ZelGLWidget::getRotation, &ZelGLWidget::setRotation);
        fields.append(field.heardFrom(plot, &BasePlot::rotationChanged));
    }
    fields.append(Field::toggle("common/autoRotation", CommonPage::tr("Automatic rotation"),
                                CommonPage::tr("A quick drag keeps the scene turning when it is released."))
                      .bind([&plot] { return plot.isAutoRotate(); },
                            [&plot](bool on) { return plot.setAutoRotate(on); })
                      .heardFrom(plot, &BasePlot::autoRotateChanged));
    fields.append(Field::number("common/threshold", CommonPage::tr("Threshold"),
                                CommonPage::tr("The last step that a drag must exceed to keep turning."))
                      .within(0.0, 100.0, 0.5, 1)
                      .in(CommonPage::tr("px"))
                      .when([&plot] { return plot.isAutoRotate(); })
                      .bind([&plot] { return plot.getDeltaVelocity(); },
                            [&plot](double pixels) { return plot.setDeltaVelocity(pixels); })
                      .heardFrom(plot, &BasePlot::deltaVelocityChanged));
    return fields;
}

QVector<Field> positionFields(BasePlot& plot)
{
    QVector<Field> fields;
    for (const Part& part : parts) {
        Field field = Field::number(QString("common/shift%1").arg(part.id), part.name,
                                    CommonPage::tr("Moves the scene along the axis, in units of the data."));
        field.within(-farAway, farAway, 0.1, 6).inRow(CommonPage::tr("Shift"));
        bindPart(field, plot, part.part, &ZelGLWidget::getShift, &ZelGLWidget::setShift);
        fields.append(field.heardFrom(plot, &BasePlot::shiftChanged));
    }
    const QString about = CommonPage::tr("Moves the picture in the window; 1 is the radius of the scene.");
    Field x = Field::number("common/viewportShiftX", "X", about);
    bindPart(x, plot, &Plane::x, &ZelGLWidget::getViewportShift, &ZelGLWidget::setViewportShift);
    Field y = Field::number("common/viewportShiftY", "Y", about);
    bindPart(y, plot, &Plane::y, &ZelGLWidget::getViewportShift, &ZelGLWidget::setViewportShift);
    for (Field* field : {&x, &y}) {
        field->within(-10.0, 10.0, 0.05, 3).inRow(CommonPage::tr("Viewport shift"));
        fields.append(field->heardFrom(plot, &BasePlot::vieportShiftChanged));
    }
    return fields;
}

QVector<Field> sizeFields(BasePlot& plot)
{
    QVector<Field> fields;
    const auto byHand = [&plot] { return plot.getBoxScaling() == ManualScaling; };
    fields.append(
        Field::choice("common/boxScaling", CommonPage::tr("Automatic scaling"),
                      CommonPage::tr("How the axes are scaled: the data as a cube, one unit equally "
                                     "long on every axis, or as set below."))
            .offering(
                QStringList{CommonPage::tr("Cube"), CommonPage::tr("Equal units"), CommonPage::tr("Off")})
            .bind([&plot] { return plot.getBoxScaling(); },
                  [&plot](BoxScaling scaling) { return plot.setBoxScaling(scaling); })
            .heardFrom(plot, &BasePlot::boxScalingChanged));
    for (const Part& part : parts) {
        Field field = Field::number(QString("common/scale%1").arg(part.id), part.name,
                                    CommonPage::tr("Stretches the scene along the axis."));
        field.within(0.000001, farAway, 0.1, 6).inRow(CommonPage::tr("Scale")).when(byHand);
        bindPart(field, plot, part.part, &ZelGLWidget::getScale, &ZelGLWidget::setScale);
        // Automatic scaling holds the scale.
        const Field::Writer write = field.write;
        field.write = [byHand, write](const QVariant& value) { return byHand() && write(value); };
        fields.append(field.heardFrom(plot, &BasePlot::scaleChanged));
    }
    fields.append(
        Field::number("common/zoom", CommonPage::tr("Zoom"), CommonPage::tr("How large the scene is drawn."))
            .within(0.01, 10.0, 0.1, 3)
            .withSlider()
            .bind([&plot] { return plot.getZoom(); }, [&plot](double factor) { return plot.setZoom(factor); })
            .heardFrom(plot, &BasePlot::zoomChanged));
    return fields;
}

QVector<Field> drawingFields(BasePlot& plot)
{
    const BasePlot::BasePlotSettings& settings = plot.getSettings();
    return {
        Field::integer("common/resolution", CommonPage::tr("Resolution"),
                       CommonPage::tr("The step from one drawn node to the next; 1 draws every node."))
            .within(1, 1000, 1)
            .bind([&settings] { return settings.getResolution(); },
                  [&plot](int step) { return plot.setResolution(step); })
            .heardFrom(plot, &BasePlot::resolutionChanged),
        Field::choice("common/shading", CommonPage::tr("Shading"),
                      CommonPage::tr("One color a polygon, or colors that run from corner to corner."))
            .offering(QStringList{CommonPage::tr("Flat"), CommonPage::tr("Smooth")})
            .bind([&settings] { return settings.getShadingStyle(); },
                  [&plot](ShadingStyle style) { return plot.setShadingStyle(style); })
            .heardFrom(plot, &BasePlot::shadingStyleChanged),
        Field::number("common/polygonOffset", CommonPage::tr("Polygon offset"),
                      CommonPage::tr("How far surfaces stand back behind the lines drawn on them."))
            .within(-10.0, 10.0, 0.5, 2)
            .bind([&settings] { return settings.getPolygonOffset(); },
                  [&plot](double factor) { return plot.setPolygonOffset(factor); })
            .heardFrom(plot, &BasePlot::polygonOffsetChanged),
        Field::choice("common/contour", CommonPage::tr("Contour plot"),
                      CommonPage::tr("The flat copy of the surface on a plane of the box."))
            .offering(QStringList{CommonPage::tr("None"), CommonPage::tr("Top"), CommonPage::tr("Bottom")})
            .bind([&settings] { return settings.getViewProjection(); },
                  [&plot](ViewProjection projection) { return plot.setViewProjection(projection); })
            .heardFrom(plot, &BasePlot::viewProjectionChanged),
    };
}

} // namespace

QVector<FieldGroup> CommonPage::describe(BasePlot& plot) const
{
    return {
        {tr("View"), viewFields(plot), {}},         {tr("Rotation"), rotationFields(plot), {}},
        {tr("Position"), positionFields(plot), {}}, {tr("Size"), sizeFields(plot), {}},
        {tr("Drawing"), drawingFields(plot), {}},
    };
}

} // namespace Zel3D
