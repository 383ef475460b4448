#include "gradients/colorbutton.h"

#include "gradients/gradientcolors.h"
#include "gradients/gradientpainter.h"

#include <QApplication>
#include <QColorDialog>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

namespace Zel3D {

ColorButton::ColorButton(QWidget* parent) : QPushButton(parent)
{
    setAcceptDrops(true);
    setAutoDefault(false);
    describe();
    connect(this, &QPushButton::clicked, this, &ColorButton::chooseColor);
}

void ColorButton::setColor(const QColor& newColor)
{
    if (newColor == color)
        return;
    color = newColor;
    describe();
    update();
    emit colorChanged(color);
}

void ColorButton::describe()
{
    setAccessibleDescription(color.isValid() ? colorText(color) : tr("No color"));
}

QSize ColorButton::sizeHint() const
{
    const int height = fontMetrics().height();
    return {height * 5, height + 10};
}

void ColorButton::chooseColor()
{
    auto* dialog = new QColorDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Choose a color"));
    dialog->setOption(QColorDialog::ShowAlphaChannel, hasAlpha);
    // After the option, without which the dialog drops alpha.
    dialog->setCurrentColor(color.isValid() ? color : QColor(Qt::white));
    const QColor before = color;
    connect(dialog, &QColorDialog::currentColorChanged, this, &ColorButton::setColor);
    connect(dialog, &QColorDialog::rejected, this, [this, before] { setColor(before); });
    dialog->open();
}

void ColorButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const QRectF swatch = QRectF(rect()).adjusted(6.0, 5.0, -6.0, -5.0);
    if (!isEnabled())
        painter.setOpacity(0.35);
    paintColor(painter, swatch, color);
    paintFrame(painter, swatch, *this);
}

void ColorButton::mousePressEvent(QMouseEvent* event)
{
    pressPoint = event->pos();
    QPushButton::mousePressEvent(event);
}

void ColorButton::mouseMoveEvent(QMouseEvent* event)
{
    const int distance = (event->pos() - pressPoint).manhattanLength();
    if (!(event->buttons() & Qt::LeftButton) || !color.isValid() ||
        distance < QApplication::startDragDistance()) {
        QPushButton::mouseMoveEvent(event);
        return;
    }
    setDown(false);
    auto* mime = new QMimeData;
    mime->setColorData(color);
    mime->setText(colorText(color));
    auto* drag = new QDrag(this);
    drag->setMimeData(mime);
    drag->exec(Qt::CopyAction);
}

void ColorButton::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasColor() && event->source() != this)
        event->acceptProposedAction();
}

void ColorButton::dropEvent(QDropEvent* event)
{
    auto dropped = qvariant_cast<QColor>(event->mimeData()->colorData());
    if (!dropped.isValid())
        return;
    if (!hasAlpha)
        dropped.setAlpha(255);
    setColor(dropped);
    event->acceptProposedAction();
}

} // namespace Zel3D
