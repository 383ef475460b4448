#pragma once

#include "settings/field.h"

#include <QWidget>

class QGridLayout;
class QHBoxLayout;
class QToolButton;

namespace Zel3D {

class FieldBinder;
class FieldEditor;

/// Fields in rows: a column of labels, a column of editors, and behind a row that differs from its default a
/// button that brings the default back.
class VORANPLOT_EXPORT FieldForm : public QWidget
{
    Q_OBJECT
public:
    /// The fields have been added to the binder.
    FieldForm(const QVector<Field>& fields, FieldBinder& fieldBinder, QWidget* parent = nullptr);

    const QVector<FieldEditor*>& getEditors() const { return editors; }
    /// The width that the labels need, and the width that they get.
    int getLabelWidth() const;
    void setLabelWidth(int pixels);
    /// Brings every editor up to date.
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Row
    {
        QStringList ids;
        QToolButton* reset;
    };

    void addRow(const QVector<Field>& fields);
    QToolButton* makeReset(const QString& name, const QStringList& ids);
    void refreshResets();

    FieldBinder& binder;
    QGridLayout* grid;
    QVector<FieldEditor*> editors;
    QVector<QWidget*> rowLabels;
    QVector<Row> rows;
};

} // namespace Zel3D
