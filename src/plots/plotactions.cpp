#include "plots/plotactions.h"

#include "plots/showntexts.h"
#include "plots/styleaction.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

namespace Zel3D {

const std::array<PlotActions::Entry, 6>& PlotActions::viewEntries()
{
    static const std::array<Entry, 6> entries{{
        {":/plot/images/viewtop.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "&Top view"),
         QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Top view")},
        {":/plot/images/viewbottom.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "&Bottom view"),
         QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Bottom view")},
        {":/plot/images/viewleft.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "&Left view"),
         QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Left view")},
        {":/plot/images/viewright.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "&Right view"),
         QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Right view")},
        {":/plot/images/viewfront.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "&Front view"),
         QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Front view")},
        {":/plot/images/viewback.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Bac&k view"),
         QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Back view")},
    }};
    return entries;
}

const std::array<PlotActions::GridEntry, 6>& PlotActions::gridEntries()
{
    static const auto named = [](const char* icon, const char* word, Grid face) {
        return GridEntry{{icon, word, word}, face};
    };
    static const std::array<GridEntry, 6> entries{{
        named(":/plot/images/topgrig.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Top"), GridTop),
        named(":/plot/images/bottomgrig.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Bottom"), GridBottom),
        named(":/plot/images/leftgrig.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Left"), GridLeft),
        named(":/plot/images/rightgrig.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Right"), GridRight),
        named(":/plot/images/frontgrig.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Front"), GridFront),
        named(":/plot/images/backgrig.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Back"), GridBack),
    }};
    return entries;
}

const PlotActions::Entry& PlotActions::settingsEntry()
{
    static const Entry entry{":/plot/images/settings.svg", QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Settings"),
                             QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Settings")};
    return entry;
}

PlotActions::PlotActions(QWidget& owner)
    : plot(owner), texts(std::make_unique<ShownTexts>(owner)), styleGroup(new QActionGroup(&owner))
{
}

PlotActions::~PlotActions()
{
    for (const QPointer<QToolBar>& bar : qAsConst(bars)) {
        if (bar && !bar->parent())
            delete bar;
    }
}

QMenu* PlotActions::getContextMenu() const
{
    return contextMenu;
}

QList<StyleAction*> PlotActions::getStyleActions() const
{
    QList<StyleAction*> found;
    const QList<QAction*> all = styleGroup->actions();
    for (QAction* action : all) {
        if (auto* style = dynamic_cast<StyleAction*>(action))
            found.append(style);
    }
    return found;
}

StyleAction* PlotActions::addStyleAction(int style, const QString& icon, const QString& label)
{
    auto* action = new StyleAction(style, QIcon(icon), label, &plot);
    styleGroup->addAction(action);
    return action;
}

QToolBar* PlotActions::addBar(PlotToolBarType type, const char* title, const QString& name)
{
    // A bar made again takes the place of one that still waits for a host.
    const QPointer<QToolBar> before = bars.value(type);
    if (before && !before->parent())
        delete before;
    auto* bar = new QToolBar;
    texts->show(bar, "windowTitle", title);
    bar->setObjectName(name);
    bars.insert(type, bar);
    return bar;
}

QAction* PlotActions::makeAction(const Entry& entry)
{
    auto* action = new QAction(QIcon(entry.icon), QString(), &plot);
    texts->show(action, "text", entry.label);
    texts->show(action, "toolTip", entry.tip);
    texts->show(action, "statusTip", entry.tip);
    // By its text alone "Settings" would move to the application's own menu on some desktops.
    action->setMenuRole(QAction::NoRole);
    return action;
}

QList<QAction*> PlotActions::createViewsToolBar()
{
    qDeleteAll(viewActions);
    viewActions.clear();
    for (const Entry& entry : viewEntries())
        viewActions.append(makeAction(entry));
    addBar(ViewsToolBar, QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Views"), "viewsToolBar")
        ->addActions(viewActions);
    return viewActions;
}

QToolBar* PlotActions::createGridStyleToolBar()
{
    qDeleteAll(gridActions);
    gridActions.clear();
    actionsOfFaces.clear();
    faces.clear();
    for (const GridEntry& grid : gridEntries()) {
        QAction* action = makeAction(grid.entry);
        action->setCheckable(true);
        gridActions.append(action);
        actionsOfFaces.insert(grid.face, action);
        faces.insert(action, grid.face);
    }
    QToolBar* bar =
        addBar(GridStyleToolBar, QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Grid style"), "gridStyleToolBar");
    bar->addActions(gridActions);
    return bar;
}

QToolBar* PlotActions::createPlotStyleToolBar()
{
    QToolBar* bar =
        addBar(PlotStyleToolBar, QT_TRANSLATE_NOOP("Zel3D::BasePlot", "Plot style"), "plotStyleToolBar");
    bar->addActions(styleGroup->actions());
    return bar;
}

QAction* PlotActions::createContextMenu()
{
    delete contextMenu;
    delete settingsAction;
    contextMenu = new QMenu(&plot);
    for (const QPointer<QToolBar>& bar : qAsConst(bars)) {
        if (!bar || bar->actions().isEmpty())
            continue;
        QMenu* menu = contextMenu->addMenu(bar->windowTitle());
        menu->addActions(bar->actions());
        QObject::connect(bar, &QWidget::windowTitleChanged, menu, &QMenu::setTitle);
    }
    if (!contextMenu->isEmpty())
        contextMenu->addSeparator();
    settingsAction = makeAction(settingsEntry());
    contextMenu->addAction(settingsAction);
    return settingsAction;
}

void PlotActions::checkFaces(int gridStyle)
{
    for (auto action = actionsOfFaces.cbegin(); action != actionsOfFaces.cend(); ++action)
        action.value()->setChecked(gridStyle & action.key());
}

void PlotActions::checkStyle(int style)
{
    for (StyleAction* action : getStyleActions()) {
        if (action->getStyle() == style)
            action->setChecked(true);
    }
}

} // namespace Zel3D
