#pragma once

#include <QGradient>
#include <QWidget>

namespace Zel3D {

/// The lightness along a gradient as a curve, 0 below and 100 above. It takes no focus.
class LightnessCurve : public QWidget
{
    Q_OBJECT
public:
    explicit LightnessCurve(QWidget* parent = nullptr);

    void setStops(const QGradientStops& newStops);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    QGradientStops stops;
};

} // namespace Zel3D
