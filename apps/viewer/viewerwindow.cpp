#include "viewerwindow.h"

#include "gridfile.h"
#include "picturefile.h"
#include "plotstyles.h"
#include "settings/templateactions.h"
#include "view/plotstatusbar.h"
#include "viewerbindings.h"
#include "viewerplot.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QToolBar>

namespace {

constexpr char geometryKey[] = "window/geometry";
constexpr QSize usualSize(1000, 800);
constexpr char folderKey[] = "window/folder";
constexpr char stateKey[] = "window/state";
constexpr char pickingKey[] = "window/picking";
constexpr char lightingKey[] = "window/lighting";
constexpr char styleKey[] = "window/style";
constexpr char lookKey[] = "window/look";
constexpr QSize barIcons(22, 22);

QIcon icon(const char* name)
{
    return QIcon(QStringLiteral(":/plot/images/%1.svg").arg(QLatin1String(name)));
}

QString droppedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

/// The waiting cursor while the object lives.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace

ViewerWindow::ViewerWindow()
    : m_plot(new ViewerPlot),
      m_description(new QLabel(tr("Open a grid file with File, Open or drop one here."))),
      m_styles(new QActionGroup(this)),
      m_looks(new QActionGroup(this))
{
    setCentralWidget(m_plot);
    setWindowIcon(icon("voranview"));
    setStatusBar(new Zel3D::PlotStatusBar(m_plot, this));
    setAcceptDrops(true);
    setWindowTitle(tr("voranview"));
    m_description->setObjectName("description");
    // As long as it is, the text must not keep the window wide.
    m_description->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(m_description, 1);
    createFileMenu();
    createPlotMenu();
    dockToolBars();
    createViewMenu();
    connect(m_plot, &ViewerPlot::plotStyleChanged, this, &ViewerWindow::showStyle);
    showStyle(m_plot->plotStyle());
    restore();
    m_plot->setFocus();
}

void ViewerWindow::restore()
{
    const QSettings settings;
    if (!restoreGeometry(settings.value(geometryKey).toByteArray()))
        resize(usualSize.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    restoreState(settings.value(stateKey).toByteArray());
    m_plot->setSelecting(settings.value(pickingKey, true).toBool());
    m_plot->setLighting(settings.value(lightingKey, m_plot->isLighting()).toBool());
    const int style = settings.value(styleKey, m_plot->plotStyle()).toInt();
    if (style <= PlotStyles::Histogram)
        m_plot->setPlotStyle(style);
    const QString look = settings.value(lookKey).toString();
    for (QAction* action : m_looks->actions()) {
        if (action->text() == look && !action->isChecked())
            action->trigger();
    }
    m_fullScreenAction->setChecked(isFullScreen());
}

void ViewerWindow::remember() const
{
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(stateKey, saveState());
    settings.setValue(pickingKey, m_plot->isSelecting());
    settings.setValue(lightingKey, m_plot->isLighting());
    settings.setValue(styleKey, m_plot->plotStyle());
    settings.setValue(lookKey, m_looks->checkedAction()->text());
}

void ViewerWindow::dockToolBars()
{
    for (Zel3D::PlotToolBarType type :
         {Zel3D::PlotStyleToolBar, Zel3D::ViewsToolBar, Zel3D::GridStyleToolBar}) {
        QToolBar* bar = m_plot->getToolBar(type);
        bar->setIconSize(barIcons);
        addToolBar(bar);
    }
}

void ViewerWindow::createViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    QAction* reset = menu->addAction(icon("resetview"), tr("&Reset view"), this, &ViewerWindow::resetView,
                                     QKeySequence(Qt::CTRL + Qt::Key_R));
    reset->setStatusTip(tr("Rotation, shift and zoom of the start"));
    menu->addSeparator();
    int number = 1;
    for (QAction* action : m_plot->getToolBar(Zel3D::ViewsToolBar)->actions()) {
        action->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+%1").arg(number++)));
        menu->addAction(action);
    }
    menu->addSeparator();
    QMenu* planes = menu->addMenu(tr("&Grid planes"));
    planes->addActions(m_plot->getToolBar(Zel3D::GridStyleToolBar)->actions());
    menu->addSeparator();
    menu->addAction((new ViewerBindings(this, m_plot))->action());
    QMenu* bars = menu->addMenu(tr("Tool &bars"));
    for (QToolBar* bar : findChildren<QToolBar*>())
        bars->addAction(bar->toggleViewAction());
    QAction* status = addSwitch(*menu, tr("&Status bar"), QKeySequence());
    status->setChecked(true);
    connect(status, &QAction::triggered, statusBar(), &QWidget::setVisible);
    m_fullScreenAction = addSwitch(*menu, tr("F&ull screen"), QKeySequence(Qt::Key_F11));
    m_fullScreenAction->setIcon(icon("fullscreen"));
    connect(m_fullScreenAction, &QAction::triggered, this, &ViewerWindow::showFullScreen);
    // What the menus offer works while they are hidden, too.
    addActions(menu->actions());
}

void ViewerWindow::showFullScreen(bool on)
{
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, on));
}

void ViewerWindow::createFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    menu->addAction(icon("open"), tr("&Open..."), this, &ViewerWindow::chooseFile, QKeySequence::Open);
    m_saveAction = menu->addAction(icon("savepicture"), tr("&Save picture..."), this,
                                   &ViewerWindow::savePicture, QKeySequence::Save);
    m_saveAction->setEnabled(false);
    menu->addSeparator();
    menu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence(Qt::CTRL + Qt::Key_Q));
}

QAction* ViewerWindow::addSwitch(QMenu& menu, const QString& text, const QKeySequence& shortcut)
{
    QAction* action = menu.addAction(text);
    action->setCheckable(true);
    action->setShortcut(shortcut);
    return action;
}

void ViewerWindow::addStyleActions(QMenu& menu)
{
    const QString texts[] = {tr("&No plot"), tr("&Points"),          tr("&Wireframe"), tr("&Hidden line"),
                             tr("&Filled"),  tr("Filled and &mesh"), tr("H&istogram")};
    int style = PlotStyles::NoPlot;
    for (const QString& text : texts) {
        QAction* action = addSwitch(menu, text, QKeySequence(QStringLiteral("Ctrl+%1").arg(style)));
        action->setData(style++);
        m_styles->addAction(action);
    }
    connect(m_styles, &QActionGroup::triggered, this,
            [this](const QAction* action) { m_plot->slotSetPlotStyle(action->data().toInt()); });
}

void ViewerWindow::createPlotMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Plot"));
    addStyleActions(*menu);
    menu->addSeparator();
    m_meshAction = addSwitch(*menu, tr("M&esh lines"), QKeySequence(Qt::CTRL + Qt::Key_M));
    connect(m_meshAction, &QAction::triggered, m_plot, [this](bool on) {
        m_plot->slotSetPlotStyle(on ? PlotStyles::FilledAndMesh : PlotStyles::Filled);
    });
    m_pickingAction = addSwitch(*menu, tr("Pi&ck values"), QKeySequence(Qt::CTRL + Qt::Key_K));
    m_pickingAction->setIcon(icon("select"));
    m_pickingAction->setStatusTip(tr("Show the value under the cursor"));
    connect(m_pickingAction, &QAction::triggered, m_plot, &ViewerPlot::slotSetSelecting);
    connect(m_plot, &ViewerPlot::selectingChanged, m_pickingAction, &QAction::setChecked);
    m_lightingAction = addSwitch(*menu, tr("&Lighting"), QKeySequence(Qt::CTRL + Qt::Key_L));
    connect(m_lightingAction, &QAction::triggered, m_plot, &ViewerPlot::slotSetLighting);
    connect(m_plot, &ViewerPlot::lightingChanged, m_lightingAction, &QAction::setChecked);
    m_lightingAction->setChecked(m_plot->isLighting());
    m_perspectiveAction = addSwitch(*menu, tr("Perspecti&ve"), QKeySequence(Qt::CTRL + Qt::Key_E));
    connect(m_perspectiveAction, &QAction::triggered, m_plot,
            [this](bool on) { m_plot->slotSetProjectionType(on ? Zel3D::Perspective : Zel3D::Orthogonal); });
    connect(
        m_plot, &ViewerPlot::projectionTypeChanged, m_perspectiveAction,
        [this](Zel3D::ProjectionType type) { m_perspectiveAction->setChecked(type == Zel3D::Perspective); });
    addScalingActions(*menu->addMenu(tr("&Scaling")));
    addLookActions(*menu->addMenu(tr("Loo&k")));
    menu->addMenu((new Zel3D::TemplateActions(m_plot, this))->makeMenu(menu));
}

void ViewerWindow::addScalingActions(QMenu& menu)
{
    const QString texts[] = {tr("&Automatic"), tr("&Equal units on all axes"), tr("By &hand")};
    auto* group = new QActionGroup(this);
    for (int scaling = Zel3D::CubeScaling; scaling <= Zel3D::ManualScaling; ++scaling) {
        QAction* action = addSwitch(menu, texts[scaling], QKeySequence());
        action->setData(scaling);
        action->setChecked(scaling == m_plot->getBoxScaling());
        group->addAction(action);
    }
    connect(group, &QActionGroup::triggered, m_plot, [this](const QAction* action) {
        m_plot->slotSetBoxScaling(Zel3D::BoxScaling(action->data().toInt()));
    });
    connect(m_plot, &ViewerPlot::boxScalingChanged, group,
            [group](Zel3D::BoxScaling scaling) { group->actions().at(scaling)->setChecked(true); });
}

void ViewerWindow::addLookActions(QMenu& menu)
{
    const QList<Zel3D::Look> looks = Zel3D::Look::all();
    for (const Zel3D::Look& look : looks) {
        QAction* action = addSwitch(menu, look.name, QKeySequence());
        m_looks->addAction(action);
        connect(action, &QAction::triggered, m_plot, [this, look] {
            m_plot->setLook(look);
            m_plot->update();
        });
    }
    m_looks->actions().first()->setChecked(true);
}

void ViewerWindow::resetView()
{
    m_plot->resetView();
    m_plot->update();
}

void ViewerWindow::showStyle(int style)
{
    const QList<QAction*> actions = m_styles->actions();
    for (QAction* action : actions) {
        if (action->data().toInt() == style)
            action->setChecked(true);
    }
    const bool surface = style == PlotStyles::Filled || style == PlotStyles::FilledAndMesh;
    m_meshAction->setEnabled(surface);
    m_meshAction->setChecked(style == PlotStyles::FilledAndMesh || style == PlotStyles::Wireframe ||
                             style == PlotStyles::HiddenLine);
}

bool ViewerWindow::open(const QString& path, int band, QString& error)
{
    const WaitCursor waiting;
    Grid grid;
    GridFile reader(path);
    if (!reader.read(grid, band)) {
        error = reader.error();
        return false;
    }
    if (!m_plot->load(grid, QFileInfo(path).fileName())) {
        error = tr("\"%1\" cannot be drawn.").arg(path);
        return false;
    }
    m_saveAction->setEnabled(true);
    describe(path, grid);
    if (m_plot->isInitialized())
        m_plot->updateGL();
    return true;
}

void ViewerWindow::describe(const QString& path, const Grid& grid)
{
    m_fileName = QFileInfo(path).fileName();
    setWindowTitle(tr("%1 - voranview").arg(m_fileName));
    const auto range = [](double lower, double upper) {
        return tr("%1 to %2").arg(lower, 0, 'g', 6).arg(upper, 0, 'g', 6);
    };
    QString text =
        tr("%1 x %2 nodes, x %3, y %4, z %5")
            .arg(grid.columns)
            .arg(grid.rows)
            .arg(range(grid.xMin, grid.xMax), range(grid.yMin, grid.yMax), range(grid.zMin, grid.zMax));
    if (!grid.unit.isEmpty())
        text += ' ' + grid.unit;
    const std::size_t missing = grid.heights.size() - grid.validNodes;
    if (missing > 0)
        text = tr("%1, %2 missing").arg(text).arg(missing);
    m_description->setText(text);
    m_description->setToolTip(text);
}

void ViewerWindow::openFile(const QString& path)
{
    QString error;
    if (!open(path, 1, error))
        QMessageBox::warning(this, tr("Open"), error);
}

void ViewerWindow::chooseFile()
{
    QSettings settings;
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open a grid file"), settings.value(folderKey).toString());
    if (path.isEmpty())
        return;
    settings.setValue(folderKey, QFileInfo(path).absolutePath());
    openFile(path);
}

void ViewerWindow::savePicture()
{
    QSettings settings;
    const QString suggestion =
        QDir(settings.value(folderKey).toString())
            .filePath(QFileInfo(m_fileName).completeBaseName() + QLatin1String(".png"));
    QFileDialog dialog(this, tr("Save picture"), suggestion, tr("Pictures (*.png)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("png");
    dialog.selectFile(suggestion);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().value(0);
    PictureFile file(path);
    if (file.write(m_plot->picture(m_plot->size() * m_plot->devicePixelRatioF())))
        statusBar()->showMessage(tr("Saved %1").arg(path), 5000);
    else
        QMessageBox::warning(this, tr("Save picture"), file.error());
}

void ViewerWindow::fitPlot(const QSize& size)
{
    resize(this->size() + size - m_plot->size());
}

void ViewerWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ViewerWindow::dropEvent(QDropEvent* event)
{
    const QString path = droppedFile(*event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    openFile(path);
}

void ViewerWindow::closeEvent(QCloseEvent* event)
{
    remember();
    QMainWindow::closeEvent(event);
}
