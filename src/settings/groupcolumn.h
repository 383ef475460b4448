#pragma once

#include "settings/field.h"

#include <QWidget>

namespace Zel3D {

class FieldBinder;
class FieldForm;

/// The boxes of several groups, one below the other. They are made when they are needed: when the column is
/// shown or one of its settings is looked for.
class GroupColumn : public QWidget
{
    Q_OBJECT
public:
    GroupColumn(const QVector<FieldGroup>& groups, FieldBinder& fieldBinder, QWidget* parent = nullptr);

    const QVector<FieldGroup>& getGroups() const { return groups; }
    bool contains(const QString& id) const;
    /// Makes the boxes unless they are there.
    void build();
    /// None before they are made.
    const QVector<FieldForm*>& getForms() const { return forms; }

signals:
    void built();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QVector<FieldGroup> groups;
    FieldBinder& binder;
    QVector<FieldForm*> forms;
};

} // namespace Zel3D
