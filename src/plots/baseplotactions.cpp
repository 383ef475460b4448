// Tool bars, context menu and standard views of a plot, and the slots behind them.

#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/plotactions.h"
#include "plots/styleaction.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>

#include <cmath>

namespace Zel3D {

namespace {

/// Pixels by which the menu stands off the cursor, so that its first entry is not under it.
constexpr int menuOffset = 5;

} // namespace

void BasePlot::createActions()
{
    createViewsToolBar();
    createGridStyleToolBar();
    connect(this, &ZelGLWidget::selectingChanged, this, &BasePlot::slotSelectingChanged);
    connect(this, &ZelGLWidget::selectedObject, this, &BasePlot::slotSelectedObject);
    connect(&actions->getStyleGroup(), &QActionGroup::triggered, this, &BasePlot::slotPlotStyleChanged);
}

QToolBar* BasePlot::getToolBar(PlotToolBarType type) const
{
    return actions->getToolBar(type);
}

QMenu* BasePlot::getContextMenu() const
{
    return actions->getContextMenu();
}

QList<StyleAction*> BasePlot::getStyleActions() const
{
    return actions->getStyleActions();
}

StyleAction* BasePlot::addStyleAction(int style, const QString& icon, const QString& label)
{
    return actions->addStyleAction(style, icon, label);
}

void BasePlot::createViewsToolBar()
{
    using View = void (BasePlot::*)();
    static constexpr std::array<View, 6> views{&BasePlot::slotTopView,   &BasePlot::slotBottomView,
                                               &BasePlot::slotLeftView,  &BasePlot::slotRightView,
                                               &BasePlot::slotFrontView, &BasePlot::slotBackView};
    const QList<QAction*> made = actions->createViewsToolBar();
    for (int i = 0; i < made.size(); ++i)
        connect(made.at(i), &QAction::triggered, this, views[std::size_t(i)]);
}

void BasePlot::createGridStyleToolBar()
{
    QToolBar* bar = actions->createGridStyleToolBar();
    connect(bar, &QToolBar::actionTriggered, this, &BasePlot::slotGridStyleChanged);
    // The menu holds the actions too and lives on when a host deletes the bar.
    for (QAction* action : actions->getGridActions()) {
        connect(action, &QAction::triggered, this, [this, action] {
            if (!getToolBar(GridStyleToolBar))
                slotGridStyleChanged(action);
        });
    }
    updateGridStyleToolBar();
}

void BasePlot::createPlotStyleToolBar()
{
    actions->createPlotStyleToolBar();
    updatePlotStyleToolBar();
}

void BasePlot::createContextMenu()
{
    connect(actions->createContextMenu(), &QAction::triggered, this, &BasePlot::slotSettingsDialog);
}

void BasePlot::updateGridStyleToolBar()
{
    QToolBar* bar = getToolBar(GridStyleToolBar);
    // What a host does on a toggled action must not come back as a choice of the user.
    if (bar)
        disconnect(bar, nullptr, this, nullptr);
    actions->checkFaces(coordinateSystem->getSettings().getGridStyle());
    if (bar)
        connect(bar, &QToolBar::actionTriggered, this, &BasePlot::slotGridStyleChanged);
}

void BasePlot::updatePlotStyleToolBar()
{
    checkStyleActionTriggered();
}

void BasePlot::checkStyleActionTriggered()
{
    QActionGroup* group = &actions->getStyleGroup();
    disconnect(group, nullptr, this, nullptr);
    actions->checkStyle(settings->getStyle());
    connect(group, &QActionGroup::triggered, this, &BasePlot::slotPlotStyleChanged);
}

void BasePlot::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* menu = getContextMenu();
    if (!menu) {
        ZelGLWidget::contextMenuEvent(event);
        return;
    }
    // The plot may go while its menu is open.
    const QPointer<BasePlot> alive(this);
    menu->exec(mapToGlobal(event->pos()) + QPoint(menuOffset, 0));
    if (alive)
        forgetMousePress();
}

void BasePlot::slotSettingsDialog() {}

void BasePlot::slotPlotStyleChanged(QAction* action)
{
    auto* style = dynamic_cast<StyleAction*>(action);
    if (!style)
        return;
    slotSetPlotStyle(style->getStyle());
    // A style that was not taken, as before there is a context, must not look chosen.
    if (settings->getStyle() != style->getStyle())
        updatePlotStyleToolBar();
}

void BasePlot::slotGridStyleChanged(QAction* action)
{
    if (!action)
        return;
    const int face = actions->faceOf(action);
    const int style = coordinateSystem->getSettings().getGridStyle();
    if (setGridStyle(action->isChecked() ? style | face : style ^ face))
        updateGL();
}

void BasePlot::slotSelectingChanged(bool on)
{
    if (on) {
        // While picking was off its geometry was not kept.
        updateSelection();
        return;
    }
    if (!legend->isVisible() || !legend->isValueShown())
        return;
    legend->hideValue();
    repaintMark();
}

void BasePlot::slotSelectedObject(const SelectedObjectsInfo& info)
{
    if (!isSelecting() || !legend->isVisible())
        return;
    // The legend of logarithmic data spans exponents; what is picked comes with plain values.
    const double value = loadedLogarithmic[ZAxis] ? std::log10(info.z) : info.z;
    const bool show = info.valid && std::isfinite(value);
    // Most moves of the mouse pick what was picked before.
    if (show == legend->isValueShown() && (!show || value == legend->getValue()))
        return;
    if (show)
        legend->showValue(value);
    else
        legend->hideValue();
    repaintMark();
}

void BasePlot::slotTopView()
{
    slotSetRotation({90.0, 0.0, 0.0});
}

void BasePlot::slotBottomView()
{
    slotSetRotation({-90.0, 0.0, 0.0});
}

void BasePlot::slotLeftView()
{
    slotSetRotation({0.0, 0.0, 90.0});
}

void BasePlot::slotRightView()
{
    slotSetRotation({0.0, 0.0, -90.0});
}

void BasePlot::slotFrontView()
{
    slotSetRotation({0.0, 0.0, 0.0});
}

void BasePlot::slotBackView()
{
    slotSetRotation({0.0, 0.0, 180.0});
}

} // namespace Zel3D
