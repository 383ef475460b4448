#pragma once

#include <QList>
#include <QObject>

class PlotView;

/// Plots that are seen from the same place: while the link is on, the rotation, shift, zoom and projection of
/// each go to all others, which repaint once.
///
/// Only the part that changed is passed on, so that nothing is rounded twice. Zooms are taken relative to the
/// one that fills the plot's own window, and shifts relative to the plot's own box: data of any size and kind
/// can be linked. Plots that are hidden follow, too, without being painted.
class ViewLink : public QObject
{
    Q_OBJECT
public:
    explicit ViewLink(QObject* parent = nullptr);

    /// Takes a plot in, which is not owned; while the link is on the plot takes over the common view.
    void add(PlotView& view);
    /// To be called before a plot goes.
    void remove(PlotView& view);
    bool isOn() const { return m_on; }
    /// Switched on, the others take over the view of \a leader.
    void setOn(bool on, PlotView& leader);

    /// The plot whose change is being passed on; null at other times.
    PlotView* source() const { return m_source; }
    /// Whether all of a view is being passed on, and not a change of it.
    bool isAligning() const { return m_aligning; }

protected:
    /// A press stops what turns by itself, on whichever plot.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Part = void (*)(PlotView& from, PlotView& to);
    void pass(PlotView& from, Part part);
    void align(PlotView& leader, const QList<PlotView*>& others);

    QList<PlotView*> m_views;
    PlotView* m_source = nullptr;
    bool m_on = false;
    bool m_aligning = false;
};
