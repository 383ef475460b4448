#pragma once

#include "settings/field.h"

#include <QWidget>

namespace Zel3D {

class AbstractSettingsGroupBox;
class BasePlot;
class FieldBinder;
class FieldEditor;

/// A page of the settings dialog. A page says only what it edits; boxes, editors, undo, search and defaults
/// come from that.
class VORANPLOT_EXPORT AbstractSettingsPage : public QWidget
{
    Q_OBJECT
public:
    explicit AbstractSettingsPage(QWidget* parent = nullptr);

    /// The groups of fields of a plot, from top to bottom. Called for the plot that is edited, and once for a
    /// plot as it is constructed, whose values are the defaults. The fields' functions may keep references to
    /// the plot and its parts.
    virtual QVector<FieldGroup> describe(BasePlot& plot) const = 0;

    /// Adds the fields to the binder and makes the boxes; called once, by the dialog.
    void build(FieldBinder& binder, BasePlot& untouched);

    const QVector<FieldGroup>& getGroups() const { return described; }
    const QVector<AbstractSettingsGroupBox*>& getBoxes() const { return boxes; }
    QVector<FieldEditor*> getEditors() const;
    QStringList getIds() const;
    /// Reads every visible value again.
    void refresh();
    /// The editor of a field, in front of its box; null when the page has none.
    FieldEditor* reveal(const QString& id);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    /// The box of groups with tabs.
    virtual AbstractSettingsGroupBox* makeTabs(const QVector<FieldGroup>& groups, FieldBinder& binder);

private:
    void addBoxes(FieldBinder& binder);
    void alignLabels();

    QVector<FieldGroup> described;
    QVector<AbstractSettingsGroupBox*> boxes;
};

} // namespace Zel3D
