#include "settings/gestureedit.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFrame>

#include <algorithm>

namespace Zel3D {

namespace {

constexpr Qt::KeyboardModifiers used =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier | Qt::KeypadModifier;
constexpr int linesHigh = 3;
constexpr int leastLetters = 36;

/// Keys that move or leave; without them the keyboard could not get out of the field.
bool leaves(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab || event.key() == Qt::Key_Escape;
}

} // namespace

GestureEdit::GestureEdit(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    show({});
}

void GestureEdit::show(const Gesture& gesture)
{
    current = gesture;
    setAccessibleName(tr("Gesture"));
    setAccessibleDescription(prompt() + ' ' + current.text());
    setToolTip(prompt());
    update();
}

QString GestureEdit::prompt() const
{
    switch (current.kind) {
    case Gesture::Drag:
        return tr("Click here with the mouse button, holding the modifiers.");
    case Gesture::Key:
        return tr("Click here, then press the key, holding the modifiers.");
    case Gesture::Hover:
        return tr("Click here, holding the modifiers.");
    }
    return {};
}

QSize GestureEdit::sizeHint() const
{
    const int text =
        std::max(fontMetrics().horizontalAdvance(prompt()), fontMetrics().averageCharWidth() * leastLetters);
    return {text + 2 * fontMetrics().height(), fontMetrics().lineSpacing() * linesHigh};
}

void GestureEdit::take(const Gesture& gesture)
{
    if (gesture.isValid())
        emit made(gesture);
}

bool GestureEdit::event(QEvent* event)
{
    // The keys of menus and buttons are meant for this field while it has the keyboard.
    if (event->type() == QEvent::ShortcutOverride && !leaves(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void GestureEdit::keyPressEvent(QKeyEvent* event)
{
    if (leaves(*event) || current.kind == Gesture::Drag) {
        QWidget::keyPressEvent(event);
        return;
    }
    Gesture gesture{current.kind, Qt::NoButton, event->key(), event->modifiers() & used};
    const bool isKey = Gesture{Gesture::Key, Qt::NoButton, event->key(), {}}.isValid();
    if (current.kind == Gesture::Hover)
        gesture.key = 0;
    // A modifier alone is the begin of a gesture.
    if (isKey)
        take(gesture);
}

void GestureEdit::mousePressEvent(QMouseEvent* event)
{
    setFocus(Qt::MouseFocusReason);
    const Qt::KeyboardModifiers held = event->modifiers() & used;
    if (current.kind == Gesture::Drag)
        take({Gesture::Drag, event->buttons(), 0, held});
    else if (current.kind == Gesture::Hover)
        take({Gesture::Hover, Qt::NoButton, 0, held});
}

void GestureEdit::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
}

void GestureEdit::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = 1;
    frame.state |= QStyle::State_Sunken;
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);
    const int half = height() / 2;
    painter.setPen(palette().color(QPalette::Text));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(QRect(0, 0, width(), half), Qt::AlignHCenter | Qt::AlignBottom, current.text());
    painter.setFont(font());
    painter.drawText(QRect(0, half, width(), half), Qt::AlignHCenter | Qt::AlignVCenter, prompt());
}

void GestureEdit::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void GestureEdit::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace Zel3D
