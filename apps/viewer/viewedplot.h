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
    /// The dialog keeps its own place under the name that all plots share.
    void slotSaveSettings() override
    {
        underStoreName([this] { Plot::slotSaveSettings(); });
        keepOwn();
    }

protected:
    void loadKept() override
    {
        underStoreName([this] {
            this->slotLoadSettings();
            this->loadAxesSettings();
        });
    }
    void resizeEvent(QResizeEvent* event) override
    {
        refit();
        Plot::resizeEvent(event);
    }

private:
    template <class Action>
    void underStoreName(const Action& action)
    {
        const QString shared = this->objectName();
        this->setObjectName(storeName());
        action();
        this->setObjectName(shared);
    }
};
