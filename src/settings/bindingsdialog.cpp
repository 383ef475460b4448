#include "settings/bindingsdialog.h"

#include "settings/gestureedit.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace Zel3D {

namespace {

constexpr int usualLines = 40;
constexpr int leastRows = 6;

} // namespace

BindingsDialog::BindingsDialog(const PlotBindings& shown, QWidget* parent)
    : QDialog(parent),
      model(new BindingsModel(shown, this)),
      table(new QTableView(this)),
      edit(new GestureEdit(this)),
      note(new QLabel(this)),
      swapButton(new QPushButton(tr("S&wap"), this)),
      resetButton(new QPushButton(tr("&Reset"), this))
{
    setWindowTitle(tr("Mouse and keys"));
    table->setModel(model);
    table->setAccessibleName(tr("Actions and their gestures"));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table, 1);
    layout->addWidget(makeEditing());
    layout->addWidget(makeButtons());
    fitTable();
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &BindingsDialog::refresh);
    connect(table, &QTableView::doubleClicked, edit, [this] { edit->setFocus(Qt::OtherFocusReason); });
    connect(model, &BindingsModel::dataChanged, this, &BindingsDialog::refresh);
    connect(edit, &GestureEdit::made, this,
            [this](const Gesture& gesture) { model->setGesture(getCurrentRow(), gesture); });
    setCurrentRow(0);
    table->setFocus();
}

QWidget* BindingsDialog::makeEditing()
{
    auto* box = new QWidget(this);
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* line = new QHBoxLayout;
    line->addWidget(edit, 1);
    auto* column = new QVBoxLayout;
    swapButton->setToolTip(tr("Gives the other action the gesture that this one had"));
    resetButton->setToolTip(tr("Brings the usual gesture of this action back"));
    column->addWidget(swapButton);
    column->addWidget(resetButton);
    line->addLayout(column);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    layout->addLayout(line);
    layout->addWidget(note);
    connect(swapButton, &QPushButton::clicked, this, &BindingsDialog::swapCurrent);
    connect(resetButton, &QPushButton::clicked, this, &BindingsDialog::resetCurrent);
    return box;
}

QWidget* BindingsDialog::makeButtons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    okButton = buttons->button(QDialogButtonBox::Ok);
    const QPushButton* all = buttons->addButton(tr("Reset &all"), QDialogButtonBox::ResetRole);
    connect(all, &QPushButton::clicked, model, &BindingsModel::resetAll);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void BindingsDialog::fitTable()
{
    const int line = fontMetrics().height();
    table->verticalHeader()->setDefaultSectionSize(line * 3 / 2);
    table->resizeColumnToContents(BindingsModel::ActionColumn);
    table->resizeColumnToContents(BindingsModel::GestureColumn);
    for (int column : {BindingsModel::ActionColumn, BindingsModel::GestureColumn})
        table->setColumnWidth(column, table->columnWidth(column) + line);
    table->setMinimumHeight(line * leastRows);
    // One line, so that the dialog does not jump when a note appears.
    note->setMinimumHeight(note->fontMetrics().lineSpacing());
}

QSize BindingsDialog::sizeHint() const
{
    const int line = fontMetrics().height();
    const int columns =
        table->columnWidth(BindingsModel::ActionColumn) + table->columnWidth(BindingsModel::GestureColumn);
    // Room for the longest sentence with its sign.
    int sentence = 0;
    for (const PlotBindings::Action& action : PlotBindings::actions())
        sentence = std::max(sentence, fontMetrics().horizontalAdvance(PlotBindings::sameGesture(action)));
    sentence += 6 * line;
    return QDialog::sizeHint().expandedTo({columns + sentence, line * usualLines});
}

int BindingsDialog::getCurrentRow() const
{
    return table->currentIndex().row();
}

void BindingsDialog::setCurrentRow(int row)
{
    table->selectRow(row);
}

void BindingsDialog::refresh()
{
    const int row = getCurrentRow();
    if (row < 0)
        return;
    edit->show(model->getBindings().gesture(row));
    note->setText(model->clash(row));
    swapButton->setEnabled(model->canSwap(row));
    resetButton->setEnabled(!model->getBindings().isStandard(row));
    okButton->setEnabled(!model->hasClash());
    okButton->setToolTip(model->hasClash() ? tr("Some gestures clash.") : QString());
}

void BindingsDialog::resetCurrent()
{
    model->reset(getCurrentRow());
}

void BindingsDialog::swapCurrent()
{
    model->swap(getCurrentRow());
}

void BindingsDialog::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if ((enter || event->key() == Qt::Key_F2) && table->hasFocus()) {
        edit->setFocus(Qt::OtherFocusReason);
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace Zel3D
