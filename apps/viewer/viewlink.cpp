#include "viewlink.h"

#include "plots/baseplot.h"
#include "plotview.h"

#include <QEvent>
#include <QScopedValueRollback>

using Zel3D::BasePlot;

namespace {

void passRotation(PlotView& from, PlotView& to)
{
    to.plot().setRotation(from.plot().getRotation());
}

void passViewportShift(PlotView& from, PlotView& to)
{
    to.plot().setViewportShift(from.plot().getViewportShift());
}

void passProjection(PlotView& from, PlotView& to)
{
    to.plot().setProjectionType(from.plot().getProjectionType());
}

double scaled(double shift, float fromExtent, float toExtent)
{
    const bool usable = fromExtent > 0.0F && toExtent > 0.0F && fromExtent != toExtent;
    return usable ? shift / double(fromExtent) * double(toExtent) : shift;
}

void passShift(PlotView& from, PlotView& to)
{
    const QVector3D own = from.plot().getHull().maximum - from.plot().getHull().minimum;
    const QVector3D other = to.plot().getHull().maximum - to.plot().getHull().minimum;
    const Zel3D::ValueXYZ<double>& shift = from.plot().getShift();
    to.plot().setShift({scaled(shift.x, own.x(), other.x()), scaled(shift.y, own.y(), other.y()),
                        scaled(shift.z, own.z(), other.z())});
}

void passZoom(PlotView& from, PlotView& to)
{
    if (!from.isFitted())
        to.plot().setZoom(from.plot().getZoom() / from.fittedZoom() * to.fittedZoom());
    else if (!to.isFitted())
        to.fit();
}

} // namespace

ViewLink::ViewLink(QObject* parent) : QObject(parent) {}

void ViewLink::add(PlotView& view)
{
    if (m_on && !m_views.isEmpty())
        align(*m_views.first(), {&view});
    m_views.append(&view);
    const BasePlot* plot = &view.plot();
    connect(plot, &BasePlot::rotationChanged, this, [this, &view] { pass(view, passRotation); });
    connect(plot, &BasePlot::vieportShiftChanged, this, [this, &view] { pass(view, passViewportShift); });
    connect(plot, &BasePlot::shiftChanged, this, [this, &view] { pass(view, passShift); });
    connect(plot, &BasePlot::zoomChanged, this, [this, &view] { pass(view, passZoom); });
    connect(plot, &BasePlot::projectionTypeChanged, this, [this, &view] { pass(view, passProjection); });
    view.plot().installEventFilter(this);
}

void ViewLink::remove(PlotView& view)
{
    m_views.removeAll(&view);
    view.plot().removeEventFilter(this);
    disconnect(&view.plot(), nullptr, this, nullptr);
}

void ViewLink::setOn(bool on, PlotView& leader)
{
    if (m_on == on)
        return;
    m_on = on;
    if (on)
        align(leader, m_views);
}

void ViewLink::align(PlotView& leader, const QList<PlotView*>& others)
{
    const QScopedValueRollback<PlotView*> source(m_source, &leader);
    const QScopedValueRollback<bool> aligning(m_aligning, true);
    for (PlotView* other : others) {
        if (other == &leader)
            continue;
        other->stopTurning();
        for (const Part part : {passRotation, passViewportShift, passShift, passZoom, passProjection})
            part(leader, *other);
        other->plot().update();
    }
}

void ViewLink::pass(PlotView& from, Part part)
{
    if (!m_on || m_source != nullptr)
        return;
    const QScopedValueRollback<PlotView*> source(m_source, &from);
    for (PlotView* other : qAsConst(m_views)) {
        if (other == &from)
            continue;
        other->stopTurning();
        part(from, *other);
        other->plot().update();
    }
}

bool ViewLink::eventFilter(QObject* watched, QEvent* event)
{
    if (m_on && event->type() == QEvent::MouseButtonPress) {
        for (PlotView* view : qAsConst(m_views)) {
            if (&view->plot() != watched)
                view->stopTurning();
        }
    }
    return QObject::eventFilter(watched, event);
}
