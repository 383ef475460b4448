#pragma once

#include "core/export.h"
#include "settings/plottemplate.h"

#include <QObject>
#include <QPointer>

class QMenu;
class QUndoStack;

namespace Zel3D {

class BasePlot;

/// The dialogs around templates: a person chooses a file, and is told what was left out or why nothing was
/// done. Folder and file are remembered in the plot's store.
class VORANPLOT_EXPORT TemplateActions : public QObject
{
    Q_OBJECT
public:
    /// Works on \a editedPlot, not owned, over \a dialogParent, which owns the object. With an undo stack an
    /// applied template is one step on it.
    TemplateActions(BasePlot* editedPlot, QWidget* dialogParent, QUndoStack* undoStack = nullptr);

    /// Another plot; null, or one that is deleted, leaves the actions without effect.
    void setPlot(BasePlot* editedPlot);
    /// "Save as template...", "Save with view..." and "Apply template...", owned by \a parent.
    QMenu* makeMenu(QWidget* parent);

    /// Saves under a name and says in a box why that failed.
    bool saveTo(const QString& path, int parts);
    /// Applies a file and says in a box what was left out or why it could not be read.
    bool applyFrom(const QString& path);

public slots:
    /// Ask for the file first.
    void save();
    void saveWithView();
    void apply();

signals:
    /// A template was saved or applied; a sentence for a status bar.
    void done(const QString& sentence);

private:
    void chooseAndSave(int parts);
    QString folderKey() const;
    QString folder() const;
    void rememberFolder(const QString& path) const;
    void tell(const QString& title, const QString& text, const QString& details = {});

    QPointer<BasePlot> plot;
    QWidget* window;
    QUndoStack* undo;
};

} // namespace Zel3D
