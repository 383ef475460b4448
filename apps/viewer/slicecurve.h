#pragma once

#include "slicedata.h"
#include "sliceruler.h"

#include <QWidget>

#include <optional>

class QPainter;

/// Draws one curve with its axes: gaps where values are missing, a ring at the picked point.
class SliceCurve : public QWidget
{
    Q_OBJECT
public:
    explicit SliceCurve(QWidget* parent = nullptr);

    void setSlice(const SliceData& slice, const QColor& color);
    void clear();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Where the curve stands between its numbers and names.
    QRectF curveArea(const SliceRuler& upwards) const;
    void drawAcross(QPainter& painter, const QRectF& area, const SliceRuler& ruler) const;
    void drawUpwards(QPainter& painter, const QRectF& area, const SliceRuler& ruler) const;
    void drawCurve(QPainter& painter, const QRectF& area, const SliceRuler& across,
                   const SliceRuler& upwards) const;

    std::optional<SliceData> m_slice;
    QColor m_color;
};
