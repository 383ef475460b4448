#pragma once

#include "plotsource.h"

#include <QWidget>

#include <memory>

/// One plot with its source: the plot and, where there are notes, a bar under it.
class PlotPage : public QWidget
{
    Q_OBJECT
public:
    PlotPage(std::unique_ptr<PlotSource> source, std::unique_ptr<PlotView> view, QWidget* parent = nullptr);

    PlotSource& source() { return *m_source; }
    PlotView& view() { return *m_view; }
    Zel3D::BasePlot& plot() { return m_view->plot(); }

signals:
    /// The person wants to see a part of what is shown thinned.
    void partWanted();

private:
    std::unique_ptr<PlotSource> m_source;
    std::unique_ptr<PlotView> m_view;
};
