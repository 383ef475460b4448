#pragma once

#include "plots/shplot.h"

namespace samples {

//! [plot]
class MarkerPlot : public Zel3D::SHPlot
{
public:
    using SHPlot::SHPlot;
    void showMarkers(Zel3D::Addition* marker);
};
//! [plot]

void showCrosses(MarkerPlot& plot, double size, const QColor& color);

} // namespace samples
