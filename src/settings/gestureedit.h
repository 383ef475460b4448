#pragma once

#include "core/export.h"
#include "settings/gesture.h"

#include <QWidget>

namespace Zel3D {

/// A field in which a gesture is made instead of typed: a mouse button or a key, with modifiers. Tab and
/// Escape keep their meaning; whatever else is pressed is taken.
class VORANPLOT_EXPORT GestureEdit : public QWidget
{
    Q_OBJECT
public:
    explicit GestureEdit(QWidget* parent = nullptr);

    /// The kind of gesture that is waited for and the one that holds; nothing is emitted.
    void show(const Gesture& gesture);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// A person made a gesture.
    void made(const Zel3D::Gesture& gesture);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QString prompt() const;
    void take(const Gesture& gesture);

    Gesture current;
};

} // namespace Zel3D

Q_DECLARE_METATYPE(Zel3D::Gesture)
