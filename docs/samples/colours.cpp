#include "samples.h"

#include "gradients/gradientpresets.h"
#include "plots/baseplot.h"
#include "plots/look.h"
#include "scene/furnituretypes.h"
#include "view/light.h"

namespace samples {

void gradient(Zel3D::BasePlot& plot)
{
    //! [gradient]
    QLinearGradient gradient;
    gradient.setColorAt(0.0, QColor(20, 40, 120));
    gradient.setColorAt(0.5, Qt::white);
    gradient.setColorAt(1.0, QColor(140, 20, 20));
    plot.setGradient("Cold to warm", gradient);
    //! [gradient]
}

bool preset(Zel3D::BasePlot& plot, const QString& name)
{
    //! [preset]
    for (const Zel3D::GradientPreset& preset : Zel3D::gradientPresets()) {
        if (preset.name != name)
            continue;
        QLinearGradient gradient;
        gradient.setStops(preset.stops);
        return plot.setGradient(preset.name, gradient);
    }
    //! [preset]
    return false;
}

void range(Zel3D::BasePlot& plot)
{
    //! [range]
    plot.setGradientRange({0.0, 100.0}); // in every plot of a series the same colour for the same value
    plot.update();
    //! [range]
}

void light(Zel3D::BasePlot& plot)
{
    //! [light]
    Zel3D::Light& sun = *plot.getLights().first();
    sun.setPhi(135.0);
    sun.setTheta(60.0);
    sun.setOn(true);
    plot.setLighting(true);
    //! [light]
}

void look(Zel3D::BasePlot& plot)
{
    //! [look]
    Zel3D::Look mine = Zel3D::Look::print();
    mine.background = QColor(250, 250, 245);
    mine.gridStyle = Zel3D::GridBottom;
    mine.applyTo(plot);
    //! [look]
}

} // namespace samples
