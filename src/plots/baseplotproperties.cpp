// What the properties of a plot read and write. Unlike the setters, writing repaints.

#include "gradients/gradientpresets.h"
#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/look.h"
#include "scene/title.h"

#include <algorithm>

namespace Zel3D {

QString BasePlot::getTitleText() const
{
    return title->getSettings().getText();
}

QString BasePlot::getGradientName() const
{
    return settings->getGradients().getCurrent();
}

int BasePlot::getPlotStyle() const
{
    return settings->getStyle();
}

void BasePlot::writeLook(StandardLook look)
{
    standardLook = look;
    switch (look) {
    case NoLook:
        return;
    case LightLook:
        Look::light().applyTo(*this);
        break;
    case DarkLook:
        Look::dark().applyTo(*this);
        break;
    case PrintLook:
        Look::print().applyTo(*this);
        break;
    }
    update();
}

void BasePlot::writeTitle(const QString& text)
{
    slotSetTitle(text);
    update();
}

void BasePlot::writeGradient(const QString& name)
{
    if (name == getGradientName())
        return;
    const auto& held = settings->getGradients().getGradients();
    const auto& presets = gradientPresets();
    const auto preset = std::find_if(presets.cbegin(), presets.cend(),
                                     [&name](const GradientPreset& one) { return one.name == name; });
    if (held.contains(name)) {
        setGradient(name, held.value(name));
    } else if (preset != presets.cend()) {
        QLinearGradient gradient;
        gradient.setStops(preset->stops);
        setGradient(name, gradient);
    } else {
        qWarning("Plot \"%s\": there is no gradient \"%s\".", qPrintable(objectName()), qPrintable(name));
    }
    update();
}

void BasePlot::writePlotStyle(int style)
{
    if (setPlotStyle(style))
        update();
}

void BasePlot::writeBackgroundColor(const QColor& color)
{
    if (setBackgroundColor(color))
        update();
}

} // namespace Zel3D
