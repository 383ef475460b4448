#pragma once

#include <QPointer>

class PlotPage;
class QMainWindow;
class WaterSimulation;

/// While it lives a window stays as it is, although a progress takes events: nothing is dropped on it and
/// nothing moves in its plot.
class Standstill
{
public:
    /// Null without a plot.
    Standstill(QMainWindow& window, PlotPage* page);
    ~Standstill();
    Standstill(const Standstill&) = delete;
    Standstill& operator=(const Standstill&) = delete;

private:
    QMainWindow& m_window;
    QPointer<WaterSimulation> m_simulation; ///< that is to move on; the plot may be closed before
};
