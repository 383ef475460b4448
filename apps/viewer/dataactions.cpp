#include "dataactions.h"

#include "datainspector.h"
#include "draghandle.h"
#include "export/pictureclip.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "slicepanel.h"
#include "tabledialog.h"
#include "tablesource.h"
#include "watersimulation.h"

#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QFileInfo>
#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

namespace {

constexpr int messageTime = 8000;
constexpr int refreshTime = 500;
/// What docks leave to the plots.
constexpr QSize plotRoom(452, 200);

/// The files that addresses, or a text of one line, name.
QStringList filesOf(const QMimeData& data)
{
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    QString text = data.hasUrls() ? QString() : data.text().trimmed();
    if (text.isEmpty() || text.contains('\n') || text.contains('\t'))
        return files;
    if (text.size() > 1 && text.startsWith('"') && text.endsWith('"'))
        text = text.mid(1, text.size() - 2);
    if (text.startsWith("file:"))
        text = QUrl(text).toLocalFile();
    if (QFileInfo(text).isAbsolute() && QFileInfo::exists(text))
        files.append(text);
    return files;
}

} // namespace

DataActions::DataActions(QMainWindow& window, QMenu& editMenu, QMenu& viewMenu, Opener opener)
    : QObject(&window),
      m_window(window),
      m_opener(std::move(opener)),
      m_refresh(new QTimer(this)),
      m_room(new QTimer(this))
{
    editMenu
        .addAction(
            tr("&Paste data"), this, [this] { paste(false); }, QKeySequence::Paste)
        ->setStatusTip(tr("Show a table, or open a file, from the clipboard"));
    editMenu
        .addAction(
            tr("Paste data &as..."), this, [this] { paste(true); },
            QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_V))
        ->setStatusTip(tr("Say what the cells of a table on the clipboard mean"));
    createDocks(viewMenu);
    m_refresh->setInterval(refreshTime);
    connect(m_refresh, &QTimer::timeout, this, &DataActions::refresh);
    // After the window has laid out its parts.
    m_room->setSingleShot(true);
    m_room->setInterval(0);
    connect(m_room, &QTimer::timeout, this, &DataActions::leaveRoom);
    m_window.installEventFilter(this);
    setPage(nullptr);
}

void DataActions::createDocks(QMenu& viewMenu)
{
    m_inspector = new DataInspector;
    m_slice = new SlicePanel;
    m_dataDock = createDock(tr("Data"), "dataDock", m_inspector, Qt::RightDockWidgetArea);
    m_sliceDock = createDock(tr("Slice"), "sliceDock", m_slice, Qt::BottomDockWidgetArea);
    QAction* data = viewMenu.addAction(tr("&Data"));
    data->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_I));
    data->setStatusTip(tr("Ranges, statistics and a table of the values"));
    showWith(*data, *m_dataDock);
    QAction* slice = viewMenu.addAction(tr("Sli&ce"));
    slice->setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_I));
    slice->setStatusTip(tr("The row and the column of the picked point as curves"));
    showWith(*slice, *m_sliceDock);
    m_window.setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    connect(m_inspector, &DataInspector::placeChosen, this, [this](const ValuePlace& place) {
        setHeld(true);
        choose(place);
    });
    connect(m_slice, &SlicePanel::heldChanged, this, &DataActions::setHeld);
    connect(m_inspector, &DataInspector::told, this, &DataActions::tell);
    connect(m_slice, &SlicePanel::told, this, &DataActions::tell);
    // What was picked while they were hidden.
    for (QDockWidget* dock : {m_dataDock, m_sliceDock}) {
        connect(dock, &QDockWidget::visibilityChanged, this, [this](bool visible) {
            if (!visible)
                return;
            m_room->start();
            if (m_place)
                choose(*m_place);
        });
    }
}

QDockWidget* DataActions::createDock(const QString& title, const char* name, QWidget* content,
                                     Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(title, &m_window);
    dock->setObjectName(name);
    dock->setWidget(content);
    m_window.addDockWidget(area, dock);
    dock->hide();
    return dock;
}

// The dock's own action takes its text from the title.
void DataActions::showWith(QAction& action, const QDockWidget& dock)
{
    action.setCheckable(true);
    connect(&action, &QAction::triggered, dock.toggleViewAction(), &QAction::trigger);
    connect(dock.toggleViewAction(), &QAction::toggled, &action, &QAction::setChecked);
    m_showActions.append(&action);
}

void DataActions::setPage(PlotPage* page)
{
    if (!page && m_page) {
        // The start page has nothing to inspect; the next plot finds them again.
        m_dataShown = !m_dataDock->isHidden();
        m_sliceShown = !m_sliceDock->isHidden();
        m_dataDock->hide();
        m_sliceDock->hide();
    }
    m_following.reset();
    delete m_handle;
    m_refresh->stop();
    m_place.reset();
    m_under.reset();
    m_inspector->setValues(nullptr);
    m_slice->setValues(nullptr);
    m_page = page;
    m_values = page ? PlotValues::of(page->plot()) : nullptr;
    for (QAction* show : qAsConst(m_showActions))
        show->setEnabled(page != nullptr);
    if (page)
        followPlot();
    setHeld(false);
    m_slice->setHint(hint());
}

void DataActions::followPlot()
{
    PlotSource& source = m_page->source();
    const QString path = source.filePath();
    m_inspector->setValues(m_values.get(), path.isEmpty() ? source.name() : QFileInfo(path).fileName(), path);
    m_slice->setValues(m_values.get());
    m_following = std::make_unique<QObject>();
    Zel3D::BasePlot* plot = &m_page->plot();
    connect(plot, &Zel3D::BasePlot::selectedObject, m_following.get(),
            [this](const Zel3D::SelectedObjectsInfo& info) { picked(info); });
    connect(plot, &Zel3D::BasePlot::selectingChanged, m_following.get(),
            [this] { m_slice->setHint(hint()); });
    connect(m_page, &QObject::destroyed, m_following.get(), [this] {
        m_page = nullptr;
        setPage(nullptr);
    });
    plot->installEventFilter(this);
    if (source.simulation() != nullptr)
        m_refresh->start();
    placeHandle();
    m_dataDock->setVisible(m_dataShown || !m_dataDock->isHidden());
    m_sliceDock->setVisible(m_sliceShown || !m_sliceDock->isHidden());
    m_dataShown = m_sliceShown = false;
}

void DataActions::placeHandle()
{
    m_handle = new DragHandle;
    m_window.statusBar()->addPermanentWidget(m_handle);
    connect(m_handle, &DragHandle::dragged, this, &DataActions::dragPicture);
    connect(m_handle, &DragHandle::clicked, this, [this] { tell(m_handle->toolTip() + '.'); });
}

QString DataActions::hint() const
{
    if (!m_page || !m_values)
        return tr("There is no plot with data.");
    if (m_values->kind() == PlotValues::Kind::Mesh)
        return tr("A mesh has no rows and columns through which to cut.");
    if (!m_page->plot().isSelecting())
        return tr("Choose a cell of the table in the Data window, or switch on \"Pick values\" in the Plot "
                  "menu and point at the plot.");
    return m_values->kind() == PlotValues::Kind::Spectra ? tr("Point at a spectrum to see it here.")
                                                         : tr("Point at the surface to see the row and the "
                                                              "column under the mouse here.");
}

void DataActions::picked(const Zel3D::SelectedObjectsInfo& info)
{
    m_under = m_values && info.valid ? m_values->find(info) : std::nullopt;
    if (m_held)
        mark();
    else if (m_under)
        choose(*m_under);
}

/// Shows a point in what is seen of table and slice.
void DataActions::choose(const ValuePlace& place)
{
    m_place = place;
    if (m_dataDock->isVisible())
        m_inspector->showPlace(place);
    if (m_sliceDock->isVisible())
        m_slice->showPlace(place);
    if (m_held)
        mark();
}

void DataActions::mark()
{
    if (m_page && m_values && m_place)
        m_page->plot().highlightPoint(m_values->drawn(m_place->column, m_place->row));
}

void DataActions::setHeld(bool held)
{
    m_held = held;
    m_slice->setHeld(held);
    if (held)
        mark();
}

/// On a point: it is held, or let go when it is held already. Beside the data: whatever is held is let go.
void DataActions::clicked()
{
    if (m_dataDock->isHidden() && m_sliceDock->isHidden())
        return;
    const bool hold = m_under && !(m_held && m_place && *m_place == *m_under);
    if (hold)
        choose(*m_under);
    setHeld(hold);
}

bool DataActions::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Resize)
        m_room->start();
    const bool press = event->type() == QEvent::MouseButtonPress;
    if ((press || event->type() == QEvent::MouseButtonRelease) && m_page && watched == &m_page->plot()) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (press)
            m_press = mouse->pos();
        else if (mouse->button() == Qt::LeftButton &&
                 (mouse->pos() - m_press).manhattanLength() < QApplication::startDragDistance())
            clicked();
    }
    return QObject::eventFilter(watched, event);
}

void DataActions::refresh()
{
    if (m_dataDock->isVisible())
        m_inspector->refresh();
    if (m_sliceDock->isVisible())
        m_slice->refresh();
}

void DataActions::leaveRoom()
{
    const QSize lacking = plotRoom - m_window.centralWidget()->size();
    for (QDockWidget* dock : {m_dataDock, m_sliceDock}) {
        if (!dock->isVisible() || dock->isFloating())
            continue;
        const Qt::DockWidgetArea area = m_window.dockWidgetArea(dock);
        const bool aside = area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
        if (aside && lacking.width() > 0)
            m_window.resizeDocks({dock}, {dock->width() - lacking.width()}, Qt::Horizontal);
        else if (!aside && lacking.height() > 0)
            m_window.resizeDocks({dock}, {dock->height() - lacking.height()}, Qt::Vertical);
        // Each is reckoned from the sizes before otherwise.
        m_window.layout()->activate();
    }
}

void DataActions::dragPicture()
{
    if (m_page)
        Zel3D::PictureClip::drag(m_page->plot());
}

void DataActions::tell(const QString& sentence)
{
    m_window.statusBar()->showMessage(sentence, messageTime);
}

bool DataActions::canTake(const QMimeData& data)
{
    return !filesOf(data).isEmpty() || (!data.hasUrls() && !data.text().trimmed().isEmpty());
}

void DataActions::paste(bool ask)
{
    const QMimeData* data = QApplication::clipboard()->mimeData();
    if (!data || !canTake(*data)) {
        QMessageBox::information(&m_window, tr("Paste data"),
                                 tr("There is no table and no file on the clipboard. Copy some cells in a "
                                    "spreadsheet, then paste them here."));
        return;
    }
    if (filesOf(*data).isEmpty())
        takeTable(data->text(), ask);
    else
        take(*data);
}

void DataActions::take(const QMimeData& data)
{
    const QStringList paths = filesOf(data);
    if (paths.isEmpty())
        takeTable(data.text(), false);
    else
        m_opener.files(paths);
}

void DataActions::takeTable(const QString& text, bool ask)
{
    ClipboardTable table(text);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool read = table.read();
    QApplication::restoreOverrideCursor();
    if (!read) {
        QMessageBox::warning(&m_window, tr("Paste data"), table.error());
        return;
    }
    TableMeaning meaning = table.guess();
    if (ask || !table.isSure()) {
        TableDialog dialog(table, &m_window);
        if (dialog.exec() != QDialog::Accepted)
            return;
        meaning = dialog.meaning();
    }
    m_opener.source(std::make_unique<TableSource>(std::move(table), meaning));
}
