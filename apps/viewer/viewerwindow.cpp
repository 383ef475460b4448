#include "viewerwindow.h"

#include "aboutbox.h"
#include "dataactions.h"
#include "filesource.h"
#include "formuladialog.h"
#include "formulasource.h"
#include "partaction.h"
#include "pictureactions.h"
#include "plothost.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "plottabs.h"
#include "preferencesdialog.h"
#include "progressbox.h"
#include "recentfiles.h"
#include "recentmenu.h"
#include "startpage.h"
#include "tabactions.h"
#include "toroidsource.h"
#include "viewerbindings.h"
#include "watersource.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolButton>

namespace {

constexpr char geometryKey[] = "window/geometry";
constexpr QSize usualSize(1000, 800);
constexpr char folderKey[] = "window/folder";
constexpr char stateKey[] = "window/state";
constexpr char statusBarKey[] = "window/statusBar";

QIcon icon(const char* name)
{
    return QIcon(QStringLiteral(":/plot/images/%1.svg").arg(QLatin1String(name)));
}

/// What tells a source from others, over restarts of the program.
QString subjectOf(const PlotSource& source)
{
    const QString file = source.filePath();
    return file.isEmpty() ? source.identity() : QFileInfo(file).absoluteFilePath() + ' ' + source.name();
}

/// What was changed after the last save belongs to it: a look from the menu, the view.
void keep(PlotPage& page)
{
    if (page.view().isKept())
        page.plot().slotSaveSettings();
}

/// While it lives, bars come and go without moving what stands in the middle of the window.
class LayoutPause
{
public:
    explicit LayoutPause(QMainWindow& window) : m_window(window) { m_window.layout()->setEnabled(false); }
    ~LayoutPause()
    {
        m_window.layout()->setEnabled(true);
        m_window.layout()->activate();
    }
    LayoutPause(const LayoutPause&) = delete;
    LayoutPause& operator=(const LayoutPause&) = delete;

private:
    QMainWindow& m_window;
};

/// The cursor of work while the object lives; the progress can still be clicked on.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::BusyCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace

ViewerWindow::ViewerWindow()
    : m_preferences(PlotPreferences::stored()), m_bindings(new ViewerBindings(this)), m_history(m_link)
{
    setWindowIcon(icon("voranview"));
    setAcceptDrops(true);
    // Every step would paint the plots at another size.
    setAnimated(false);
    createFileMenu();
    createEditMenu();
    m_plotMenu = menuBar()->addMenu(tr("&Plot"));
    createTabs();
    createViewMenu();
    m_editMenu->addSeparator();
    m_editMenu->addAction(tr("Pr&eferences..."), this, &ViewerWindow::editPreferences)
        ->setStatusTip(tr("Language, look of new plots, size of grids"));
    createHelpMenu();
    restore();
    showPage(nullptr);
}

ViewerWindow::~ViewerWindow()
{
    // Before the menus, bars and docks go that they use.
    m_data->setPage(nullptr);
    m_host.reset();
}

void ViewerWindow::createTabs()
{
    const QString folder = Examples::folder(QCoreApplication::applicationDirPath());
    auto* startPage = new StartPage(Examples::all(folder), m_openAction, m_newActions);
    connect(startPage, &StartPage::fileChosen, this, &ViewerWindow::openFile, Qt::QueuedConnection);
    connect(m_recentMenu, &RecentMenu::cleared, startPage, &StartPage::refresh);
    m_tabs = new PlotTabs(*startPage);
    setCentralWidget(m_tabs);
    connect(m_tabs, &PlotTabs::currentChanged, this, &ViewerWindow::showPage);
    connect(m_tabs, &PlotTabs::closing, this, [this](PlotPage* page) { letGo(*page); });
    m_tabActions = new TabActions(*m_tabs);
    m_fileMenu->addSeparator();
    m_tabActions->fillFileMenu(*m_fileMenu);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence(Qt::CTRL + Qt::Key_Q));
}

void ViewerWindow::restore()
{
    const QSettings settings;
    if (!restoreGeometry(settings.value(geometryKey).toByteArray()))
        resize(usualSize.boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    m_barState = settings.value(stateKey).toByteArray();
    m_statusAction->setChecked(settings.value(statusBarKey, true).toBool());
    m_fullScreenAction->setChecked(isFullScreen());
}

void ViewerWindow::takeFromPage()
{
    if (!m_page)
        return;
    m_preferences.takeFrom(m_page->view());
    m_barState = saveState();
    keep(*m_page);
}

void ViewerWindow::remember()
{
    for (PlotPage* page : m_tabs->pages())
        keep(*page);
    takeFromPage();
    m_preferences.store();
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(stateKey, m_barState);
    settings.setValue(statusBarKey, m_statusAction->isChecked());
}

void ViewerWindow::createFileMenu()
{
    m_fileMenu = menuBar()->addMenu(tr("&File"));
    m_fileMenu->addMenu(createNewMenu());
    m_openAction = m_fileMenu->addAction(icon("open"), tr("&Open..."), this, &ViewerWindow::chooseFile,
                                         QKeySequence::Open);
    m_recentMenu = new RecentMenu(this);
    m_fileMenu->addMenu(m_recentMenu);
    m_partAction =
        new PartAction(*this, *m_fileMenu, [this](std::unique_ptr<PlotSource> source, QString& error) {
            return present(std::move(source), error);
        });
    connect(m_recentMenu, &RecentMenu::chosen, this, &ViewerWindow::openFile);
    m_fileMenu->addSeparator();
}

void ViewerWindow::createEditMenu()
{
    m_editMenu = menuBar()->addMenu(tr("&Edit"));
    m_editMenu->addActions({m_history.undoAction(), m_history.redoAction()});
    m_editMenu->addSeparator();
    m_pictures = new PictureActions(*this, *m_fileMenu, *m_editMenu);
}

QMenu* ViewerWindow::createNewMenu()
{
    auto* menu = new QMenu(tr("&New"), this);
    QAction* formula =
        menu->addAction(icon("wireframe"), tr("From &formula..."), this, &ViewerWindow::askFormula,
                        QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_F));
    formula->setIconText(tr("Formula"));
    formula->setStatusTip(tr("z as a function of x and y"));
    QAction* toroid = menu->addAction(icon("hiddenline"), tr("&Toroid"), this,
                                      [this] { showPlot(std::make_unique<ToroidSource>()); });
    toroid->setStatusTip(tr("A ring with a tilted tube"));
    QAction* water = menu->addAction(icon("points"), tr("&Water surface"), this,
                                     [this] { showPlot(std::make_unique<WaterSource>()); });
    water->setStatusTip(tr("Ripples around a falling stone"));
    m_newActions = {formula, toroid, water};
    return menu;
}

void ViewerWindow::createViewMenu()
{
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    const auto addSwitch = [this](const QString& text, const QKeySequence& shortcut) {
        QAction* action = m_viewMenu->addAction(text);
        action->setCheckable(true);
        action->setShortcut(shortcut);
        return action;
    };
    m_statusAction = addSwitch(tr("&Status bar"), {});
    connect(m_statusAction, &QAction::triggered, this, [this](bool on) { statusBar()->setVisible(on); });
    m_fullScreenAction = addSwitch(tr("F&ull screen"), Qt::Key_F11);
    m_fullScreenAction->setIcon(icon("fullscreen"));
    connect(m_fullScreenAction, &QAction::triggered, this, &ViewerWindow::showFullScreen);
    m_viewMenu->addSeparator();
    m_linkAction = addSwitch(tr("L&ink views"), Qt::CTRL + Qt::SHIFT + Qt::Key_L);
    m_linkAction->setIcon(icon("linkviews"));
    m_linkAction->setStatusTip(tr("Turn, zoom and shift all plots together"));
    connect(m_linkAction, &QAction::triggered, this, &ViewerWindow::linkViews);
    // Where it is seen, too, that plots are linked.
    auto* link = new QToolButton;
    link->setAutoRaise(true);
    link->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    link->setFocusPolicy(Qt::NoFocus);
    link->setDefaultAction(m_linkAction);
    link->setVisible(false);
    menuBar()->setCornerWidget(link);
    connect(m_tabs, &PlotTabs::arranged, link, [this, link] {
        link->setVisible(m_tabs->pages().size() > 1);
        menuBar()->adjustSize();
    });
    m_tabActions->fillViewMenu(*m_viewMenu);
    m_viewMenu->addSeparator();
    m_data = new DataActions(*this, *m_editMenu, *m_viewMenu,
                             {[this](std::unique_ptr<PlotSource> source) { showPlot(std::move(source)); },
                              [this](const QStringList& paths) { openFiles(paths); }});
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(m_bindings->action());
}

void ViewerWindow::createHelpMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Help"));
    menu->addAction(tr("&About VORAN Viewer..."), this,
                    [this] { AboutBox::open(*this, m_page ? &m_page->view().plot() : nullptr); });
}

void ViewerWindow::showFullScreen(bool on)
{
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, on));
}

void ViewerWindow::showPage(PlotPage* page)
{
    takeFromPage();
    const LayoutPause pause(*this);
    m_host.reset();
    m_page = page;
    m_history.setCurrent(page != nullptr ? &page->view() : nullptr);
    m_pictures->setPage(page);
    m_partAction->setPage(page);
    m_plotMenu->menuAction()->setEnabled(page != nullptr);
    m_statusAction->setEnabled(page != nullptr);
    m_linkAction->setEnabled(page != nullptr);
    setWindowTitle(page != nullptr ? tr("%1 - voranview").arg(page->source().name()) : tr("voranview"));
    if (page == nullptr) {
        m_data->setPage(nullptr);
        return;
    }
    m_host = std::make_unique<PlotHost>(*this, *page, *m_plotMenu, *m_viewMenu, m_statusAction);
    m_data->setPage(page);
    restoreState(m_barState);
    page->setFocus();
}

void ViewerWindow::addPage(std::unique_ptr<PlotPage> page)
{
    takeFromPage();
    PlotView& view = page->view();
    m_preferences.applyTo(view);
    view.setSubject(subjectOf(page->source()));
    view.restoreKept();
    m_bindings->attach(&page->plot());
    m_tabs->add(std::move(page));
    // Taking over the view of linked plots is nothing to take back.
    m_link.add(view);
    m_history.add(view);
    m_history.setCurrent(&view);
}

void ViewerWindow::letGo(PlotPage& page)
{
    keep(page);
    m_link.remove(page.view());
    m_history.remove(page.view());
}

void ViewerWindow::linkViews(bool on)
{
    m_link.setOn(on, m_page->view());
}

bool ViewerWindow::present(std::unique_ptr<PlotSource> source, QString& error)
{
    // The progress takes events: one at a time.
    if (m_loading)
        return false;
    const WaitCursor waiting;
    ProgressBox progress(tr("Open"), *this, m_page);
    const QScopedValueRollback<ProgressBox*> loading(m_loading, &progress);
    std::unique_ptr<PlotView> view = source->open(progress.loadProgress(source->name()));
    if (!view) {
        error = source->error();
        return false;
    }
    const QString file = source->filePath();
    addPage(std::make_unique<PlotPage>(std::move(source), std::move(view)));
    // Some names of grids inside files are no paths.
    if (QFileInfo::exists(file))
        RecentFiles::add(file);
    progress.paintWindow();
    return true;
}

bool ViewerWindow::open(const QString& path, int band, QString& error)
{
    return present(sourceOfFile(path, band), error);
}

void ViewerWindow::openFile(const QString& path)
{
    openFiles({path});
}

void ViewerWindow::openFiles(const QStringList& paths)
{
    QStringList problems;
    for (const QString& path : paths) {
        QString error;
        if (open(path, 1, error))
            continue;
        // Cancelled, and with it those that would follow.
        if (error.isEmpty())
            break;
        problems.append(error);
        if (!QFileInfo::exists(path))
            RecentFiles::remove(path);
    }
    if (!problems.isEmpty())
        QMessageBox::warning(this, tr("Open"), problems.join('\n'));
}

void ViewerWindow::showPlot(std::unique_ptr<PlotSource> source)
{
    QString error;
    if (!present(std::move(source), error) && !error.isEmpty())
        QMessageBox::warning(this, tr("New"), error);
}

void ViewerWindow::closePlot()
{
    if (m_page)
        m_tabs->close(*m_page);
}

void ViewerWindow::chooseFile()
{
    const QString filters[] = {
        tr("All data (*)"),
        tr("Grids (*.asc *.tif *.tiff *.vrt *.nc *.grd *.img *.dem *.hgt *.xyz *.bil *.flt)"),
        tr("Spectra (*.csv *.tsv *.txt *.dat)"),
        tr("Meshes (*.off *.obj *.ply *.stl *.3ds *.dae *.gltf *.glb *.fbx *.x3d)")};
    QSettings settings;
    const QStringList paths =
        QFileDialog::getOpenFileNames(this, tr("Open"), settings.value(folderKey).toString(),
                                      QStringList(std::begin(filters), std::end(filters)).join(";;"));
    if (paths.isEmpty())
        return;
    settings.setValue(folderKey, QFileInfo(paths.first()).absolutePath());
    openFiles(paths);
}

void ViewerWindow::askFormula()
{
    FormulaDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted)
        showPlot(std::make_unique<FormulaSource>(dialog.formula(), dialog.area()));
}

void ViewerWindow::editPreferences()
{
    PreferencesDialog dialog(this);
    connect(&dialog, &PreferencesDialog::lookChosen, this,
            [this](const QString& name) { m_preferences.takeLook(name); });
    dialog.exec();
}

void ViewerWindow::fitPlot(const QSize& size)
{
    resize(m_page ? this->size() + size - m_page->plot().size() : size);
}

void ViewerWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (DataActions::canTake(*event->mimeData()))
        event->acceptProposedAction();
}

void ViewerWindow::dropEvent(QDropEvent* event)
{
    if (!DataActions::canTake(*event->mimeData()))
        return;
    event->acceptProposedAction();
    m_data->take(*event->mimeData());
}

// The window manager goes full screen and back, too.
void ViewerWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && m_fullScreenAction)
        m_fullScreenAction->setChecked(isFullScreen());
}

void ViewerWindow::closeEvent(QCloseEvent* event)
{
    if (m_loading) {
        m_loading->closeWindowAfterwards();
        event->ignore();
        return;
    }
    remember();
    QMainWindow::closeEvent(event);
}
