#pragma once

#include "core/export.h"
#include "core/types.h"

#include <QPointer>
#include <QStatusBar>

class QLabel;

namespace Zel3D {

class BasePlot;

/// The status bar under a plot: four labels show rotation, viewport shift, scale and zoom; messages tell
/// switches and the picked object.
///
/// The labels are read out by their tool tips and their texts. The plot and the bar may be deleted in any
/// order.
class VORANPLOT_EXPORT PlotStatusBar : public QStatusBar
{
    Q_OBJECT
public:
    /// The plot is not owned; without one the bar shows nothing.
    explicit PlotStatusBar(BasePlot* plot, QWidget* parent = nullptr);

    /// Null without one, and when it has been deleted.
    BasePlot* getPlot() const;

public slots:
    void slotRotationChanged(double x, double y, double z);
    void slotViewportShiftChanged(double x, double y);
    void slotScaleChanged(double x, double y, double z);
    void slotZoomChanged(double zoom);
    /// These tell a switch for one second.
    void slotLightingChanged(bool on);
    void slotAutoScalingChanged(bool on);
    void slotShowInfoChanged(bool on);
    /// Not connected by the bar: a host that wants it told connects it.
    void slotSelectingChanged(bool on);
    /// Shows the values until something else is shown; a record that is not valid clears the message.
    void slotSelectedObject(const Zel3D::SelectedObjectsInfo& info);

protected:
    /// In a narrow bar the labels give way to the messages: the viewport shift first, the rotation last.
    void resizeEvent(QResizeEvent* event) override;
    /// The labels follow the language.
    void changeEvent(QEvent* event) override;

private:
    QLabel* addLabel();
    void nameLabels();
    void initByDefaultSettings();
    void connectAll();

    QPointer<BasePlot> plot;
    QPointer<QLabel> rotationLabel;
    QPointer<QLabel> viewportShiftLabel;
    QPointer<QLabel> scaleLabel;
    QPointer<QLabel> zoomLabel;
    bool turned = false;
    bool scaled = false;
};

} // namespace Zel3D
