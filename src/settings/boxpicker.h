#pragma once

#include "core/types.h"

#include <QLineF>
#include <QVector>
#include <QWidget>

namespace Zel3D {

/// A drawing of the coordinate box of which a person picks an edge, with the mouse or with the arrow keys.
class BoxPicker : public QWidget
{
    Q_OBJECT
public:
    explicit BoxPicker(QWidget* parent = nullptr);

    AxisType getPicked() const { return picked; }
    /// Emits nothing.
    void setPicked(AxisType type);
    /// Further edges that are drawn like the picked one.
    void setAlong(const QVector<AxisType>& edges);
    /// Where an edge is drawn, in pixels of the widget.
    QLineF lineOf(AxisType type) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// A person picked an edge.
    void edgePicked(Zel3D::AxisType type);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    QPointF place(const QVector3D& corner) const;
    /// The edge nearest to a point; -1 when none is near.
    int edgeAt(const QPointF& point) const;
    void pick(AxisType type);

    AxisType picked = XFrontBottom;
    QVector<AxisType> along;
    int hovered = -1;
};

/// "X axis, front bottom" and so on.
QString axisName(AxisType type);
/// All axes in the order in which lists show them.
QVector<AxisType> listedAxes();

} // namespace Zel3D
