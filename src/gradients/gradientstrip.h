#pragma once

#include "gradients/colorvision.h"

#include <QGradient>
#include <QWidget>

namespace Zel3D {

/// A strip with a gradient as normal or colour-blind people see it. It takes no focus.
class GradientStrip : public QWidget
{
    Q_OBJECT
public:
    explicit GradientStrip(ColorVision::Kind kind, QWidget* parent = nullptr);

    void setStops(const QGradientStops& newStops);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent*) override;

private:
    ColorVision::Kind kind;
    QGradientStops stops;
};

} // namespace Zel3D
