#pragma once

#include "settings/abstractsettingsgroupbox.h"

class QTabWidget;

namespace Zel3D {

class FieldBinder;
struct FieldGroup;

/// Several things of one kind, such as the eight lights: a tab for each, with a box for each of its records.
class VORANPLOT_EXPORT TabbedGroupBox : public AbstractSettingsGroupBox
{
    Q_OBJECT
public:
    /// Groups with the same tab follow each other.
    TabbedGroupBox(const QVector<FieldGroup>& groups, FieldBinder& binder, QWidget* parent = nullptr);

    QVector<FieldForm*> getForms() const override { return forms; }
    void bringToFront(FieldForm* form) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTabWidget* tabs;
    QVector<FieldForm*> forms;
};

} // namespace Zel3D
