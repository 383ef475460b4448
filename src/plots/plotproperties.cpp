#include "plots/plotproperties.h"

#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"
#include "view/light.h"

#include <QRectF>
#include <QSettings>

#include <type_traits>

namespace Zel3D {

PlotProperties::PlotProperties(BasePlot& owner) : plot(owner)
{
    addView();
    addLights();
    addPlot();
    for (Property& property : properties)
        property.standard = property.read();
}

template <class Get, class Set>
void PlotProperties::add(const QString& key, const Get& get, const Set& set)
{
    using Value = std::decay_t<decltype(get())>;
    Property property;
    property.key = key;
    if constexpr (std::is_enum_v<Value>) {
        property.read = [get] { return QVariant(int(get())); };
        property.write = [set](const QVariant& value) { set(Value(value.toInt())); };
    } else {
        property.read = [get] { return QVariant::fromValue(Value(get())); };
        property.write = [set](const QVariant& value) { set(value.value<Value>()); };
    }
    properties.append(property);
}

void PlotProperties::addView()
{
    BasePlot& p = plot;
    add(
        "keepProportions", [&p] { return p.isKeepProportions(); },
        [&p](bool on) { p.setKeepProportions(on); });
    add(
        "showInfo", [&p] { return p.isShowInfo(); }, [&p](bool on) { p.setShowInfo(on); });
    add(
        "showToolTips", [&p] { return p.isShowToolTips(); }, [&p](bool on) { p.setShowToolTips(on); });
    add(
        "showLights", [&p] { return p.isShowLights(); }, [&p](bool on) { p.setShowLights(on); });
}

void PlotProperties::addLights()
{
    for (Light* light : plot.getLights()) {
        const QString id = QString("light%0/").arg(light->getNumber());
        const auto color = [&](const char* name, const QColor& (Light::Settings::*get)() const,
                               bool (Light::*set)(const QColor&)) {
            add(
                id + name, [light, get] { return (light->getSettings().*get)(); },
                [light, set](const QColor& value) { (light->*set)(value); });
        };
        const auto number = [&](const char* name, double (Light::*get)() const, auto set) {
            add(
                id + name, [light, get] { return (light->*get)(); },
                [light, set](double value) { (light->*set)(value); });
        };
        color("ambient", &Light::Settings::getAmbient, &Light::setAmbient);
        color("diffuse", &Light::Settings::getDiffuse, &Light::setDiffuse);
        color("specular", &Light::Settings::getSpecular, &Light::setSpecular);
        number("radius", &Light::getRadius, &Light::setRadius);
        number("phi", &Light::getPhi, &Light::setPhi);
        number("theta", &Light::getTheta, &Light::setTheta);
        number("attenuation/constant", &Light::getConstAttenuation, &Light::setConstAttenuation);
        number("attenuation/linear", &Light::getLinearAttenuation, &Light::setLinearAttenuation);
        number("attenuation/quadratic", &Light::getQuadraticAttenuation, &Light::setQuadraticAttenuation);
    }
}

void PlotProperties::addPlot()
{
    BasePlot& p = plot;
    add(
        "boxScaling", [&p] { return p.getBoxScaling(); },
        [&p](BoxScaling scaling) { p.setBoxScaling(scaling); });
    add(
        "automaticEdges", [&p] { return p.isAutomaticEdges(); }, [&p](bool on) { p.setAutomaticEdges(on); });
    add(
        "automaticFaces", [&p] { return p.isAutomaticFaces(); }, [&p](bool on) { p.setAutomaticFaces(on); });
    add(
        "pickHighlight", [&p] { return p.isPickHighlight(); }, [&p](bool on) { p.setPickHighlight(on); });
    CoordinateSystem& system = p.getCoordinateSystem();
    for (int i = 0; i < 12; ++i) {
        // Chosen anew in every frame while the edges are automatic.
        add(
            QString("axis%0/shown").arg(i),
            [&p, &system, i] { return p.isAutomaticEdges() || system.isAxisVisible(AxisType(i)); },
            [&system, i](bool on) { system.setAxesVisible(AxisType(i), on); });
    }
    for (BaseAxisType axis : {XAxis, YAxis, ZAxis}) {
        add(
            QString("axis%0/scaleType").arg(int(axis)),
            [&p, axis] { return p.getSettings().getAxes().getAxesScaleType(axis); },
            [&p, axis](ScaleType type) { p.setAxesScaleType(axis, type); });
    }
    add(
        "cylinder/multiplier", [&p] { return p.getSettings().getCylinder().getMultiplier(); },
        [&p](double factor) { p.setCylinderMultiplier(factor); });
    add(
        "cylinder/opacity", [&p] { return p.getSettings().getCylinder().getOpacity(); },
        [&p](int percent) { p.setCylinderOpacity(percent); });
    add(
        "legend/autoPositioning", [&p] { return p.getLegend().getSettings().isAutoPositioning(); },
        [&p](bool on) { p.getLegend().setAutoPositioning(on); });
    add(
        "legend/rectangle", [&p] { return p.getLegend().getManualRectangle(); },
        [&p](const QRectF& rectangle) { p.getLegend().setManualRectangle(rectangle); });
}

void PlotProperties::saveSettings(const QString& prefix, const QString& organization,
                                  const QString& application) const
{
    QSettings store(organization, application);
    for (const Property& property : properties) {
        const QString key = prefix + '/' + property.key;
        const QVariant value = property.read();
        if (value != property.standard || store.contains(key))
            store.setValue(key, value);
    }
}

void PlotProperties::loadSettings(const QString& prefix, const QString& organization,
                                  const QString& application)
{
    const QSettings store(organization, application);
    for (Property& property : properties) {
        property.standard = property.read();
        const QVariant stored = store.value(prefix + '/' + property.key);
        if (stored.isValid())
            property.write(stored);
    }
}

} // namespace Zel3D
