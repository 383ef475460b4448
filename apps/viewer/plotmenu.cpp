#include "plotmenu.h"

#include "plotpage.h"
#include "plots/baseplot.h"
#include "plots/styleaction.h"
#include "plotstyles.h"
#include "settings/templateactions.h"
#include "watersimulation.h"

#include <QActionGroup>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QStyle>

using Zel3D::BasePlot;

namespace {
constexpr int messageTime = 5000; // ms
}

PlotMenu::PlotMenu(QMenu& menu, PlotPage& page, QObject* parent) : QObject(parent), m_menu(menu), m_page(page)
{
    const bool surface = page.view().kind() == PlotKind::Surface;
    addStyles();
    m_menu.addSeparator();
    if (surface)
        addMeshLines();
    addPicking();
    if (surface)
        addLighting();
    addPerspective();
    addScaling(*addSubmenu(tr("&Scaling")));
    addLooks(*addSubmenu(tr("Loo&k")));
    addTemplates();
    addSettings();
    if (page.source().simulation() != nullptr)
        addSimulation();
}

PlotMenu::~PlotMenu()
{
    m_menu.clear();
    qDeleteAll(m_submenus);
}

QMenu* PlotMenu::addSubmenu(const QString& text)
{
    QMenu* menu = m_menu.addMenu(text);
    m_submenus.append(menu);
    return menu;
}

QAction* PlotMenu::addSwitch(QMenu& menu, const QString& text, const QKeySequence& shortcut)
{
    auto* action = new QAction(text, this);
    action->setCheckable(true);
    action->setShortcut(shortcut);
    menu.addAction(action);
    return action;
}

void PlotMenu::addStyles()
{
    const QList<Zel3D::StyleAction*> actions = m_page.plot().getStyleActions();
    for (Zel3D::StyleAction* action : actions) {
        action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(action->getStyle())));
        m_menu.addAction(action);
    }
}

void PlotMenu::addMeshLines()
{
    BasePlot& plot = m_page.plot();
    QAction* action = addSwitch(m_menu, tr("M&esh lines"), QKeySequence(Qt::CTRL + Qt::Key_M));
    const auto follow = [action](int style) {
        action->setEnabled(style == PlotStyles::Filled || style == PlotStyles::FilledAndMesh);
        action->setChecked(style == PlotStyles::FilledAndMesh || style == PlotStyles::Wireframe ||
                           style == PlotStyles::HiddenLine);
    };
    follow(m_page.view().plotStyle());
    connect(&plot, &BasePlot::plotStyleChanged, action, follow);
    connect(action, &QAction::triggered, &plot,
            [&plot](bool on) { plot.slotSetPlotStyle(on ? PlotStyles::FilledAndMesh : PlotStyles::Filled); });
}

void PlotMenu::addPicking()
{
    BasePlot& plot = m_page.plot();
    QAction* action = addSwitch(m_menu, tr("Pi&ck values"), QKeySequence(Qt::CTRL + Qt::Key_K));
    action->setIcon(QIcon(":/plot/images/select.svg"));
    action->setStatusTip(tr("Show the value under the cursor"));
    action->setChecked(plot.isSelecting());
    connect(action, &QAction::triggered, &plot, &BasePlot::slotSetSelecting);
    connect(&plot, &BasePlot::selectingChanged, action, &QAction::setChecked);
}

void PlotMenu::addLighting()
{
    BasePlot& plot = m_page.plot();
    QAction* action = addSwitch(m_menu, tr("&Lighting"), QKeySequence(Qt::CTRL + Qt::Key_L));
    action->setChecked(plot.isLighting());
    connect(action, &QAction::triggered, &plot, &BasePlot::slotSetLighting);
    connect(&plot, &BasePlot::lightingChanged, action, &QAction::setChecked);
}

void PlotMenu::addPerspective()
{
    BasePlot& plot = m_page.plot();
    QAction* action = addSwitch(m_menu, tr("Perspecti&ve"), QKeySequence(Qt::CTRL + Qt::Key_E));
    const auto follow = [action](Zel3D::ProjectionType type) {
        action->setChecked(type == Zel3D::Perspective);
    };
    follow(plot.getProjectionType());
    connect(&plot, &BasePlot::projectionTypeChanged, action, follow);
    connect(action, &QAction::triggered, &plot,
            [&plot](bool on) { plot.slotSetProjectionType(on ? Zel3D::Perspective : Zel3D::Orthogonal); });
}

void PlotMenu::addScaling(QMenu& menu)
{
    BasePlot& plot = m_page.plot();
    const QString texts[] = {tr("&Automatic"), tr("&Equal units on all axes"), tr("By &hand")};
    auto* group = new QActionGroup(this);
    for (int scaling = Zel3D::CubeScaling; scaling <= Zel3D::ManualScaling; ++scaling) {
        QAction* action = addSwitch(menu, texts[scaling]);
        action->setData(scaling);
        action->setChecked(scaling == plot.getBoxScaling());
        group->addAction(action);
    }
    connect(group, &QActionGroup::triggered, &plot, [&plot](const QAction* action) {
        plot.slotSetBoxScaling(Zel3D::BoxScaling(action->data().toInt()));
    });
    connect(&plot, &BasePlot::boxScalingChanged, group,
            [group](Zel3D::BoxScaling scaling) { group->actions().at(scaling)->setChecked(true); });
}

void PlotMenu::addLooks(QMenu& menu)
{
    auto* group = new QActionGroup(this);
    const QList<Zel3D::Look> looks = Zel3D::Look::all();
    for (const Zel3D::Look& look : looks) {
        QAction* action = addSwitch(menu, look.getTitle());
        action->setChecked(look.name == m_page.view().look().name);
        group->addAction(action);
        connect(action, &QAction::triggered, &m_page, [this, look] {
            m_page.view().setLook(look);
            m_page.plot().update();
        });
    }
}

void PlotMenu::addTemplates()
{
    // The menu comes and goes more often than the page, which is the parent of the dialogs.
    auto* templates = new Zel3D::TemplateActions(&m_page.plot(), &m_page);
    connect(this, &QObject::destroyed, templates, &QObject::deleteLater);
    QMenu* menu = templates->makeMenu(&m_menu);
    m_menu.addMenu(menu);
    m_submenus.append(menu);
    connect(templates, &Zel3D::TemplateActions::done, this, [this](const QString& sentence) {
        if (auto* window = qobject_cast<QMainWindow*>(m_page.window()))
            window->statusBar()->showMessage(sentence, messageTime);
    });
}

void PlotMenu::addSettings()
{
    auto* action = new QAction(QIcon(":/plot/images/settings.svg"), tr("Settin&gs..."), this);
    action->setMenuRole(QAction::NoRole);
    action->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_Comma));
    action->setStatusTip(tr("Everything that can be changed of this plot"));
    connect(action, &QAction::triggered, &m_page.plot(), &BasePlot::slotSettingsDialog);
    m_menu.addAction(action);
}

void PlotMenu::addSimulation()
{
    WaterSimulation& water = *m_page.source().simulation();
    m_menu.addSeparator();
    auto* run = new QAction(this);
    run->setShortcut(QKeySequence(Qt::Key_F5));
    const auto follow = [run](bool started) {
        run->setText(started ? tr("Pa&use") : tr("&Start"));
        run->setIcon(
            QApplication::style()->standardIcon(started ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay));
    };
    follow(water.isStarted());
    connect(run, &QAction::triggered, &water, [&water] { water.setStarted(!water.isStarted()); });
    connect(&water, &WaterSimulation::startedChanged, run, follow);
    auto* stone = new QAction(tr("&Drop a stone"), this);
    stone->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_D));
    connect(stone, &QAction::triggered, &water, &WaterSimulation::dropStone);
    m_simulationActions = {run, stone};
    m_menu.addActions(m_simulationActions);
}
