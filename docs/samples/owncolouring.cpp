#include "samples.h"

#include "core/colortable.h"
#include "core/datacolor.h"
#include "core/gradientstops.h"
#include "plots/shplot.h"

#include <cmath>

namespace samples {

//! [class]
/// Colours by the distance from the z axis instead of the height.
class DistanceColor : public Zel3D::DataColor
{
public:
    DistanceColor(Zel3D::BasePlot* target, const QGradient& stops, double farthest)
        : DataColor(target, "distance", stops), table(Zel3D::gradientStops(stops)), limit(farthest)
    {
    }

    using DataColor::operator();
    QColor operator()(double x, double y, double /*z*/) const override
    {
        return table.colorAt(std::hypot(x, y), 0.0, limit);
    }

    void setGradient(const QGradient& stops) override
    {
        DataColor::setGradient(stops);
        table = Zel3D::ColorTable(Zel3D::gradientStops(stops));
    }

private:
    Zel3D::ColorTable table;
    double limit;
};
//! [class]

void colourByDistance(Zel3D::SHPlot& plot)
{
    //! [use]
    plot.setDataColor(new DistanceColor(&plot, plot.getCurrentGradient(), 5.0)); // the plot owns it
    plot.setGradientRange({0.0, 5.0});                                           // what the legend shows
    plot.update();
    //! [use]
}

} // namespace samples
