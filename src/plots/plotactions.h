#pragma once

#include "plots/plottypes.h"
#include "scene/furnituretypes.h"

#include <QList>
#include <QMap>
#include <QPointer>
#include <QString>
#include <QToolBar>

#include <array>
#include <memory>

class QAction;
class QActionGroup;
class QMenu;
class QWidget;

namespace Zel3D {

class ShownTexts;
class StyleAction;

/// Makes and holds the tool bars, the actions and the context menu of a plot; what they do is connected by
/// the plot.
///
/// The actions, the style group and the menu are children of the plot. The bars have no parent: the host that
/// places them takes them over and may delete them at any time. Those that nobody took go with this object.
/// Their words follow the language; see ShownTexts.
class PlotActions
{
public:
    /// What one action shows. The label is untranslated and becomes a text; the tip becomes both tips.
    struct Entry
    {
        const char* icon;
        const char* label;
        const char* tip;
    };
    struct GridEntry
    {
        Entry entry;
        Grid face;
    };

    /// In the order of the bars. The icons spell "grig".
    static const std::array<Entry, 6>& viewEntries();
    static const std::array<GridEntry, 6>& gridEntries();
    static const Entry& settingsEntry();

    explicit PlotActions(QWidget& owner);
    ~PlotActions();
    PlotActions(const PlotActions&) = delete;
    PlotActions& operator=(const PlotActions&) = delete;

    /// Null when it was not made or its host has deleted it.
    QToolBar* getToolBar(PlotToolBarType type) const { return bars.value(type); }
    /// Null before createContextMenu().
    QMenu* getContextMenu() const;
    /// Exclusive.
    QActionGroup& getStyleGroup() const { return *styleGroup; }
    /// In the order in which they were added.
    QList<StyleAction*> getStyleActions() const;
    /// In the order of the bar.
    const QList<QAction*>& getGridActions() const { return gridActions; }
    /// The face of a grid action; 0 for an action that is none.
    int faceOf(QAction* action) const { return faces.value(action); }

    StyleAction* addStyleAction(int style, const QString& icon, const QString& label);
    /// Returns the actions in the order of viewEntries().
    QList<QAction*> createViewsToolBar();
    QToolBar* createGridStyleToolBar();
    QToolBar* createPlotStyleToolBar();
    /// A submenu for each bar that has actions, in the order of the bars' kinds, and the settings action,
    /// which is returned.
    QAction* createContextMenu();

    /// Check each grid action by the bits of a grid style, and the action of a plot style. A style without an
    /// action changes nothing.
    void checkFaces(int gridStyle);
    void checkStyle(int style);

private:
    QToolBar* addBar(PlotToolBarType type, const char* title, const QString& name);
    QAction* makeAction(const Entry& entry);

    QWidget& plot;
    std::unique_ptr<ShownTexts> texts;
    QMap<PlotToolBarType, QPointer<QToolBar>> bars;
    QActionGroup* styleGroup;
    QList<QAction*> viewActions;
    QList<QAction*> gridActions;
    QMap<Grid, QAction*> actionsOfFaces;
    QMap<QAction*, Grid> faces;
    QPointer<QMenu> contextMenu;
    QAction* settingsAction = nullptr;
};

} // namespace Zel3D
