#include "gradients/gradientstopswidget.h"

#include "gradients/gradientcolors.h"
#include "gradients/gradientpainter.h"
#include "gradients/gradientstopsmodel.h"
#include "gradients/stopsaccessible.h"

#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

constexpr double frame = 4.0;         // room for the focus ring
constexpr double dragThreshold = 3.0; // pixels before a press becomes a drag

} // namespace

GradientStopsWidget::GradientStopsWidget(GradientStopsModel* stopsModel, QWidget* parent)
    : QWidget(parent), model(stopsModel)
{
    StopsAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setAccessibleName(tr("Stops of the gradient"));
    connect(model, &GradientStopsModel::stopsChanged, this, &GradientStopsWidget::showValue);
    connect(model, &GradientStopsModel::currentChanged, this, &GradientStopsWidget::showValue);
}

QString GradientStopsWidget::getValueText() const
{
    const int current = model->getCurrent();
    if (current < 0)
        return tr("No stops");
    return tr("Stop %1 of %2 at %3 %, color %4")
        .arg(current + 1)
        .arg(model->count())
        .arg(model->getPosition(current) * 100.0, 0, 'f', 2)
        .arg(colorText(model->getColor(current)));
}

QSize GradientStopsWidget::sizeHint() const
{
    return {fontMetrics().height() * 26, qRound(handleSize() * 4.8 + 2 * frame)};
}

QSize GradientStopsWidget::minimumSizeHint() const
{
    return {fontMetrics().height() * 12, qRound(handleSize() * 4.0 + 2 * frame)};
}

double GradientStopsWidget::handleSize() const
{
    // Even, so that the tip stands between two pixels as the position does.
    return 2.0 * std::max(6, qRound(fontMetrics().height() * 0.5));
}

QRectF GradientStopsWidget::barRect() const
{
    const double side = handleSize() / 2.0 + frame;
    const double below = 2.3 * handleSize() + frame;
    return {side, frame, std::max(1.0, width() - 2.0 * side), std::max(1.0, height() - frame - below)};
}

double GradientStopsWidget::positionAt(double x) const
{
    return qBound(0.0, (x - barRect().left()) / barRect().width(), 1.0);
}

QVector<int> GradientStopsWidget::handleRows() const
{
    // A handle that would cover the one before goes to the second row.
    QVector<int> rows;
    double right[2] = {-1e9, -1e9};
    for (int i = 0; i < model->count(); ++i) {
        const double x = model->getPosition(i) * barRect().width();
        const double left = x - handleSize() / 2.0;
        const int row = left >= right[0] || right[0] <= right[1] ? 0 : 1;
        right[row] = x + handleSize() / 2.0;
        rows.append(row);
    }
    return rows;
}

QRectF GradientStopsWidget::handleRect(int index, int row) const
{
    const QRectF bar = barRect();
    const double size = handleSize();
    const double x = std::round(bar.left() + model->getPosition(index) * bar.width());
    return {x - size / 2.0, bar.bottom() + 1.0 + row * size * 1.15, size, size * 1.1};
}

QRectF GradientStopsWidget::handleRect(int index) const
{
    return index >= 0 && index < model->count() ? handleRect(index, handleRows()[index]) : QRectF();
}

int GradientStopsWidget::handleAt(const QPointF& point) const
{
    const int current = model->getCurrent();
    if (handleRect(current).contains(point))
        return current;
    const QVector<int> rows = handleRows();
    for (int i = model->count() - 1; i >= 0; --i) { // later ones lie above
        if (handleRect(i, rows[i]).contains(point))
            return i;
    }
    return -1;
}

void GradientStopsWidget::showValue()
{
    update();
    StopsAccessible::valueChanged(*this);
}

bool GradientStopsWidget::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int index = handleAt(help->pos());
    const QString text = index < 0 ? toolTip()
                                   : tr("%1 %, %2")
                                         .arg(model->getPosition(index) * 100.0, 0, 'f', 2)
                                         .arg(colorText(model->getColor(index)));
    QToolTip::showText(help->globalPos(), text, this);
    return true;
}

void GradientStopsWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRectF bar = barRect();
    paintStops(painter, bar, model->getStops());
    paintFrame(painter, bar, *this);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
        painter.drawRoundedRect(bar.adjusted(-2.0, -2.0, 2.0, 2.0), 2.0, 2.0);
    }
    const QVector<int> rows = handleRows();
    const int current = model->getCurrent();
    for (int i = 0; i < rows.size(); ++i) {
        if (i != current)
            paintHandle(painter, i, rows[i]);
    }
    if (current >= 0)
        paintHandle(painter, current, rows[current]);
}

void GradientStopsWidget::paintHandle(QPainter& painter, int index, int row) const
{
    const QRectF rect = handleRect(index, row);
    const double roof = rect.height() * 0.3;
    const double middle = rect.center().x();
    const bool isCurrent = index == model->getCurrent();
    const QColor ink = palette().color(QPalette::WindowText);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1.0));
    if (row > 0)
        painter.drawLine(QPointF(middle, barRect().bottom()), QPointF(middle, rect.top()));
    QPainterPath house(QPointF(middle, rect.top()));
    house.lineTo(rect.right() - 0.5, rect.top() + roof);
    house.lineTo(rect.right() - 0.5, rect.bottom() - 0.5);
    house.lineTo(rect.left() + 0.5, rect.bottom() - 0.5);
    house.lineTo(rect.left() + 0.5, rect.top() + roof);
    house.closeSubpath();
    painter.setPen(QPen(ink, isCurrent ? 1.6 : 1.0));
    painter.setBrush(palette().color(isCurrent ? QPalette::Highlight : QPalette::Base));
    painter.drawPath(house);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const double inset = isCurrent ? 3.0 : 2.0;
    paintColor(painter,
               QRectF(QPointF(rect.left() + inset, std::round(rect.top() + roof)),
                      QPointF(rect.right() - inset, rect.bottom() - inset)),
               model->getColor(index));
}

void GradientStopsWidget::mousePressEvent(QMouseEvent* event)
{
    const int index = handleAt(event->localPos());
    if (event->button() != Qt::LeftButton || index < 0)
        return;
    pressPoint = event->localPos();
    grabOffset = pressPoint.x() - barRect().left() - model->getPosition(index) * barRect().width();
    hasMoved = false;
    model->beginDrag(index);
}

void GradientStopsWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!model->isDragging() || !(event->buttons() & Qt::LeftButton))
        return;
    hasMoved = hasMoved || (event->localPos() - pressPoint).manhattanLength() >= dragThreshold;
    if (!hasMoved)
        return;
    const double y = event->localPos().y();
    if (y < -handleSize() || y > height() + handleSize()) {
        model->dragOff();
        return;
    }
    const double position = positionAt(event->localPos().x() - grabOffset);
    model->drag(event->modifiers() & Qt::ShiftModifier ? GradientStopsModel::snapped(position) : position);
}

void GradientStopsWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        model->endDrag();
}

void GradientStopsWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int index = handleAt(event->localPos());
    if (index >= 0) {
        emit colorRequested(index);
        return;
    }
    const double position = positionAt(event->localPos().x());
    model->insert(event->modifiers() & Qt::ShiftModifier ? GradientStopsModel::snapped(position) : position);
}

void GradientStopsWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && model->isDragging())
        model->cancelDrag();
    else if (event->key() == Qt::Key_Tab && event->modifiers() & Qt::ControlModifier)
        QWidget::focusNextPrevChild(true);
    else if (event->key() == Qt::Key_Backtab && event->modifiers() & Qt::ControlModifier)
        QWidget::focusNextPrevChild(false);
    else if (!moveByKey(*event) && !editByKey(event->key()))
        QWidget::keyPressEvent(event);
}

bool GradientStopsWidget::moveByKey(const QKeyEvent& event)
{
    const int direction = event.key() == Qt::Key_Right ? 1 : event.key() == Qt::Key_Left ? -1 : 0;
    const int current = model->getCurrent();
    if (direction == 0 || current < 0)
        return false;
    const double position = model->getPosition(current);
    const bool isCoarse = event.modifiers() & Qt::ShiftModifier;
    // Steps are counted in whole numbers, so that many of them add up exactly.
    const double count = isCoarse ? 20.0 : event.modifiers() & Qt::ControlModifier ? 1000.0 : 100.0;
    const double steps = position * count;
    double next = (steps + direction) / count;
    if (isCoarse)
        next = (direction > 0 ? std::floor(steps + 1e-6) + 1.0 : std::ceil(steps - 1e-6) - 1.0) / count;
    model->move(current, std::round(next * 1e9) / 1e9);
    return true;
}

bool GradientStopsWidget::editByKey(int key)
{
    const int current = model->getCurrent();
    switch (key) {
    case Qt::Key_Up:
        model->setCurrent(current - 1);
        return true;
    case Qt::Key_Down:
        model->setCurrent(current + 1);
        return true;
    case Qt::Key_Home:
        model->setCurrent(0);
        return true;
    case Qt::Key_End:
        model->setCurrent(model->count() - 1);
        return true;
    case Qt::Key_Insert:
        model->insertAfterCurrent();
        return true;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        model->remove(current);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current >= 0)
            emit colorRequested(current);
        return true;
    default:
        return false;
    }
}

void GradientStopsWidget::focusInEvent(QFocusEvent* event)
{
    if (event->reason() == Qt::TabFocusReason)
        model->setCurrent(0);
    else if (event->reason() == Qt::BacktabFocusReason)
        model->setCurrent(model->count() - 1);
    QWidget::focusInEvent(event);
}

bool GradientStopsWidget::focusNextPrevChild(bool next)
{
    const int target = model->getCurrent() + (next ? 1 : -1);
    if (target < 0 || target >= model->count())
        return QWidget::focusNextPrevChild(next);
    model->setCurrent(target);
    return true;
}

} // namespace Zel3D
