#pragma once

#include "core/types.h"
#include "plotkind.h"
#include "plots/look.h"

#include <QGradient>
#include <QString>

#include <array>

namespace Zel3D {
class BasePlot;
}

/// What the viewer adds to a plot of the library, of whatever kind: a start view that fills the window until
/// the person zooms, and the colours of the data under every look.
class PlotView
{
public:
    PlotView() = default;
    virtual ~PlotView() = default;
    PlotView(const PlotView&) = delete;
    PlotView& operator=(const PlotView&) = delete;

    virtual PlotKind kind() const = 0;
    virtual Zel3D::BasePlot& plot() = 0;

    int plotStyle();
    /// Dresses the plot; data with colours of their own keep them.
    void setLook(const Zel3D::Look& look);
    const Zel3D::Look& look() const { return m_look; }
    /// The colours of the data, whatever the look.
    void setDataGradient(const QString& name, const QLinearGradient& gradient);
    /// The rotation in degrees from which the plot is shown at the start.
    void setStartRotation(const Zel3D::ValueXYZ<double>& degrees) { m_rotation = degrees; }
    /// Puts rotation, shift and zoom back to the start view, without repainting.
    void resetView();
    /// Whether resetView() would change nothing, but for the size of the window.
    bool isAtStart();
    /// Makes the plot fill its window as it is seen now, without repainting.
    void fit();
    /// Whether it fills the window and goes on doing so when the window's size changes.
    bool isFitted();
    /// The zoom at which the plot filled the window when it was fitted last.
    double fittedZoom() const { return m_fittedZoom; }
    /// Brings back a zoom together with the one that filled the window at its time, without repainting.
    void restoreZoom(double zoom, double fitted);
    /// Ends what a released drag has started.
    void stopTurning();
    /// The names on every edge of x, y and z; an empty one leaves that axis as it is.
    void nameAxes(const std::array<QString, 3>& names);

    /// The name of what is shown, such as a path. Under it the settings that the person saves are kept, apart
    /// from those of other data.
    void setSubject(const QString& subject);
    /// Whether the settings of the subject have ever been saved.
    bool isKept();
    /// Makes the plot what it was when its settings were saved last; nothing when they never were.
    void restoreKept();

protected:
    /// The plot was dressed or got other colours; for views whose data bring their own.
    virtual void dressed() {}
    /// Fills the window again, unless the person has zoomed.
    void refit();
    /// What the settings of the subject are kept under.
    const QString& storeName() const { return m_storeName; }
    /// Keeps what the viewer adds to the settings of the plot.
    void keepOwn();
    /// Loads the settings of the plot.
    virtual void loadKept() = 0;

private:
    Zel3D::Look m_look;
    QString m_gradientName;
    QLinearGradient m_gradient;
    Zel3D::ValueXYZ<double> m_rotation;
    double m_fittedZoom = 0.0;
    QString m_storeName = QStringLiteral("plot");
};
