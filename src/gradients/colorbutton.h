#pragma once

#include <QColor>
#include <QPoint>
#include <QPushButton>

class QColorDialog;

namespace Zel3D {

/// A button that shows a colour, over a checkerboard where it is transparent, and lets people choose another.
///
/// Colours can be dragged from it and dropped on it.
class Q_DECL_EXPORT ColorButton : public QPushButton
{
    Q_OBJECT
public:
    explicit ColorButton(QWidget* parent = nullptr);

    QColor getColor() const { return color; }
    /// Invalid colours and colours with alpha where alpha is off are taken as they are. Emits colorChanged()
    /// if the colour differs.
    void setColor(const QColor& newColor);
    /// Whether the dialog offers alpha; on from the beginning.
    bool isAlphaEnabled() const { return hasAlpha; }
    void setAlphaEnabled(bool on) { hasAlpha = on; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

public slots:
    /// Opens the colour dialog, which the button follows live; cancelling puts the old colour back.
    void chooseColor();

signals:
    void colorChanged(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void describe();

    QColor color;
    bool hasAlpha = true;
    QPoint pressPoint;
};

} // namespace Zel3D
