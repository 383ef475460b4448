#pragma once

#include <QLabel>

/// A small picture from which something can be dragged out of the window.
class DragHandle : public QLabel
{
    Q_OBJECT
public:
    explicit DragHandle(QWidget* parent = nullptr);

signals:
    /// The mouse has moved far enough with its left button down; once a press.
    void dragged();
    /// Pressed and let go without a move.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QPoint m_press;
    bool m_pressed = false;
};
