#include "settings/plotsettingsdialog.h"

#include "plots/baseplot.h"
#include "settings/additionspage.h"
#include "settings/axespage.h"
#include "settings/commonpage.h"
#include "settings/gridpage.h"
#include "settings/legendpage.h"
#include "settings/lightingpage.h"
#include "settings/plotstylepage.h"
#include "settings/scalespage.h"
#include "settings/titlepage.h"

#include <QApplication>

namespace Zel3D {

namespace {

template <class Page>
SettingsPageEntry entry(const QString& id, const QString& title)
{
    const QString icon = QString(":/plot/images/page%1.svg").arg(id == "plotstyle" ? QString("style") : id);
    return {id, title, icon, [] { return new Page; }};
}

QVector<SettingsPageEntry> shownPages(const SettingsDialogOptions* options)
{
    QVector<SettingsPageEntry> shown;
    for (const SettingsPageEntry& page : PlotSettingsDialog::libraryPages()) {
        if (!options || options->isPageVisible(page.id))
            shown.append(page);
    }
    if (options)
        shown += options->getPages();
    return shown;
}

} // namespace

PlotSettingsDialog::PlotSettingsDialog(const SettingsDialogOptions* options, const QString& organizationName,
                                       const QString& applicationName, BasePlot* editedPlot, QWidget* parent)
    : PlotSettingsDialogBase(shownPages(options), organizationName, applicationName, editedPlot, parent)
{
}

QVector<SettingsPageEntry> PlotSettingsDialog::libraryPages()
{
    return {
        entry<CommonPage>("common", tr("Common")),
        entry<TitlePage>("title", tr("Title")),
        entry<GridPage>("grid", tr("Grid")),
        entry<AdditionsPage>("additions", tr("Additions")),
        entry<AxesPage>("axes", tr("Axes")),
        entry<ScalesPage>("scales", tr("Scales")),
        entry<LegendPage>("legend", tr("Legend")),
        entry<LightingPage>("lighting", tr("Lighting")),
        entry<PlotStylePage>("plotstyle", tr("Plot style")),
    };
}

PlotSettingsDialog* PlotSettingsDialog::of(const BasePlot& plot)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* dialog = qobject_cast<PlotSettingsDialog*>(widget);
        if (dialog && dialog->isVisible() && dialog->getPlot() == &plot)
            return dialog;
    }
    return nullptr;
}

void PlotSettingsDialog::run(BasePlot& plot)
{
    if (PlotSettingsDialog* open = of(plot)) {
        open->raise();
        open->activateWindow();
        return;
    }
    PlotSettingsDialog dialog(plot.getSettingsDialogOptions(), plot.getOrganization(), plot.getApplication(),
                              &plot, nullptr);
    dialog.setModal(false);
    dialog.exec();
}

} // namespace Zel3D
