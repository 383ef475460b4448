#include "settings/lightingpage.h"

#include "plots/baseplot.h"
#include "view/light.h"

namespace Zel3D {

namespace {

constexpr double farAway = 1e9;

QVector<Field> sceneFields(BasePlot& plot)
{
    return {
        Field::toggle("lighting/on", LightingPage::tr("Lighting"),
                      LightingPage::tr("Lights the scene with the lights below."))
            .bind([&plot] { return plot.isLighting(); }, [&plot](bool on) { return plot.setLighting(on); })
            .heardFrom(plot, &BasePlot::lightingChanged),
        Field::toggle("lighting/markers", LightingPage::tr("Show lights"),
                      LightingPage::tr("Draws a marker where each light stands."))
            .bind([&plot] { return plot.isShowLights(); },
                  [&plot](bool on) { return plot.setShowLights(on); })
            .heardFrom(plot, &BasePlot::showLightsChanged),
    };
}

QVector<Field> lightFields(Light& light, const QString& id)
{
    const Light::Settings& record = light.getSettings();
    return {
        Field::toggle(id + "/on", LightingPage::tr("On"), LightingPage::tr("Switches the light on."))
            .bind([&light] { return light.isOn(); }, [&light](bool on) { return light.setOn(on); })
            .heardFrom(light, &Light::paramsChanged),
        Field::choice(id + "/type", LightingPage::tr("Type"),
                      LightingPage::tr("Parallel rays, a point that shines to all sides, or a cone."))
            .offering(QStringList{LightingPage::tr("Directional"), LightingPage::tr("Dotted"),
                                  LightingPage::tr("Spot")})
            .bind([&light] { return light.getType(); },
                  [&light](Light::LightType type) { return light.setType(type); })
            .heardFrom(light, &Light::typeChanged),
        Field::color(id + "/ambient", LightingPage::tr("Ambient"),
                     LightingPage::tr("The color that reaches every side."))
            .bind([&record] { return record.getAmbient(); },
                  [&light](const QColor& color) { return light.setAmbient(color); })
            .heardFrom(light, &Light::paramsChanged),
        Field::color(id + "/diffuse", LightingPage::tr("Diffuse"),
                     LightingPage::tr("The color of the sides that face the light."))
            .bind([&record] { return record.getDiffuse(); },
                  [&light](const QColor& color) { return light.setDiffuse(color); })
            .heardFrom(light, &Light::paramsChanged),
        Field::color(id + "/specular", LightingPage::tr("Specular"),
                     LightingPage::tr("The color of highlights."))
            .bind([&record] { return record.getSpecular(); },
                  [&light](const QColor& color) { return light.setSpecular(color); })
            .heardFrom(light, &Light::paramsChanged),
    };
}

QVector<Field> placeFields(Light& light, const QString& id)
{
    return {
        Field::number(id + "/radius", LightingPage::tr("Distance"),
                      LightingPage::tr("The distance from the center of the scene, in its units."))
            .within(0.0, farAway, 0.5, 4)
            .bind([&light] { return light.getRadius(); },
                  [&light](double radius) { light.setRadius(radius); }),
        Field::number(id + "/phi", LightingPage::tr("Direction"),
                      LightingPage::tr("The angle around the z axis."))
            .within(-360.0, 360.0, 5.0, 1)
            .in(QStringLiteral("°"))
            .withSlider()
            .bind([&light] { return light.getPhi(); }, [&light](double degrees) { light.setPhi(degrees); }),
        Field::number(id + "/theta", LightingPage::tr("Tilt"),
                      LightingPage::tr("The angle from the z axis; 0 is above."))
            .within(-360.0, 360.0, 5.0, 1)
            .in(QStringLiteral("°"))
            .withSlider()
            .bind([&light] { return light.getTheta(); },
                  [&light](double degrees) { light.setTheta(degrees); }),
    };
}

Field fadingField(Light& light, const QString& id, const QString& name, double (Light::*get)() const,
                  bool (Light::*set)(double))
{
    return Field::number(
               id, name,
               LightingPage::tr("How the light fades with the distance; directional light does not."))
        .within(0.0, 1000.0, 0.1, 3)
        .inRow(LightingPage::tr("Fading"))
        .when([&light] { return light.getType() != Light::Directional; })
        .bind([&light, get] { return (light.*get)(); },
              [&light, set](double value) { return (light.*set)(value); })
        .heardFrom(light, &Light::paramsChanged);
}

Field targetField(Light& light, const QString& id, const QString& name, int component)
{
    return Field::number(id, name,
                         LightingPage::tr("The point at which the cone aims, from the center of the scene."))
        .within(-farAway, farAway, 0.1, 4)
        .inRow(LightingPage::tr("Target"))
        .when([&light] { return light.getType() == Light::Spot; })
        .bind([&light, component] { return double(light.getSpotDirection()[component]); },
              [&light, component](double coordinate) {
                  QVector3D target = light.getSpotDirection();
                  target[component] = float(coordinate);
                  return light.setSpotDirection(target);
              })
        .heardFrom(light, &Light::directionChanged);
}

QVector<Field> rayFields(Light& light, const QString& id)
{
    const auto isSpot = [&light] { return light.getType() == Light::Spot; };
    return {
        fadingField(light, id + "/constant", LightingPage::tr("Constant"), &Light::getConstAttenuation,
                    &Light::setConstAttenuation),
        fadingField(light, id + "/linear", LightingPage::tr("Linear"), &Light::getLinearAttenuation,
                    &Light::setLinearAttenuation),
        fadingField(light, id + "/quadratic", LightingPage::tr("Quadratic"), &Light::getQuadraticAttenuation,
                    &Light::setQuadraticAttenuation),
        targetField(light, id + "/targetX", "X", 0),
        targetField(light, id + "/targetY", "Y", 1),
        targetField(light, id + "/targetZ", "Z", 2),
        Field::number(id + "/exponent", LightingPage::tr("Concentration"),
                      LightingPage::tr("How much brighter the middle of the cone is."))
            .within(0.0, 128.0, 1.0, 1)
            .withSlider()
            .when(isSpot)
            .bind([&light] { return light.getSpotExponent(); },
                  [&light](double value) { return light.setSpotExponent(value); })
            .heardFrom(light, &Light::paramsChanged),
        // 180, no cone, is left to hosts: nothing between 85 and 180 holds.
        Field::number(id + "/cutoff", LightingPage::tr("Opening"),
                      LightingPage::tr("Half the opening angle of the cone."))
            .within(1.0, 85.0, 1.0, 1)
            .in(QStringLiteral("°"))
            .withSlider()
            .when(isSpot)
            .bind([&light] { return light.getSpotCutoff(); },
                  [&light](double degrees) { return light.setSpotCutoff(degrees); })
            .heardFrom(light, &Light::paramsChanged),
    };
}

} // namespace

QVector<FieldGroup> LightingPage::describe(BasePlot& plot) const
{
    QVector<FieldGroup> all{{tr("Scene"), sceneFields(plot), {}}};
    for (Light* light : plot.getLights()) {
        const QString id = QString("lighting/light%1").arg(light->getNumber());
        const QString tab = QString::number(light->getNumber() + 1);
        all.append({tr("Light %1").arg(tab), lightFields(*light, id), tab});
        all.append({tr("Place"), placeFields(*light, id), tab});
        all.append({tr("Rays"), rayFields(*light, id), tab});
    }
    return all;
}

} // namespace Zel3D
