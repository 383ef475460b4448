#include "draghandle.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QStyle>

DragHandle::DragHandle(QWidget* parent) : QLabel(parent)
{
    setObjectName("dragHandle");
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setPixmap(QIcon(":/plot/images/dragpicture.svg").pixmap(side));
    setCursor(Qt::OpenHandCursor);
    setToolTip(tr("Drag the picture from here into another program"));
    setAccessibleName(tr("Drag the picture"));
    setMargin(2);
}

void DragHandle::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->button() == Qt::LeftButton;
    m_press = event->pos();
}

void DragHandle::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_pressed || (event->pos() - m_press).manhattanLength() < QApplication::startDragDistance())
        return;
    m_pressed = false;
    emit dragged();
}

void DragHandle::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    if (m_pressed)
        emit clicked();
    m_pressed = false;
}
