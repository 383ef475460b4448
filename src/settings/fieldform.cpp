#include "settings/fieldform.h"

#include "settings/fieldbinder.h"
#include "settings/fieldeditor.h"
#include "settings/valueeditor.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>

namespace Zel3D {

namespace {

enum Column { LabelColumn, EditorColumn, ResetColumn };

} // namespace

FieldForm::FieldForm(const QVector<Field>& fields, FieldBinder& fieldBinder, QWidget* parent)
    : QWidget(parent), binder(fieldBinder), grid(new QGridLayout(this))
{
    grid->setColumnStretch(EditorColumn, 1);
    grid->setHorizontalSpacing(fontMetrics().averageCharWidth() * 2);
    QVector<Field> together;
    for (const Field& field : fields) {
        if (!together.isEmpty() && (field.row.isEmpty() || field.row != together.constLast().row)) {
            addRow(together);
            together.clear();
        }
        together.append(field);
    }
    if (!together.isEmpty())
        addRow(together);
    connect(&binder, &FieldBinder::changed, this, [this] {
        if (isVisible())
            refreshResets();
    });
    refreshResets();
}

void FieldForm::addRow(const QVector<Field>& fields)
{
    const int row = grid->rowCount();
    auto* line = new QHBoxLayout;
    line->setSpacing(fontMetrics().averageCharWidth());
    QStringList ids;
    QWidget* rowLabel = nullptr;
    if (!fields.first().row.isEmpty())
        rowLabel = new QLabel(fields.first().row, this);
    bool stretches = false;
    for (const Field& field : fields) {
        auto* editor = new FieldEditor(field.id, binder, this);
        editors.append(editor);
        ids.append(field.id);
        if (rowLabel) {
            if (line->count() > 0)
                line->addSpacing(fontMetrics().averageCharWidth());
            line->addWidget(editor->getLabel());
        } else {
            rowLabel = editor->getLabel();
        }
        const bool wide =
            field.slider || field.editor || field.kind == Field::Text || field.kind == Field::Font;
        line->addWidget(editor->getEditor(), wide ? 1 : 0);
        stretches = stretches || wide;
    }
    if (!stretches)
        line->addStretch(1);
    // The label of a list stands at its top.
    const bool tall = editors.last()->getEditor()->sizeHint().height() > 4 * fontMetrics().height();
    grid->addWidget(rowLabel, row, LabelColumn, tall ? Qt::AlignTop : Qt::Alignment());
    grid->addLayout(line, row, EditorColumn);
    rowLabels.append(rowLabel);
    const Field& first = fields.first();
    rows.append({ids, makeReset(first.row.isEmpty() ? first.label : first.row, ids)});
    grid->addWidget(rows.last().reset, row, ResetColumn, tall ? Qt::AlignTop : Qt::Alignment());
}

QToolButton* FieldForm::makeReset(const QString& name, const QStringList& ids)
{
    auto* button = new QToolButton(this);
    button->setText(QStringLiteral("\u21BA"));
    button->setAutoRaise(true);
    button->setAccessibleName(tr("Restore the default of %1").arg(name));
    button->setToolTip(tr("Restore the default"));
    QSizePolicy policy = button->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, [this, ids] { binder.reset(ids); });
    return button;
}

int FieldForm::getLabelWidth() const
{
    int width = 0;
    for (const QWidget* label : rowLabels)
        width = std::max(width, label->sizeHint().width());
    return width;
}

void FieldForm::setLabelWidth(int pixels)
{
    grid->setColumnMinimumWidth(LabelColumn, pixels);
}

void FieldForm::refresh()
{
    for (FieldEditor* editor : qAsConst(editors))
        editor->refresh();
    refreshResets();
}

void FieldForm::showEvent(QShowEvent* event)
{
    refresh();
    QWidget::showEvent(event);
}

void FieldForm::refreshResets()
{
    for (const Row& row : qAsConst(rows)) {
        const bool differs = std::any_of(row.ids.cbegin(), row.ids.cend(), [this](const QString& id) {
            return !binder.isStandard(id) && binder.isEnabled(id);
        });
        row.reset->setVisible(differs);
    }
}

} // namespace Zel3D
