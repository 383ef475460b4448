#include "settings/valueeditor.h"

#include "settings/editors.h"
#include "settings/field.h"
#include "settings/numbereditor.h"

#include <QHBoxLayout>

namespace Zel3D {

ValueEditor::ValueEditor(QWidget* parent) : QWidget(parent) {}

void ValueEditor::arrange(const QList<QWidget*>& parts)
{
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : parts)
        line->addWidget(part);
    setFocusProxy(focusTarget());
}

ValueEditor* ValueEditor::make(const Field& field)
{
    if (field.editor)
        return field.editor(field);
    switch (field.kind) {
    case Field::Integer:
    case Field::Number:
        return new NumberEditor(field);
    case Field::Color:
        return new ColorEditor;
    case Field::Font:
        return new FontEditor;
    case Field::Choice:
        return new ChoiceEditor(field);
    case Field::Text:
        return new TextEditor;
    case Field::Switch:
        break;
    }
    return new SwitchEditor;
}

} // namespace Zel3D
