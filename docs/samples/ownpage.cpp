#include "samples.h"

#include "plots/baseplot.h"
#include "plots/settingsdialogoptions.h"
#include "settings/abstractsettingspage.h"

namespace samples {

//! [class]
/// A page with a single box of two fields.
class ViewPage : public Zel3D::AbstractSettingsPage
{
public:
    QVector<Zel3D::FieldGroup> describe(Zel3D::BasePlot& plot) const override
    {
        using Zel3D::Field;
        return {{"Camera",
                 {Field::number("mine/zoom", "Zoom", "How large the scene is drawn.")
                      .within(0.01, 100.0, 0.1, 2)
                      .bind([&plot] { return plot.getZoom(); }, [&plot](double v) { return plot.setZoom(v); })
                      .heardFrom(plot, &Zel3D::BasePlot::zoomChanged),
                  Field::toggle("mine/info", "Frame rate", "Whether the frame rate is shown.")
                      .bind([&plot] { return plot.isShowInfo(); },
                            [&plot](bool on) { return plot.setShowInfo(on); })
                      .heardFrom(plot, &Zel3D::BasePlot::showInfoChanged)},
                 {}}};
    }
};
//! [class]

void addPage(Zel3D::BasePlot& plot)
{
    //! [use]
    auto* options = new Zel3D::SettingsDialogOptions;
    options->setPageVisible("lighting", false);
    options->addPage({"mine", "Camera", ":/plot/images/viewtop.svg", [] { return new ViewPage; }});
    plot.setSettingsDialogOptions(options); // the plot owns them
    //! [use]
}

} // namespace samples
