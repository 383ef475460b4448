#include "gradients/gradientpreview.h"

#include "gradients/gradientstrip.h"
#include "gradients/lightnesscurve.h"

#include <QGridLayout>
#include <QLabel>

namespace Zel3D {

namespace {

QString explanation(ColorVision::Kind kind)
{
    switch (kind) {
    case ColorVision::Kind::Protanopia:
        return GradientPreview::tr("Without cones for long waves (red), about 1 % of men");
    case ColorVision::Kind::Deuteranopia:
        return GradientPreview::tr("Without cones for middle waves (green), about 1 % of men");
    case ColorVision::Kind::Tritanopia:
        return GradientPreview::tr("Without cones for short waves (blue), rare");
    case ColorVision::Kind::Normal:
        break;
    }
    return GradientPreview::tr("With all three kinds of cones");
}

} // namespace

GradientPreview::GradientPreview(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    for (const auto kind : {ColorVision::Kind::Normal, ColorVision::Kind::Protanopia,
                            ColorVision::Kind::Deuteranopia, ColorVision::Kind::Tritanopia}) {
        const QString name = ColorVision::name(kind);
        auto* strip = new GradientStrip(kind, this);
        strip->setAccessibleName(tr("Preview: %1").arg(name));
        strip->setToolTip(explanation(kind));
        const int row = strips.size();
        grid->addWidget(new QLabel(name, this), row, 0);
        grid->addWidget(strip, row, 1);
        strips.append(strip);
    }
    curve = new LightnessCurve(this);
    curve->setAccessibleName(tr("Lightness"));
    curve->setToolTip(tr("CIE lightness L* along the gradient, 0 at the bottom, 100 at the top"));
    const int row = strips.size();
    grid->addWidget(new QLabel(tr("Lightness"), this), row, 0, Qt::AlignTop);
    grid->addWidget(curve, row, 1);
    note = new QLabel(this);
    note->setWordWrap(true);
    note->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    note->setAccessibleName(tr("Note about the lightness"));
    // Room for long notes, kept free so that nothing moves while the gradient changes.
    note->setMinimumHeight(3 * note->fontMetrics().lineSpacing());
    note->setMinimumWidth(note->fontMetrics().averageCharWidth() * 60);
    grid->addWidget(note, row + 1, 0, 1, 2);
}

void GradientPreview::setStops(const QGradientStops& stops)
{
    for (GradientStrip* strip : qAsConst(strips))
        strip->setStops(stops);
    curve->setStops(stops);
    const QString text = ColorVision::note(ColorVision::lightnessCourse(stops));
    note->setText(text);
    curve->setAccessibleDescription(text);
}

} // namespace Zel3D
