#include "plots/preview.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

/// Milliseconds of a preview that is aimed at: what is drawn besides the nodes takes time as well.
constexpr double aim = 25.0;
constexpr int lightBackground = 128;

} // namespace

void FrameTimes::add(double milliseconds)
{
    before = fresh || guessed ? milliseconds : last;
    last = milliseconds;
    guessed = fresh;
    fresh = false;
    if (guessed)
        last = before = 0.5 * milliseconds;
}

double FrameTimes::full() const
{
    return std::min(last, before);
}

int Preview::stepFor(double fullFrame, int coarsest)
{
    if (!(fullFrame > slowFrame) || coarsest < 2)
        return 1;
    return std::clamp(int(std::ceil(std::sqrt(fullFrame / aim))), 2, coarsest);
}

Preview::Preview()
{
    Title::Settings& settings = mark.getSettings();
    settings.setText(QCoreApplication::translate("Preview", "Preview"));
    settings.setFont(QFont("Sans Serif", 9));
    mark.setRelativePosition(QPointF(0.01, 0.015));
}

void Preview::drawMark(const QColor& background, double pixelRatio)
{
    const bool light = qGray(background.rgb()) > lightBackground;
    mark.getSettings().setColor(light ? QColor(70, 70, 70) : QColor(200, 200, 200));
    mark.setPixelRatio(pixelRatio);
    mark.draw();
}

} // namespace Zel3D
