#include "settings/editors.h"

#include "settings/field.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QEvent>
#include <QFontComboBox>
#include <QLineEdit>
#include <QPainter>
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

ColorEditor::ColorEditor(QWidget* parent) : ValueEditor(parent), button(new QToolButton(this))
{
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, &ColorEditor::choose);
    arrange({button});
    paintSwatch();
}

void ColorEditor::show(const QVariant& value)
{
    const QColor shown = value.value<QColor>();
    if (shown == color)
        return;
    color = shown;
    paintSwatch();
}

QWidget* ColorEditor::focusTarget()
{
    return button;
}

void ColorEditor::changeEvent(QEvent* event)
{
    ValueEditor::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        paintSwatch();
}

void ColorEditor::choose()
{
    const QColor chosen = QColorDialog::getColor(color, this, QString(), QColorDialog::ShowAlphaChannel);
    if (chosen.isValid() && chosen != color)
        emit edited(chosen, 0);
}

void ColorEditor::paintSwatch()
{
    const int height = fontMetrics().height();
    const QSize size(3 * height, height);
    QPixmap swatch(size * devicePixelRatioF());
    swatch.setDevicePixelRatio(devicePixelRatioF());
    swatch.fill(Qt::white);
    QPainter painter(&swatch);
    const QRect area(QPoint(0, 0), size);
    // A transparent colour lies over squares.
    painter.fillRect(area, QBrush(Qt::lightGray, Qt::Dense4Pattern));
    painter.fillRect(area, color);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    painter.end();
    button->setIconSize(size);
    button->setIcon(QIcon(swatch));
    const bool opaque = color.alpha() == 255;
    button->setText(color.isValid() ? color.name(opaque ? QColor::HexRgb : QColor::HexArgb).toUpper()
                                    : tr("None"));
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
