#include "samples.h"

#include "plots/baseplot.h"
#include "plots/look.h"

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
    Zel3D::Look::light().applyTo(plot); // what people have not changed
    plot.slotLoadSettings();
    plot.loadAxesSettings();
    plot.update();
    //! [loading]
}

} // namespace samples
