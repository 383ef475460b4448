#pragma once

#include "core/watersurface.h"

#include <QObject>
#include <QTimer>

class ViewerPlot;

/// Water in a plot that moves on 60 times a second while it is started and can be seen.
class WaterSimulation : public QObject
{
    Q_OBJECT
public:
    /// The plot is not owned.
    explicit WaterSimulation(ViewerPlot& plot);

    /// Puts still water into the plot. False when the plot does not take it.
    bool fill();
    bool isStarted() const { return m_started; }
    /// Whether it moves now: started and seen.
    bool isMoving() const { return m_timer.isActive(); }

public slots:
    /// Starts or pauses.
    void setStarted(bool on);
    /// Drops a stone into the water, which starts.
    void dropStone();

signals:
    void startedChanged(bool on);

protected:
    /// Watches the plot being shown and hidden; a minimised window hides it, too.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void step();
    void updateTimer();

    ViewerPlot& m_plot;
    Zel3D::WaterSurface m_water;
    QTimer m_timer;
    bool m_started = false;
    bool m_seen = false;
};
