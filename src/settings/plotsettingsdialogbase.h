#pragma once

#include "plots/settingsdialogoptions.h"
#include "settings/fieldbinder.h"
#include "settings/plotbasedialog.h"
#include "settings/settingssearch.h"

class QBoxLayout;
class QCompleter;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QStackedWidget;

namespace Zel3D {

class AbstractSettingsPage;
class PageList;

/// A dialog that edits a plot on pages: a list of the pages, a search for single settings, undo, and buttons
/// to keep, drop or reset what was edited. Edits show in the plot at once. OK and Apply save the plot's
/// settings; Cancel takes the plot back to what it was at the opening or the last Apply.
class VORANPLOT_EXPORT PlotSettingsDialogBase : public PlotBaseDialog
{
    Q_OBJECT
public:
    /// Builds the pages in the order of the list.
    PlotSettingsDialogBase(const QVector<SettingsPageEntry>& entries, const QString& organizationName,
                           const QString& applicationName, BasePlot* editedPlot, QWidget* parent = nullptr);
    ~PlotSettingsDialogBase() override;

    QSize sizeHint() const override;

    FieldBinder& getBinder() { return binder; }
    const QVector<AbstractSettingsPage*>& getPages() const { return pages; }
    int getCurrentRow() const;
    /// Rows outside the list are ignored.
    void setCurrentRow(int row);
    /// Shows a setting on its page and gives it the keyboard. False for an unknown one.
    bool goTo(const QString& id);

public slots:
    void accept() override;
    void reject() override;
    void done(int result) override;
    /// Saves; from now on Cancel returns to the values of now.
    void apply();
    void restorePageDefaults();
    void restoreAllDefaults();

protected:
    void plotDeleted() override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildPages(const QVector<SettingsPageEntry>& entries);
    void addSearchEntries(const QString& title, int page);
    QWidget* makeSide();
    QWidget* makeHead();
    QWidget* makeButtons();
    void fitSide();
    /// Of the dialog: what all pages want beside the list with its titles.
    int getFullWidth() const;
    /// Where there is less width, the list keeps to its icons and the search moves beside the title.
    void narrow();
    void search(const QString& typed);
    void goToResult(const QString& path);
    void completeTyping();
    void updateButtons();

    FieldBinder binder;
    QVector<AbstractSettingsPage*> pages;
    QVector<QScrollArea*> areas;
    QVector<SearchEntry> searchEntries;
    QLineEdit* searchLine;
    QCompleter* results;
    PageList* list;
    QLabel* title;
    QStackedWidget* stack;
    QBoxLayout* sideColumn = nullptr;
    QBoxLayout* headLine = nullptr;
    QPushButton* applyButton = nullptr;
    QPushButton* restoreButton = nullptr;
};

} // namespace Zel3D
