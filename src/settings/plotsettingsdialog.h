#pragma once

#include "settings/plotsettingsdialogbase.h"

namespace Zel3D {

/// The settings dialog of a plot: the library's pages that the options show, then the host's.
class VORANPLOT_EXPORT PlotSettingsDialog : public PlotSettingsDialogBase
{
    Q_OBJECT
public:
    /// \a options null shows all pages. Page, position and size are kept in the store of organization and
    /// application. The plot must outlive the constructor only.
    PlotSettingsDialog(const SettingsDialogOptions* options, const QString& organizationName,
                       const QString& applicationName, BasePlot* editedPlot, QWidget* parent = nullptr);

    /// The library's pages.
    static QVector<SettingsPageEntry> libraryPages();
    /// The dialog that is open for a plot, or null.
    static PlotSettingsDialog* of(const BasePlot& plot);
    /// Opens the dialog of a plot and returns when it is closed. When one is open already, raises that and
    /// returns at once. The plot may have been deleted on return.
    static void run(BasePlot& plot);
};

} // namespace Zel3D
