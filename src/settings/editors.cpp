#include "settings/editors.h"

#include "gradients/colorbutton.h"
#include "settings/field.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

namespace Zel3D {

SwitchEditor::SwitchEditor(QWidget* parent) : ValueEditor(parent), box(new QCheckBox(this))
{
    connect(box, &QCheckBox::toggled, this, [this](bool on) { emit edited(on, 0); });
    arrange({box});
}

void SwitchEditor::show(const QVariant& value)
{
    const QSignalBlocker quiet(box);
    box->setChecked(value.toBool());
}

QWidget* SwitchEditor::focusTarget()
{
    return box;
}

ChoiceEditor::ChoiceEditor(const Field& field, QWidget* parent)
    : ValueEditor(parent), list(new QComboBox(this))
{
    for (const Field::Offer& offer : field.offers)
        list->addItem(offer.text, offer.value);
    list->setFocusPolicy(Qt::StrongFocus);
    connect(list, QOverload<int>::of(&QComboBox::activated), this,
            [this](int row) { emit edited(list->itemData(row), 0); });
    arrange({list});
}

void ChoiceEditor::show(const QVariant& value)
{
    list->setCurrentIndex(list->findData(value));
}

QWidget* ChoiceEditor::focusTarget()
{
    return list;
}

TextEditor::TextEditor(QWidget* parent) : ValueEditor(parent), line(new QLineEdit(this))
{
    // What is typed between two visits of the line is one gesture.
    connect(line, &QLineEdit::editingFinished, this, [this] { ++gesture; });
    connect(line, &QLineEdit::textEdited, this,
            [this](const QString& text) { emit edited(text, gesture + 1); });
    arrange({line});
}

void TextEditor::show(const QVariant& value)
{
    // Setting an equal text would move the cursor.
    if (line->text() != value.toString())
        line->setText(value.toString());
}

QWidget* TextEditor::focusTarget()
{
    return line;
}

ColorEditor::ColorEditor(QWidget* parent) : ValueEditor(parent), button(new ColorButton(this))
{
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &ColorButton::clicked, this, [this] { gesture = nextGesture(); });
    connect(button, &ColorButton::colorChanged, this, [this](const QColor& color) {
        // A dropped colour is a step of its own.
        const bool choosing = button->findChild<QColorDialog*>();
        emit edited(color, choosing ? gesture : 0);
    });
    arrange({button});
}

void ColorEditor::show(const QVariant& value)
{
    const QSignalBlocker quiet(button);
    button->setColor(value.value<QColor>());
}

QWidget* ColorEditor::focusTarget()
{
    return button;
}

FontEditor::FontEditor(QWidget* parent)
    : ValueEditor(parent),
      family(new QFontComboBox(this)),
      size(new QSpinBox(this)),
      bold(new QToolButton(this)),
      italic(new QToolButton(this))
{
    family->setFocusPolicy(Qt::StrongFocus);
    family->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    family->setMinimumContentsLength(10);
    size->setRange(4, 96);
    size->setSuffix(' ' + tr("pt"));
    size->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    size->setFocusPolicy(Qt::StrongFocus);
    size->setKeyboardTracking(false);
    size->setAccessibleName(tr("Font size"));
    size->setToolTip(tr("Font size, %1 to %2 points").arg(size->minimum()).arg(size->maximum()));
    const auto prepare = [](QToolButton* button, const QString& letter, const QString& name) {
        button->setCheckable(true);
        button->setText(letter);
        button->setToolTip(name);
        button->setAccessibleName(name);
        button->setFocusPolicy(Qt::StrongFocus);
    };
    prepare(bold, tr("B"), tr("Bold"));
    prepare(italic, tr("I"), tr("Italic"));
    QFont look = bold->font();
    look.setBold(true);
    bold->setFont(look);
    look = italic->font();
    look.setItalic(true);
    italic->setFont(look);
    connect(family, &QFontComboBox::currentFontChanged, this, [this](const QFont& chosen) {
        QFont changed = font;
        changed.setFamily(chosen.family());
        send(changed);
    });
    connect(size, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int points) {
        QFont changed = font;
        changed.setPointSize(points);
        send(changed);
    });
    connect(bold, &QToolButton::toggled, this, [this](bool on) {
        QFont changed = font;
        changed.setBold(on);
        send(changed);
    });
    connect(italic, &QToolButton::toggled, this, [this](bool on) {
        QFont changed = font;
        changed.setItalic(on);
        send(changed);
    });
    arrange({family, size, bold, italic});
}

void FontEditor::show(const QVariant& value)
{
    const QFont changed = value.value<QFont>();
    const bool shown = changed == font && size->value() == font.pointSize() &&
                       bold->isChecked() == font.bold() && italic->isChecked() == font.italic() &&
                       family->currentText() == font.family();
    if (shown)
        return;
    font = changed;
    const QSignalBlocker quietFamily(family);
    const QSignalBlocker quietSize(size);
    const QSignalBlocker quietBold(bold);
    const QSignalBlocker quietItalic(italic);
    if (family->currentText() != font.family()) {
        family->setCurrentFont(font);
        // The box knows the installed families only.
        family->setEditText(font.family());
    }
    size->setValue(font.pointSize());
    bold->setChecked(font.bold());
    italic->setChecked(font.italic());
}

QWidget* FontEditor::focusTarget()
{
    return family;
}

void FontEditor::send(const QFont& changed)
{
    if (changed != font)
        emit edited(changed, 0);
}

} // namespace Zel3D
