#pragma once

#include "plotview.h"

/// A plot class of the library with what the viewer adds to it.
template <class Plot>
class ViewedPlot : public Plot, public PlotView
{
public:
    explicit ViewedPlot(QWidget* parent)
        : Plot(QStringLiteral("plot"), QStringLiteral("VORAN"), QStringLiteral("voranview"), parent)
    {
    }

    Zel3D::BasePlot& plot() override { return *this; }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        refit();
        Plot::resizeEvent(event);
    }
};
