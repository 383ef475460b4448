#include "watersimulation.h"

#include "viewerplot.h"

#include <QEvent>

namespace {

constexpr double stepsPerSecond = 60.0;
constexpr unsigned int nodes = 100;

// The ripples; the first splash leaves the box for a moment.
constexpr float trough = -2.0F;
constexpr float crest = 3.0F;

} // namespace

WaterSimulation::WaterSimulation(ViewerPlot& plot) : m_plot(plot), m_water(plot), m_seen(plot.isVisible())
{
    m_water.setMesh(nodes, nodes);
    m_water.setAreaLimits(-1.0, 1.0, -1.0, 1.0);
    m_water.setPausedWhenHidden(true);
    const Zel3D::Parallelepiped basin{QVector3D(-1.0F, -1.0F, trough), QVector3D(1.0F, 1.0F, crest)};
    m_plot.setFixedHull(basin);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(qRound(1000.0 / stepsPerSecond));
    connect(&m_timer, &QTimer::timeout, this, &WaterSimulation::step);
    m_plot.installEventFilter(this);
}

bool WaterSimulation::fill()
{
    return m_water.create();
}

void WaterSimulation::setStarted(bool on)
{
    if (m_started == on)
        return;
    m_started = on;
    updateTimer();
    emit startedChanged(on);
}

void WaterSimulation::dropStone()
{
    m_water.reset();
    setStarted(true);
}

void WaterSimulation::step()
{
    m_water.timeout();
    m_plot.updateGL();
}

void WaterSimulation::updateTimer()
{
    if (m_started && m_seen)
        m_timer.start();
    else
        m_timer.stop();
}

bool WaterSimulation::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        m_seen = event->type() == QEvent::Show;
        updateTimer();
    }
    return QObject::eventFilter(watched, event);
}
