#include "plothost.h"

#include "elidedlabel.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "view/plotstatusbar.h"

#include <QMainWindow>
#include <QMenu>
#include <QToolBar>

namespace {

constexpr QSize barIcons(22, 22);
constexpr QMargins descriptionMargins(4, 0, 10, 0);

QIcon icon(const char* name)
{
    return QIcon(QStringLiteral(":/plot/images/%1.svg").arg(QLatin1String(name)));
}

} // namespace

PlotHost::PlotHost(QMainWindow& window, PlotPage& page, QMenu& plotMenu, QMenu& viewMenu,
                   QAction* statusAction)
    : QObject(&window), m_window(window), m_page(page), m_viewMenu(viewMenu), m_plotMenu(plotMenu, page, this)
{
    placeStatusBar(statusAction->isChecked());
    placeToolBars();
    fillViewMenu(statusAction);
}

PlotHost::~PlotHost()
{
    for (QToolBar* bar : qAsConst(m_bars)) {
        m_window.removeToolBar(bar);
        // Back to the plot.
        bar->setParent(nullptr);
    }
    for (QAction* action : qAsConst(m_viewActions))
        m_viewMenu.removeAction(action);
    qDeleteAll(m_submenus);
    m_window.setStatusBar(nullptr);
}

void PlotHost::placeStatusBar(bool visible)
{
    auto* bar = new Zel3D::PlotStatusBar(&m_page.plot(), &m_window);
    auto* description = new ElidedLabel(m_page.source().description());
    description->setObjectName("description");
    // In line with the messages, and apart from what stands right of it.
    description->setContentsMargins(descriptionMargins);
    bar->addWidget(description, 1);
    m_window.setStatusBar(bar);
    bar->setVisible(visible);
    sayPicked(*bar);
}

void PlotHost::sayPicked(Zel3D::PlotStatusBar& bar)
{
    // After the bar's own words, which these take the place of.
    // The bar lives a little longer than this object.
    connect(&m_page.plot(), &Zel3D::BasePlot::selectedObject, this,
            [this, &bar](const Zel3D::SelectedObjectsInfo& info) {
                const QString text = info.valid ? m_page.source().describe(info) : QString();
                if (!text.isEmpty())
                    bar.showMessage(text);
            });
}

void PlotHost::placeToolBars()
{
    for (Zel3D::PlotToolBarType type :
         {Zel3D::PlotStyleToolBar, Zel3D::ViewsToolBar, Zel3D::GridStyleToolBar})
        m_bars.append(m_page.plot().getToolBar(type));
    if (!m_plotMenu.simulationActions().isEmpty()) {
        m_simulationBar = std::make_unique<QToolBar>(tr("Simulation"));
        m_simulationBar->setObjectName("simulationToolBar");
        m_simulationBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        m_simulationBar->addActions(m_plotMenu.simulationActions());
        m_bars.append(m_simulationBar.get());
    }
    for (QToolBar* bar : qAsConst(m_bars)) {
        bar->setIconSize(barIcons);
        m_window.addToolBar(bar);
        bar->setVisible(true);
    }
}

QMenu* PlotHost::addSubmenu(const QString& text, QAction* end)
{
    auto* menu = new QMenu(text, &m_viewMenu);
    m_viewMenu.insertMenu(end, menu);
    m_submenus.append(menu);
    return menu;
}

void PlotHost::fillViewMenu(QAction* end)
{
    auto* reset = new QAction(icon("resetview"), tr("R&eset view"), this);
    reset->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_R));
    reset->setStatusTip(tr("Rotation, shift and zoom of the start"));
    connect(reset, &QAction::triggered, &m_page, [this] {
        m_page.view().resetView();
        m_page.plot().update();
    });
    const auto separator = [this] {
        auto* line = new QAction(this);
        line->setSeparator(true);
        return line;
    };
    m_viewActions = {reset, separator()};
    int number = 1;
    const QList<QAction*> views = m_page.plot().getToolBar(Zel3D::ViewsToolBar)->actions();
    for (QAction* action : views) {
        action->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+%1").arg(number++)));
        m_viewActions.append(action);
    }
    m_viewActions.append(separator());
    m_viewMenu.insertActions(end, m_viewActions);
    addSubmenu(tr("&Grid planes"), end)
        ->addActions(m_page.plot().getToolBar(Zel3D::GridStyleToolBar)->actions());
    QMenu* bars = addSubmenu(tr("T&ool bars"), end);
    for (QToolBar* bar : qAsConst(m_bars))
        bars->addAction(bar->toggleViewAction());
}
