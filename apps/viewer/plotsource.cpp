#include "plotsource.h"

#include "core/data.h"
#include "plots/baseplot.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

/// Whether a plot has a point with all its coordinates.
bool hasPoints(const Zel3D::BasePlot& plot)
{
    const Zel3D::Data* data = plot.getData();
    return data && !data->isEmpty() && std::isfinite(data->getMinimum().z()) &&
           data->getMinimum().z() <= data->getMaximum().z();
}

} // namespace

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
    const auto isSet = [](bool on) { return on; };
    if (view && std::any_of(m_logarithmic.begin(), m_logarithmic.end(), isSet) && !hasPoints(view->plot()))
        return fail(QCoreApplication::translate(
                        "PlotSource",
                        "\"%1\" has no values above zero to show logarithmically: nothing can be drawn.")
                        .arg(m_name));
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
