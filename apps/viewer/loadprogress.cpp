#include "loadprogress.h"

#include <QElapsedTimer>

#include <algorithm>

struct LoadProgress::State
{
    Handler handler;
    int interval = 0;
    QElapsedTimer sinceReport;
    double part = 0.0;
    bool cancelled = false;
};

LoadProgress::LoadProgress(Handler handler, int interval) : m_state(std::make_shared<State>())
{
    m_state->handler = std::move(handler);
    m_state->interval = interval;
}

bool LoadProgress::tell(const Report& report) const
{
    m_state->cancelled = !m_state->handler(report);
    // What the handler takes is no part of the interval, or a slow one would be called without a break.
    m_state->sinceReport.start();
    return !m_state->cancelled;
}

bool LoadProgress::operator()(double part) const
{
    if (!m_state)
        return true;
    if (m_state->cancelled)
        return false;
    const double whole = m_from + std::clamp(part, 0.0, 1.0) * (m_to - m_from);
    m_state->part = std::max(m_state->part, whole);
    if (m_state->sinceReport.isValid() && m_state->sinceReport.elapsed() < m_state->interval)
        return true;
    Report report;
    report.part = m_state->part;
    return tell(report);
}

bool LoadProgress::busy(Step step, double seconds) const
{
    if (!m_state)
        return true;
    if (m_state->cancelled)
        return false;
    Report report;
    report.step = step;
    report.part = m_state->part;
    report.busy = true;
    report.seconds = seconds;
    return tell(report);
}

LoadProgress LoadProgress::section(double from, double to) const
{
    LoadProgress made = *this;
    made.m_from = m_from + from * (m_to - m_from);
    made.m_to = m_from + to * (m_to - m_from);
    return made;
}

bool LoadProgress::isCancelled() const
{
    return m_state && m_state->cancelled;
}
