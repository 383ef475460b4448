#pragma once

#include <QWidget>

namespace Zel3D {

class GradientStopsModel;

/// The stops of a model under a bar with the gradient.
///
/// Mouse: a handle is dragged; with Shift it snaps to multiples of 0.05; dragged far off above or below it is
/// taken out until it comes back; Escape puts it back. A double click on the bar or beside the handles adds a
/// stop, on a handle asks for its colour. Keys: Tab, Up and Down, Home and End select a stop (Tab goes on
/// behind the last one, Ctrl+Tab at once); Left and Right move it by 1 %, with Ctrl by 0.1 %, with Shift to
/// the next multiple of 5 %; Insert adds one half way to the next; Delete removes it; Return asks for its
/// colour.
class Q_DECL_EXPORT GradientStopsWidget : public QWidget
{
    Q_OBJECT
    /// The current stop in words, for people who do not see it.
    Q_PROPERTY(QString valueText READ getValueText)
public:
    /// The model must outlive the widget.
    explicit GradientStopsWidget(GradientStopsModel* stopsModel, QWidget* parent = nullptr);

    QString getValueText() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// The bar, in pixels of the widget: its left edge is position 0, its right edge position 1.
    QRectF barRect() const;
    /// Where the handle of a stop is.
    QRectF handleRect(int index) const;
    /// Index of the stop whose handle is at the point, the current one first; -1 when there is none.
    int handleAt(const QPointF& point) const;

signals:
    /// The person wants to choose another colour for the stop.
    void colorRequested(int index);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    double handleSize() const;
    QVector<int> handleRows() const;
    QRectF handleRect(int index, int row) const;
    double positionAt(double x) const;
    void paintHandle(QPainter& painter, int index, int row) const;
    bool moveByKey(const QKeyEvent& event);
    bool editByKey(int key);
    void showValue();

    GradientStopsModel* model;
    QPointF pressPoint;
    double grabOffset = 0.0;
    bool hasMoved = false;
};

} // namespace Zel3D
