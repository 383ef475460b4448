#pragma once

#include "core/export.h"

#include <QObject>

class QLabel;

namespace Zel3D {

class FieldBinder;
class ValueEditor;

/// Label and editor of one field, kept in step with the plot: what a person edits goes to the binder, what
/// changes elsewhere is shown.
class VORANPLOT_EXPORT FieldEditor : public QObject
{
    Q_OBJECT
public:
    /// Label and editor become children of \a parent, which lays them out.
    FieldEditor(const QString& field, FieldBinder& fields, QWidget* parent);

    const QString& getId() const { return id; }
    QLabel* getLabel() const { return label; }
    ValueEditor* getEditor() const { return editor; }

    /// Shows the value of now, and whether it can be edited.
    void refresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void describe(QWidget& widget) const;

    QString id;
    FieldBinder& binder;
    QLabel* label;
    ValueEditor* editor;
};

} // namespace Zel3D
