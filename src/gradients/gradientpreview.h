#pragma once

#include <QGradient>
#include <QVector>
#include <QWidget>

class QLabel;

namespace Zel3D {

class GradientStrip;
class LightnessCurve;

/// How a gradient looks to people with normal vision and with the three common deficiencies, how its
/// lightness runs, and a note about that.
class GradientPreview : public QWidget
{
    Q_OBJECT
public:
    explicit GradientPreview(QWidget* parent = nullptr);

    void setStops(const QGradientStops& stops);

private:
    QVector<GradientStrip*> strips;
    LightnessCurve* curve;
    QLabel* note;
};

} // namespace Zel3D
