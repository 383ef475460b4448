#pragma once

#include "settings/valueeditor.h"

#include <QFont>

class QCheckBox;
class QComboBox;
class QFontComboBox;
class QLineEdit;
class QSpinBox;
class QToolButton;

// The editors of the simple kinds of values, a few lines each.

namespace Zel3D {

class ColorButton;

class SwitchEditor : public ValueEditor
{
    Q_OBJECT
public:
    explicit SwitchEditor(QWidget* parent = nullptr);
    void show(const QVariant& value) override;
    QWidget* focusTarget() override;

private:
    QCheckBox* box;
};

/// A list to choose from.
class ChoiceEditor : public ValueEditor
{
    Q_OBJECT
public:
    explicit ChoiceEditor(const Field& field, QWidget* parent = nullptr);
    /// A value that is not offered leaves the list without a current entry.
    void show(const QVariant& value) override;
    QWidget* focusTarget() override;

private:
    QComboBox* list;
};

class TextEditor : public ValueEditor
{
    Q_OBJECT
public:
    explicit TextEditor(QWidget* parent = nullptr);
    void show(const QVariant& value) override;
    QWidget* focusTarget() override;

private:
    QLineEdit* line;
    int gesture = 0;
};

/// A button that shows a colour and opens the colour dialog, alpha included. What is chosen in one visit of
/// the dialog is one gesture.
class ColorEditor : public ValueEditor
{
    Q_OBJECT
public:
    explicit ColorEditor(QWidget* parent = nullptr);
    void show(const QVariant& value) override;
    QWidget* focusTarget() override;

private:
    ColorButton* button;
    int gesture = 0;
};

/// Family, size, bold and italic of a font.
class FontEditor : public ValueEditor
{
    Q_OBJECT
public:
    explicit FontEditor(QWidget* parent = nullptr);
    void show(const QVariant& value) override;
    QWidget* focusTarget() override;

private:
    void send(const QFont& changed);

    QFontComboBox* family;
    QSpinBox* size;
    QToolButton* bold;
    QToolButton* italic;
    QFont font;
};

} // namespace Zel3D
