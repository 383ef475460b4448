#include "pictureactions.h"

#include "export/pictureclip.h"
#include "export/pictureprinter.h"
#include "export/turntable.h"
#include "picturedialog.h"
#include "plotpage.h"
#include "plots/baseplot.h"
#include "progressbox.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QSettings>
#include <QStatusBar>

namespace {

constexpr char folderKey[] = "picture/folder";
constexpr char framesKey[] = "picture/frames";
constexpr int usualFrames = 72;
constexpr int mostFrames = 3600;
constexpr int messageTime = 8000;

} // namespace

PictureActions::PictureActions(QMainWindow& window, QMenu& fileMenu, QMenu& editMenu)
    : QObject(&window), m_window(window)
{
    const QIcon icon(":/plot/images/savepicture.svg");
    m_actions = {
        fileMenu.addAction(icon, tr("&Save picture..."), this, &PictureActions::save, QKeySequence::Save),
        fileMenu.addAction(tr("Save t&urntable..."), this, &PictureActions::saveTurntable),
        fileMenu.addAction(tr("&Print..."), this, &PictureActions::print, QKeySequence::Print),
        fileMenu.addAction(tr("Print pre&view..."), this, &PictureActions::preview),
        editMenu.addAction(tr("&Copy picture"), this, &PictureActions::copy, QKeySequence::Copy)};
    setPage(nullptr);
}

void PictureActions::setPage(PlotPage* page)
{
    m_page = page;
    for (QAction* action : qAsConst(m_actions))
        action->setEnabled(page != nullptr);
}

QString PictureActions::fileName() const
{
    const QString shown = m_page->source().filePath();
    return shown.isEmpty() ? tr("plot") : QFileInfo(shown).completeBaseName();
}

void PictureActions::warn(const QString& sentence)
{
    QMessageBox::warning(&m_window, tr("Picture"), sentence);
}

void PictureActions::tell(const Zel3D::PictureResult& result, const QString& path)
{
    if (result.done)
        m_window.statusBar()->showMessage(tr("Saved %1. %2").arg(path, result.message).trimmed(),
                                          result.hybrid ? 2 * messageTime : messageTime);
    else if (!result.cancelled)
        warn(result.message);
}

void PictureActions::save()
{
    const Zel3D::BasePlot& plot = m_page->plot();
    PictureDialog dialog(fileName(), plot.size() * plot.devicePixelRatioF(), &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    Zel3D::PictureResult result;
    {
        ProgressBox box(tr("Save picture"), m_window, m_page);
        Zel3D::PictureOptions options = dialog.options();
        options.progress = box.progress();
        result = Zel3D::PictureWriter::save(m_page->plot(), dialog.path(), options);
    }
    tell(result, dialog.path());
}

void PictureActions::saveTurntable()
{
    QSettings settings;
    const bool animated = Zel3D::Turntable::canAnimate();
    const QString numbered = tr("Numbered pictures (*.png)");
    const QString suggestion =
        QDir(settings.value(folderKey, QDir::homePath()).toString()).filePath(fileName() + ".png");
    QString path = QFileDialog::getSaveFileName(
        &m_window, tr("Save turntable"), suggestion,
        animated ? numbered + ";;" + tr("Animations (*.mp4 *.webm *.gif *.webp)") : numbered);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += ".png";
    bool accepted = false;
    const int frames =
        QInputDialog::getInt(&m_window, tr("Save turntable"), tr("Pictures of one turn:"),
                             settings.value(framesKey, usualFrames).toInt(), 2, mostFrames, 1, &accepted);
    if (!accepted)
        return;
    settings.setValue(framesKey, frames);
    settings.setValue(folderKey, QFileInfo(path).absolutePath());
    Zel3D::PictureResult result;
    {
        ProgressBox box(tr("Save turntable"), m_window, m_page);
        Zel3D::PictureOptions options;
        options.progress = box.progress();
        Zel3D::Turntable table(m_page->plot(), options);
        table.setFrames(frames);
        const bool stills = QFileInfo(path).suffix().compare("png", Qt::CaseInsensitive) == 0;
        result = stills ? table.saveFrames(path) : table.saveAnimation(path);
        if (stills)
            path = table.framePath(path, frames);
    }
    tell(result, path);
}

void PictureActions::print()
{
    QPrinter printer(QPrinter::HighResolution);
    const bool wide = m_page->plot().width() > m_page->plot().height();
    printer.setPageOrientation(wide ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintDialog dialog(&printer, &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QString error;
    {
        ProgressBox box(tr("Print"), m_window, m_page);
        Zel3D::PictureOptions options;
        options.progress = box.progress();
        Zel3D::PicturePrinter pages(m_page->plot(), options);
        pages.print(printer);
        error = pages.getError();
    }
    if (!error.isEmpty())
        warn(error);
}

void PictureActions::preview()
{
    const Standstill still(m_window, m_page);
    Zel3D::PicturePrinter pages(m_page->plot());
    pages.preview(&m_window);
    if (!pages.getError().isEmpty())
        warn(pages.getError());
}

void PictureActions::copy()
{
    if (Zel3D::PictureClip::copy(m_page->plot()))
        m_window.statusBar()->showMessage(tr("The picture is on the clipboard."), messageTime);
    else
        warn(tr("The picture cannot be drawn."));
}
