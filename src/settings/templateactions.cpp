#include "settings/templateactions.h"

#include "plots/baseplot.h"
#include "settings/templateedit.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QUndoStack>

namespace Zel3D {

namespace {

/// More would make the box higher than the screen; the details hold all.
constexpr int mostShown = 8;

QString filter()
{
    return TemplateActions::tr("Plot templates (*.%1);;All files (*)").arg(PlotTemplate::suffix);
}

} // namespace

TemplateActions::TemplateActions(BasePlot* editedPlot, QWidget* dialogParent, QUndoStack* undoStack)
    : QObject(dialogParent), plot(editedPlot), window(dialogParent), undo(undoStack)
{
}

void TemplateActions::setPlot(BasePlot* editedPlot)
{
    plot = editedPlot;
}

QMenu* TemplateActions::makeMenu(QWidget* parent)
{
    auto* menu = new QMenu(tr("&Template"), parent);
    menu->addAction(tr("&Save as template..."), this, &TemplateActions::save)
        ->setStatusTip(tr("Keep the appearance of the plot in a file"));
    menu->addAction(tr("Save with &view..."), this, &TemplateActions::saveWithView)
        ->setStatusTip(tr("Keep the appearance, rotation, shift, scale and zoom of the plot in a file"));
    menu->addAction(tr("&Apply template..."), this, &TemplateActions::apply)
        ->setStatusTip(tr("Give the plot the appearance that a file holds"));
    return menu;
}

QString TemplateActions::folderKey() const
{
    return QString("%0/settingDialog/templateFolder").arg(plot->objectName());
}

QString TemplateActions::folder() const
{
    return QSettings(plot->getOrganization(), plot->getApplication()).value(folderKey()).toString();
}

void TemplateActions::rememberFolder(const QString& path) const
{
    QSettings(plot->getOrganization(), plot->getApplication())
        .setValue(folderKey(), QFileInfo(path).absolutePath());
}

void TemplateActions::save()
{
    chooseAndSave(PlotTemplate::Appearance);
}

void TemplateActions::saveWithView()
{
    chooseAndSave(PlotTemplate::Appearance | PlotTemplate::View);
}

void TemplateActions::chooseAndSave(int parts)
{
    if (!plot)
        return;
    QFileDialog dialog(window, tr("Save as template"), folder(), filter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(PlotTemplate::suffix);
    if (dialog.exec() == QDialog::Accepted)
        saveTo(dialog.selectedFiles().value(0), parts);
}

void TemplateActions::apply()
{
    if (!plot)
        return;
    const QString path = QFileDialog::getOpenFileName(window, tr("Apply template"), folder(), filter());
    if (!path.isEmpty())
        applyFrom(path);
}

bool TemplateActions::saveTo(const QString& path, int parts)
{
    QString error;
    if (!plot)
        return false;
    if (!PlotTemplate::of(*plot, parts).save(path, &error)) {
        tell(tr("Save as template"), error);
        return false;
    }
    rememberFolder(path);
    emit done(tr("Saved %1").arg(path));
    return true;
}

bool TemplateActions::applyFrom(const QString& path)
{
    PlotTemplate look;
    QString error;
    if (!plot)
        return false;
    if (!look.load(path, &error)) {
        tell(tr("Apply template"), error);
        return false;
    }
    rememberFolder(path);
    PlotTemplate::Report report;
    if (undo) {
        auto* edit = new TemplateEdit(*plot, look);
        undo->push(edit);
        report = edit->getReport();
    } else {
        report = look.applyTo(*plot);
    }
    emit done(tr("Applied %1").arg(path));
    if (!report.skipped.isEmpty()) {
        PlotTemplate::Report shown = report;
        shown.skipped = report.skipped.mid(0, mostShown);
        QString text = shown.text();
        if (report.skipped.size() > mostShown)
            text += '\n' + tr("%1 more in the details.").arg(report.skipped.size() - mostShown);
        text.replace('\n', QStringLiteral("\n\u2022 "));
        tell(tr("Apply template"), text, report.skipped.size() > mostShown ? report.text() : QString());
    }
    return true;
}

void TemplateActions::tell(const QString& title, const QString& text, const QString& details)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Ok, window);
    // A file's words are no markup.
    box.setTextFormat(Qt::PlainText);
    box.setDetailedText(details);
    box.exec();
}

} // namespace Zel3D
