#include "samples.h"

#include "plots/baseplot.h"
#include "plots/look.h"

#include <QSettings>

namespace samples {

void keep(Zel3D::BasePlot& plot)
{
    //! [saving]
    plot.slotSaveSettings(); // for example when the window closes
    //! [saving]
}

void bringBack(Zel3D::BasePlot& plot)
{
    //! [loading]
    plot.slotLoadSettings();            // for example after the window was made
    Zel3D::Look::light().applyTo(plot); // what the axes look like
    plot.update();
    //! [loading]
}

} // namespace samples
