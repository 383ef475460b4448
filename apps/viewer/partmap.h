#pragma once

#include "gridpart.h"

#include <QImage>
#include <QWidget>

/// A picture of a grid from above, on which a rectangle is dragged. Pressing inside the rectangle moves it,
/// elsewhere it begins a new one. Rectangles are in fractions of the picture from its lower left corner.
class PartMap : public QWidget
{
    Q_OBJECT
public:
    explicit PartMap(const QImage& picture, QWidget* parent = nullptr);

    /// Shows a rectangle, without a signal.
    void setPart(const GridRange& fractions);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The person drags the rectangle.
    void dragged(const GridRange& fractions);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// Where the picture is drawn: as large as it fits with its proportions.
    QRectF area() const;
    QRectF drawnPart() const;
    QPointF fractionAt(const QPointF& place) const;
    void showCursor(const QPointF& place);
    void dragTo(const QPointF& fraction);

    QImage m_picture;
    GridRange m_part{0.0, 1.0, 0.0, 1.0};
    QPointF m_start; ///< of the drag, a fraction
    GridRange m_startPart;
    bool m_dragging = false;
    bool m_moving = false;
};
