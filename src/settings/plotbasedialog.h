#pragma once

#include "core/export.h"

#include <QDialog>

namespace Zel3D {

class BasePlot;

/// A dialog about one plot. The plot stays usable while it is open. It remembers position and size under
/// "%0/settingDialog/posX", "posY", "width" and "height" (%0 = the plot's object name), never opens outside
/// the screen and closes itself, rejected, when its plot is deleted.
class VORANPLOT_EXPORT PlotBaseDialog : public QDialog
{
    Q_OBJECT
public:
    PlotBaseDialog(const QString& organizationName, const QString& applicationName, BasePlot* editedPlot,
                   QWidget* parent = nullptr);

    /// Null once the plot has been deleted.
    BasePlot* getPlot() const { return plot; }
    /// The rectangle of \a wanted's size, at most that of the screen, which lies on the screen and is nearest
    /// to it.
    static QRect fitted(const QRect& wanted, const QRect& screen);

public slots:
    /// Shows the dialog without blocking any window and returns when it is closed: one of
    /// QDialog::DialogCode. The plot may be gone by then.
    int exec() override;
    void done(int result) override;

protected:
    void showEvent(QShowEvent* event) override;
    /// Called when the plot is being deleted; its parts are gone already.
    virtual void plotDeleted();
    /// The full key of a setting of the dialog.
    QString storeKey(const QString& name) const;
    const QString& getOrganization() const { return organization; }
    const QString& getApplication() const { return application; }

private:
    void restorePlace();
    void savePlace() const;

    QString organization;
    QString application;
    QString prefix;
    BasePlot* plot;
    bool placed = false;
};

} // namespace Zel3D
