#include "plotsource.h"

#include "plots/baseplot.h"

#include <QCoreApplication>

std::unique_ptr<PlotView> PlotSource::open(const LoadProgress& progress)
{
    m_error.clear();
    std::unique_ptr<PlotView> view = read(progress);
    // What was clicked while the plot took the data is heard before its first picture.
    if (view)
        progress.busy(LoadProgress::Drawing, 0.0);
    m_cancelled = progress.isCancelled();
    if (m_cancelled) {
        m_error.clear();
        return nullptr;
    }
    if (view)
        view->plot().slotSetTitle(m_name);
    return view;
}

void PlotSource::prepare(Zel3D::BasePlot& plot) const
{
    // Time stamps and projected coordinates keep their detail.
    plot.setDataCentred(true);
    for (Zel3D::BaseAxisType axis : {Zel3D::XAxis, Zel3D::YAxis, Zel3D::ZAxis})
        plot.setLogarithmicData(axis, m_logarithmic[std::size_t(axis)]);
}

QString PlotSource::describe(const Zel3D::SelectedObjectsInfo& /*place*/) const
{
    return QString();
}

std::unique_ptr<PlotView> PlotSource::fail(const QString& sentence)
{
    m_error = sentence;
    return nullptr;
}

std::unique_ptr<PlotView> PlotSource::failToDraw()
{
    return fail(QCoreApplication::translate("PlotSource", "\"%1\" cannot be drawn.").arg(m_name));
}
