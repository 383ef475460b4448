#include "plotview.h"

#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/viewfit.h"
#include "scene/boxedges.h"
#include "scene/coordinatesystem.h"

#include <QCryptographicHash>
#include <QSettings>
#include <QSignalBlocker>

#include <algorithm>

namespace {

// Of the window's width or height at the start; the rest is for the numbers on the axes and the legend.
constexpr double startPart = 0.68;

// In radii of the view: to the left, where no legend stands.
constexpr double startShift = -0.06;

constexpr int digestLetters = 16;

const QString lookKey = QStringLiteral("%1/look");
const QString fittedKey = QStringLiteral("%1/fitted");

} // namespace

int PlotView::plotStyle()
{
    return plot().getSettings().getStyle();
}

void PlotView::setLook(const Zel3D::Look& look)
{
    m_look = look;
    Zel3D::Look own = look;
    if (!m_gradientName.isEmpty()) {
        own.gradientName = m_gradientName;
        own.gradient = m_gradient;
    }
    own.applyTo(plot());
    dressed();
}

void PlotView::setDataGradient(const QString& name, const QLinearGradient& gradient)
{
    m_gradientName = name;
    m_gradient = gradient;
    plot().setGradient(name, gradient);
}

void PlotView::nameAxes(const std::array<QString, 3>& names)
{
    for (const Zel3D::BaseAxisType direction : {Zel3D::XAxis, Zel3D::YAxis, Zel3D::ZAxis}) {
        const QString& name = names[std::size_t(direction)];
        if (name.isEmpty())
            continue;
        for (const Zel3D::AxisType edge : Zel3D::axesOf(direction))
            plot().getCoordinateSystem().getAxis(edge).getLabel().getSettings().setText(name);
    }
}

void PlotView::resetView()
{
    plot().setRotation(m_rotation);
    plot().setShift({0.0, 0.0, 0.0});
    plot().setViewportShift({startShift, 0.0});
    fit();
}

bool PlotView::isAtStart()
{
    const Zel3D::BasePlot& shown = plot();
    const Zel3D::ValueXYZ<double> none;
    return isFitted() && !(shown.getRotation() != m_rotation) && !(shown.getShift() != none) &&
           shown.getViewportShift().x == startShift && shown.getViewportShift().y == 0.0;
}

void PlotView::fit()
{
    Zel3D::BasePlot& shown = plot();
    const double aspect = double(std::max(shown.width(), 1)) / std::max(shown.height(), 1);
    const double zoom =
        Zel3D::ViewFit::zoom(shown.getHull(), shown.getScale(), shown.getRotation(), aspect, startPart);
    restoreZoom(zoom, zoom);
    m_fittedZoom = shown.getZoom();
}

void PlotView::restoreZoom(double zoom, double fitted)
{
    // First, so that who hears of the zoom finds both.
    m_fittedZoom = fitted;
    plot().setZoom(zoom);
}

bool PlotView::isFitted()
{
    return plot().getZoom() == m_fittedZoom;
}

void PlotView::refit()
{
    if (isFitted())
        fit();
}

void PlotView::stopTurning()
{
    if (!plot().isAutoRotating())
        return;
    // The choice whether released drags go on stays what it was.
    const QSignalBlocker quiet(plot());
    plot().setAutoRotate(false);
    plot().setAutoRotate(true);
}

void PlotView::setSubject(const QString& subject)
{
    // Paths are no part of a key: they hold slashes.
    const QByteArray digest = QCryptographicHash::hash(subject.toUtf8(), QCryptographicHash::Sha1);
    m_storeName = QStringLiteral("plot-") + QString::fromLatin1(digest.toHex().left(digestLetters));
}

bool PlotView::isKept()
{
    const QSettings store(plot().getOrganization(), plot().getApplication());
    return store.contains(lookKey.arg(m_storeName));
}

void PlotView::keepOwn()
{
    QSettings store(plot().getOrganization(), plot().getApplication());
    store.setValue(lookKey.arg(m_storeName), m_look.name);
    store.setValue(fittedKey.arg(m_storeName), isFitted());
}

void PlotView::restoreKept()
{
    if (!isKept())
        return;
    const QSettings store(plot().getOrganization(), plot().getApplication());
    // The look first: of what it sets, only what differed from a new plot was saved.
    const QString name = store.value(lookKey.arg(m_storeName)).toString();
    const QList<Zel3D::Look> looks = Zel3D::Look::all();
    for (const Zel3D::Look& look : looks) {
        if (look.name == name)
            setLook(look);
    }
    loadKept();
    if (store.value(fittedKey.arg(m_storeName)).toBool())
        fit();
}
