#include "viewerwindow.h"

#include "filesource.h"
#include "formuladialog.h"
#include "formulasource.h"
#include "pictureactions.h"
#include "plothost.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "preferencesdialog.h"
#include "recentfiles.h"
#include "recentmenu.h"
#include "startpage.h"
#include "toroidsource.h"
#include "viewerbindings.h"
#include "watersource.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>

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

QString droppedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

/// What tells a source from others, over restarts of the program.
QString subjectOf(const PlotSource& source)
{
    const QString file = source.filePath();
    return file.isEmpty() ? source.identity() : QFileInfo(file).absoluteFilePath() + ' ' + source.name();
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
    : m_preferences(PlotPreferences::stored()),
      m_bindings(new ViewerBindings(this)),
      m_stack(new QStackedWidget)
{
    setCentralWidget(m_stack);
    setWindowIcon(icon("voranview"));
    setAcceptDrops(true);
    createFileMenu();
    m_plotMenu = menuBar()->addMenu(tr("&Plot"));
    createViewMenu();
    createStartPage();
    restore();
    removePage();
}

ViewerWindow::~ViewerWindow()
{
    // Before the menus and bars that it gives back go.
    m_host.reset();
}

void ViewerWindow::createStartPage()
{
    const QString folder = Examples::folder(QCoreApplication::applicationDirPath());
    m_startPage = new StartPage(Examples::all(folder), m_openAction, m_newActions);
    m_stack->addWidget(m_startPage);
    connect(m_startPage, &StartPage::fileChosen, this, &ViewerWindow::openFile, Qt::QueuedConnection);
    connect(m_recentMenu, &RecentMenu::cleared, m_startPage, &StartPage::refresh);
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
    // What was changed after the last save belongs to it: a look from the menu, the view.
    if (m_page->view().isKept())
        m_page->plot().slotSaveSettings();
}

void ViewerWindow::remember()
{
    takeFromPage();
    m_preferences.store();
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(stateKey, m_barState);
    settings.setValue(statusBarKey, m_statusAction->isChecked());
}

void ViewerWindow::createFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    menu->addMenu(createNewMenu());
    m_openAction =
        menu->addAction(icon("open"), tr("&Open..."), this, &ViewerWindow::chooseFile, QKeySequence::Open);
    m_recentMenu = new RecentMenu(this);
    menu->addMenu(m_recentMenu);
    connect(m_recentMenu, &RecentMenu::chosen, this, &ViewerWindow::openFile);
    menu->addSeparator();
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    m_pictures = new PictureActions(*this, *menu, *edit);
    edit->addSeparator();
    edit->addAction(tr("Pr&eferences..."), this, &ViewerWindow::editPreferences)
        ->setStatusTip(tr("Language, look of new plots, size of grids"));
    menu->addSeparator();
    m_closeAction = menu->addAction(tr("&Close plot"), this, &ViewerWindow::closePlot,
                                    QKeySequence(Qt::CTRL + Qt::Key_W));
    menu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence(Qt::CTRL + Qt::Key_Q));
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
    const auto addSwitch = [this](const QString& text) {
        QAction* action = m_viewMenu->addAction(text);
        action->setCheckable(true);
        return action;
    };
    m_statusAction = addSwitch(tr("&Status bar"));
    connect(m_statusAction, &QAction::triggered, this, [this](bool on) { statusBar()->setVisible(on); });
    m_fullScreenAction = addSwitch(tr("F&ull screen"));
    m_fullScreenAction->setShortcut(QKeySequence(Qt::Key_F11));
    m_fullScreenAction->setIcon(icon("fullscreen"));
    connect(m_fullScreenAction, &QAction::triggered, this, &ViewerWindow::showFullScreen);
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(m_bindings->action());
}

void ViewerWindow::showFullScreen(bool on)
{
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, on));
}

void ViewerWindow::removePage()
{
    takeFromPage();
    m_host.reset();
    m_page.reset();
    m_plotMenu->menuAction()->setEnabled(false);
    m_pictures->setPage(nullptr);
    m_closeAction->setEnabled(false);
    m_statusAction->setEnabled(false);
    setWindowTitle(tr("voranview"));
}

void ViewerWindow::placePage(std::unique_ptr<PlotPage> page)
{
    removePage();
    m_page = std::move(page);
    m_preferences.applyTo(m_page->view());
    m_page->view().setSubject(subjectOf(m_page->source()));
    m_page->view().restoreKept();
    m_bindings->attach(&m_page->plot());
    m_stack->addWidget(m_page.get());
    m_host = std::make_unique<PlotHost>(*this, *m_page, *m_plotMenu, *m_viewMenu, m_statusAction);
    restoreState(m_barState);
    statusBar()->setVisible(m_statusAction->isChecked());
    m_plotMenu->menuAction()->setEnabled(true);
    m_pictures->setPage(m_page.get());
    m_closeAction->setEnabled(true);
    m_statusAction->setEnabled(true);
    setWindowTitle(tr("%1 - voranview").arg(m_page->source().name()));
    m_stack->setCurrentWidget(m_page.get());
    m_page->setFocus();
}

bool ViewerWindow::present(std::unique_ptr<PlotSource> source, QString& error)
{
    const WaitCursor waiting;
    std::unique_ptr<PlotView> view = source->open();
    if (!view) {
        error = source->error();
        return false;
    }
    const QString file = source->filePath();
    placePage(std::make_unique<PlotPage>(std::move(source), std::move(view)));
    // Some names of grids inside files are no paths.
    if (QFileInfo::exists(file))
        RecentFiles::add(file);
    return true;
}

bool ViewerWindow::open(const QString& path, int band, QString& error)
{
    return present(sourceOfFile(path, band), error);
}

void ViewerWindow::openFile(const QString& path)
{
    QString error;
    if (open(path, 1, error))
        return;
    if (!QFileInfo::exists(path))
        RecentFiles::remove(path);
    QMessageBox::warning(this, tr("Open"), error);
}

void ViewerWindow::showPlot(std::unique_ptr<PlotSource> source)
{
    QString error;
    if (!present(std::move(source), error))
        QMessageBox::warning(this, tr("New"), error);
}

void ViewerWindow::closePlot()
{
    removePage();
    m_stack->setCurrentWidget(m_startPage);
}

void ViewerWindow::chooseFile()
{
    const QString filters[] = {
        tr("All data (*)"),
        tr("Grids (*.asc *.tif *.tiff *.vrt *.nc *.grd *.img *.dem *.hgt *.xyz *.bil *.flt)"),
        tr("Spectra (*.csv *.tsv *.txt *.dat)"),
        tr("Meshes (*.off *.obj *.ply *.stl *.3ds *.dae *.gltf *.glb *.fbx *.x3d)")};
    QSettings settings;
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open"), settings.value(folderKey).toString(),
                                     QStringList(std::begin(filters), std::end(filters)).join(";;"));
    if (path.isEmpty())
        return;
    settings.setValue(folderKey, QFileInfo(path).absolutePath());
    openFile(path);
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

// The window manager goes full screen and back, too.
void ViewerWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && m_fullScreenAction)
        m_fullScreenAction->setChecked(isFullScreen());
}

void ViewerWindow::closeEvent(QCloseEvent* event)
{
    remember();
    QMainWindow::closeEvent(event);
}
