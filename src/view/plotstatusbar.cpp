#include "view/plotstatusbar.h"

#include "plots/baseplot.h"

#include <QLabel>
#include <QResizeEvent>

namespace Zel3D {

namespace {

constexpr int messageTimeout = 1000; // ms
constexpr int fewDigits = 2;
constexpr int messageLetters = 32;

QString filled(const QString& format, double x, double y, double z, int precision = -1)
{
    return format.arg(x, 0, 'g', precision).arg(y, 0, 'g', precision).arg(z, 0, 'g', precision);
}

void setText(QLabel* label, const QString& text)
{
    if (!label)
        return;
    label->setText(text);
    // The name of a label hides its text from those who have the screen read to them.
    label->setAccessibleDescription(text);
}

} // namespace

PlotStatusBar::PlotStatusBar(BasePlot* plotShown, QWidget* parent)
    : QStatusBar(parent),
      plot(plotShown),
      rotationLabel(addLabel()),
      viewportShiftLabel(addLabel()),
      scaleLabel(addLabel()),
      zoomLabel(addLabel())
{
    nameLabels();
    initByDefaultSettings();
    connectAll();
}

BasePlot* PlotStatusBar::getPlot() const
{
    return plot;
}

QLabel* PlotStatusBar::addLabel()
{
    auto* label = new QLabel(this);
    addPermanentWidget(label);
    return label;
}

void PlotStatusBar::nameLabels()
{
    const auto name = [](QLabel* label, const QString& text) {
        if (!label)
            return;
        label->setToolTip(text);
        label->setAccessibleName(text);
    };
    name(rotationLabel, tr("Rotation: [X;Y;Z]"));
    name(viewportShiftLabel, tr("Viewport shift: [X;Y]"));
    name(scaleLabel, tr("Scale: [X;Y;Z]"));
    name(zoomLabel, tr("Zoom"));
}

void PlotStatusBar::changeEvent(QEvent* event)
{
    QStatusBar::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    nameLabels();
    initByDefaultSettings();
}

void PlotStatusBar::initByDefaultSettings()
{
    if (!plot)
        return;
    const ValueXYZ<double>& rotation = plot->getRotation();
    setText(rotationLabel, filled(turned ? tr("Turn: %0; %1; %2") : tr("Rotation: %0; %1; %2"), rotation.x,
                                  rotation.y, rotation.z));
    slotViewportShiftChanged(plot->getViewportShift().x, plot->getViewportShift().y);
    const ValueXYZ<double>& scale = plot->getScale();
    setText(scaleLabel, filled(scaled ? tr("Scaling: %0; %1; %2") : tr("Scale: %0; %1; %2"), scale.x, scale.y,
                               scale.z, fewDigits));
    slotZoomChanged(plot->getZoom());
}

void PlotStatusBar::connectAll()
{
    if (!plot)
        return;
    connect(plot, &BasePlot::rotationChanged, this, &PlotStatusBar::slotRotationChanged);
    connect(plot, &BasePlot::vieportShiftChanged, this, &PlotStatusBar::slotViewportShiftChanged);
    connect(plot, &BasePlot::scaleChanged, this, &PlotStatusBar::slotScaleChanged);
    connect(plot, &BasePlot::zoomChanged, this, &PlotStatusBar::slotZoomChanged);
    connect(plot, &BasePlot::lightingChanged, this, &PlotStatusBar::slotLightingChanged);
    connect(plot, &BasePlot::autoScalingChanged, this, &PlotStatusBar::slotAutoScalingChanged);
    connect(plot, &BasePlot::showInfoChanged, this, &PlotStatusBar::slotShowInfoChanged);
    connect(plot, &BasePlot::selectedObject, this, &PlotStatusBar::slotSelectedObject);
}

void PlotStatusBar::resizeEvent(QResizeEvent* event)
{
    // A label that would leave no room for the messages gives way.
    int room = event->size().width() - messageLetters * fontMetrics().averageCharWidth();
    for (QLabel* label :
         {rotationLabel.data(), zoomLabel.data(), scaleLabel.data(), viewportShiftLabel.data()}) {
        if (!label)
            continue;
        room -= label->sizeHint().width();
        label->setVisible(room >= 0);
    }
    QStatusBar::resizeEvent(event);
}

void PlotStatusBar::slotRotationChanged(double x, double y, double z)
{
    turned = true;
    setText(rotationLabel, filled(tr("Turn: %0; %1; %2"), x, y, z));
}

void PlotStatusBar::slotViewportShiftChanged(double x, double y)
{
    setText(viewportShiftLabel,
            tr("Viewport shift: %0; %1").arg(x, 0, 'g', fewDigits).arg(y, 0, 'g', fewDigits));
}

void PlotStatusBar::slotScaleChanged(double x, double y, double z)
{
    scaled = true;
    setText(scaleLabel, filled(tr("Scaling: %0; %1; %2"), x, y, z, fewDigits));
}

void PlotStatusBar::slotZoomChanged(double zoom)
{
    setText(zoomLabel, tr("Zoom: %0").arg(zoom, 0, 'g', fewDigits));
}

void PlotStatusBar::slotSelectingChanged(bool on)
{
    showMessage(on ? tr("Selecting on") : tr("Selecting off"), messageTimeout);
}

void PlotStatusBar::slotLightingChanged(bool on)
{
    showMessage(on ? tr("Lighting on") : tr("Lighting off"), messageTimeout);
}

void PlotStatusBar::slotAutoScalingChanged(bool on)
{
    showMessage(on ? tr("Auto scaling on") : tr("Auto scaling off"), messageTimeout);
}

void PlotStatusBar::slotShowInfoChanged(bool on)
{
    showMessage(on ? tr("Show info on") : tr("Show info off"), messageTimeout);
}

void PlotStatusBar::slotSelectedObject(const SelectedObjectsInfo& info)
{
    if (info.valid)
        showMessage(tr("Value: %0").arg(filled(QObject::tr("%0; %1; %2"), info.x, info.y, info.z)), 0);
    else if (!currentMessage().isEmpty())
        clearMessage();
}

} // namespace Zel3D
