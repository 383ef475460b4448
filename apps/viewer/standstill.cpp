#include "standstill.h"

#include "plotpage.h"
#include "watersimulation.h"

#include <QMainWindow>

Standstill::Standstill(QMainWindow& window, PlotPage* page) : m_window(window)
{
    m_window.setAcceptDrops(false);
    WaterSimulation* const simulation = page ? page->source().simulation() : nullptr;
    if (simulation && simulation->isStarted()) {
        m_simulation = simulation;
        m_simulation->setStarted(false);
    }
}

Standstill::~Standstill()
{
    m_window.setAcceptDrops(true);
    if (m_simulation)
        m_simulation->setStarted(true);
}
