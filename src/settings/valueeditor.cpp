#include "settings/valueeditor.h"

#include "settings/editors.h"
#include "settings/field.h"
#include "settings/numbereditor.h"

#include <QHBoxLayout>
#include <QKeyEvent>

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

void ValueEditor::guard(const QWidget& root)
{
    for (QWidget* part : root.findChildren<QWidget*>())
        part->installEventFilter(this);
}

bool ValueEditor::eventFilter(QObject* watched, QEvent* event)
{
    const auto* part = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Wheel && part && !part->hasFocus()) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride) {
        // Lines and boxes would keep undo for their texts.
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

int ValueEditor::nextGesture()
{
    static int last = 0;
    return ++last;
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
    case Field::Custom:
        break;
    }
    return new SwitchEditor;
}

} // namespace Zel3D
