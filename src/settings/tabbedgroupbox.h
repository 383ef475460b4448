#pragma once

#include "settings/abstractsettingsgroupbox.h"

class QTabWidget;

namespace Zel3D {

class FieldBinder;
class GroupColumn;
struct FieldGroup;

/// Several things of one kind, such as the eight lights: a tab for each, with a box for each of its records.
/// The boxes of a tab are made when it is first shown.
class VORANPLOT_EXPORT TabbedGroupBox : public AbstractSettingsGroupBox
{
    Q_OBJECT
public:
    /// Groups with the same tab follow each other.
    TabbedGroupBox(const QVector<FieldGroup>& groups, FieldBinder& binder, QWidget* parent = nullptr);

    QVector<FieldForm*> getForms() const override;
    void prepare(const QString& id) override;
    void bringToFront(FieldForm* form) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTabWidget* tabs;
    QVector<GroupColumn*> columns;
};

/// Groups that belong together, in their order: those of one tab each.
QVector<QVector<FieldGroup>> groupsByTab(const QVector<FieldGroup>& groups);

} // namespace Zel3D
