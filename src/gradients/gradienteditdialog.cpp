#include "gradients/gradienteditdialog.h"

#include "gradients/colorbutton.h"
#include "gradients/gradientcolors.h"
#include "gradients/gradientmanager.h"
#include "gradients/gradientpreview.h"
#include "gradients/gradientstopsmodel.h"
#include "gradients/gradientstopswidget.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>

namespace Zel3D {

GradientEditDialog::GradientEditDialog(QWidget* parent)
    : QDialog(parent),
      original(QLinearGradient(0.0, 0.0, 1.0, 0.0)),
      model(new GradientStopsModel(this)),
      stops(new GradientStopsWidget(model, this)),
      position(new QDoubleSpinBox(this)),
      color(new ColorButton(this)),
      hex(new QLineEdit(this)),
      preview(new GradientPreview(this))
{
    setWindowTitle(tr("Edit gradient"));
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel(tr("&Stops"), this);
    label->setBuddy(stops);
    stops->setToolTip(
        tr("Drag a handle to move a stop, with Shift in steps of 5 %; drag it off to remove it.\n"
           "Double click beside the handles to add a stop, on a handle to choose its color.\n"
           "Keys: Up and Down select, Left and Right move (Ctrl: 0.1 %, Shift: 5 %),\n"
           "Insert adds, Delete removes, Return chooses the color."));
    layout->addWidget(label);
    layout->addWidget(stops, 1);
    layout->addWidget(makeFields());
    layout->addLayout(makeTools());
    auto* group = new QGroupBox(tr("Preview"), this);
    auto* groupLayout = new QVBoxLayout(group);
    groupLayout->addWidget(preview);
    layout->addWidget(group);
    layout->addLayout(makeButtons());
    connectFields();
    showStops();
    showHistory();
    stops->setFocus();
}

QWidget* GradientEditDialog::makeFields()
{
    auto* fields = new QWidget(this);
    auto* grid = new QGridLayout(fields);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const QString& text, QWidget* field, const QString& name, const QString& tip,
                         int column) {
        auto* label = new QLabel(text, fields);
        label->setBuddy(field);
        field->setAccessibleName(name);
        field->setToolTip(tip);
        grid->addWidget(label, 0, column);
        grid->addWidget(field, 1, column);
    };
    position->setRange(0.0, 100.0);
    position->setDecimals(2);
    position->setSuffix(tr(" %"));
    // A position half typed would move the stop past others.
    position->setKeyboardTracking(false);
    add(tr("&Position"), position, tr("Position of the stop"), tr("Position of the stop, 0 to 100 %"), 0);
    add(tr("&Color"), color, tr("Color of the stop"),
        tr("Chooses the color of the stop and how opaque it is"), 1);
    add(tr("&Hex"), hex, tr("Color of the stop as a hexadecimal number"),
        tr("Color as #rrggbb or #rrggbbaa, each pair from 00 to ff; aa is 00 where it is transparent"), 2);
    hex->setMaxLength(9);
    hex->setMinimumWidth(hex->fontMetrics().horizontalAdvance("#dddddddd") + hex->fontMetrics().height());
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    return fields;
}

QPushButton* GradientEditDialog::makeTool(const QString& text, const QString& tip)
{
    auto* button = new QPushButton(text, this);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    return button;
}

QLayout* GradientEditDialog::makeTools()
{
    auto* row = new QHBoxLayout;
    QPushButton* add = makeTool(tr("&Add"), tr("Adds a stop half way to the next one"));
    removeButton = makeTool(tr("&Remove"), tr("Removes the stop; one always remains"));
    QPushButton* reverse = makeTool(tr("Re&verse"), tr("Turns the gradient round"));
    QPushButton* distribute = makeTool(tr("&Distribute"), tr("Spreads the stops evenly"));
    QPushButton* snap = makeTool(tr("S&nap"), tr("Moves every stop to the nearest multiple of 5 %"));
    connect(add, &QPushButton::clicked, model, [this] { model->insertAfterCurrent(); });
    connect(removeButton, &QPushButton::clicked, model, [this] { model->remove(model->getCurrent()); });
    connect(reverse, &QPushButton::clicked, model, &GradientStopsModel::reverse);
    connect(distribute, &QPushButton::clicked, model, &GradientStopsModel::distribute);
    connect(snap, &QPushButton::clicked, model, &GradientStopsModel::snap);
    for (QPushButton* button : {add, removeButton, reverse, distribute, snap})
        row->addWidget(button);
    return row;
}

QLayout* GradientEditDialog::makeButtons()
{
    auto* row = new QHBoxLayout;
    undoButton = makeTool(tr("&Undo"), tr("Takes the last change back (Ctrl+Z)"));
    redoButton = makeTool(tr("Red&o"), tr("Makes the change again (Ctrl+Shift+Z)"));
    connect(undoButton, &QPushButton::clicked, model, &GradientStopsModel::undo);
    connect(redoButton, &QPushButton::clicked, model, &GradientStopsModel::redo);
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, model, &GradientStopsModel::undo);
    connect(new QShortcut(QKeySequence::Redo, this), &QShortcut::activated, model, &GradientStopsModel::redo);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &GradientEditDialog::reject);
    row->addWidget(undoButton);
    row->addWidget(redoButton);
    row->addStretch();
    row->addWidget(box);
    return row;
}

void GradientEditDialog::connectFields()
{
    connect(model, &GradientStopsModel::stopsChanged, this, &GradientEditDialog::showStops);
    connect(model, &GradientStopsModel::currentChanged, this, &GradientEditDialog::showCurrent);
    connect(model, &GradientStopsModel::historyChanged, this, &GradientEditDialog::showHistory);
    connect(position, QOverload<double>::of(&QDoubleSpinBox::valueChanged), model,
            [this](double percent) { model->move(model->getCurrent(), percent / 100.0); });
    connect(color, &ColorButton::colorChanged, model,
            [this](const QColor& chosen) { model->setColor(model->getCurrent(), chosen); });
    connect(hex, &QLineEdit::editingFinished, this, &GradientEditDialog::readHex);
    connect(stops, &GradientStopsWidget::colorRequested, color, [this](int index) {
        model->setCurrent(index);
        color->chooseColor();
    });
}

GradientEditDialog* GradientEditDialog::edit(GradientManager& manager, const QString& name, QWidget* parent)
{
    auto* dialog = new GradientEditDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Edit gradient “%1”").arg(name));
    dialog->setGradient(manager.gradients().value(name, QLinearGradient()));
    connect(dialog, &GradientEditDialog::gradientChanged, &manager,
            [&manager, name](const QGradient& gradient) { manager.changeGradient(name, name, gradient); });
    connect(&manager, &GradientManager::gradientRemoved, dialog, [dialog, name](const QString& removed) {
        // What is gone is not put back.
        if (removed == name)
            dialog->done(QDialog::Rejected);
    });
    // It lives on for a moment after it ended.
    connect(dialog, &QDialog::finished, &manager,
            [dialog, &manager] { QObject::disconnect(&manager, nullptr, dialog, nullptr); });
    dialog->open();
    return dialog;
}

void GradientEditDialog::setGradient(const QGradient& gradient)
{
    original = gradient;
    isSetting = true;
    model->setGradient(gradient);
    originalStops = model->getStops();
    isSetting = false;
}

QGradient GradientEditDialog::getGradient() const
{
    return isChanged() ? model->getGradient() : original;
}

bool GradientEditDialog::isChanged() const
{
    return model->getStops() != originalStops;
}

void GradientEditDialog::reject()
{
    if (isChanged())
        emit gradientChanged(original);
    QDialog::reject();
}

void GradientEditDialog::keyPressEvent(QKeyEvent* event)
{
    // In a field Return takes over what was typed and does not close the dialog as well.
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && (focusWidget() == position || focusWidget() == hex))
        return;
    QDialog::keyPressEvent(event);
}

void GradientEditDialog::showStops()
{
    preview->setStops(model->getStops());
    showCurrent();
    if (!isSetting)
        emit gradientChanged(getGradient());
}

void GradientEditDialog::showCurrent()
{
    const int current = model->getCurrent();

    const QSignalBlocker positionBlocker(position);
    const QSignalBlocker colorBlocker(color);
    position->setValue(model->getPosition(current) * 100.0);
    color->setColor(model->getColor(current));
    hex->setText(current >= 0 ? colorText(model->getColor(current)) : QString());
    for (QWidget* field :
         {static_cast<QWidget*>(position), static_cast<QWidget*>(color), static_cast<QWidget*>(hex)})
        field->setEnabled(current >= 0);
    removeButton->setEnabled(model->count() > 1);
}

void GradientEditDialog::showHistory()
{
    undoButton->setEnabled(model->canUndo());
    redoButton->setEnabled(model->canRedo());
}

void GradientEditDialog::readHex()
{
    const QString typed = hex->text().trimmed();
    model->setColor(model->getCurrent(), colorFromText(typed.startsWith('#') ? typed : '#' + typed));
    showCurrent();
}

} // namespace Zel3D
