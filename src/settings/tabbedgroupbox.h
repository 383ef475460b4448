#pragma once

#include "settings/abstractsettingsgroupbox.h"

class QTabWidget;

namespace Zel3D {

class FieldBinder;
struct FieldGroup;

/// The box of several records of one kind, such as the axes of three directions: a tab for each.
class VORANPLOT_EXPORT TabbedGroupBox : public AbstractSettingsGroupBox
{
    Q_OBJECT
public:
    /// The groups have one title.
    TabbedGroupBox(const QVector<FieldGroup>& groups, FieldBinder& binder, QWidget* parent = nullptr);

    QVector<FieldForm*> getForms() const override { return forms; }
    void bringToFront(FieldForm* form) override;

private:
    QTabWidget* tabs;
    QVector<FieldForm*> forms;
};

} // namespace Zel3D
