#include "plots/look.h"

#include "plots/baseplot.h"
#include "scene/coordinatesystem.h"
#include "scene/legend.h"
#include "scene/title.h"

#include <QCoreApplication>

namespace Zel3D {

namespace {

constexpr int axisCount = 12;

QLinearGradient evenGradient(const QList<QColor>& colors)
{
    QLinearGradient gradient;
    for (int i = 0; i < colors.size(); ++i)
        gradient.setColorAt(double(i) / (colors.size() - 1), colors.at(i));
    return gradient;
}

/// From dark blue over green to yellow; lightness rises evenly, so that it reads in grey too.
QLinearGradient blueToYellow()
{
    return evenGradient({QColor(52, 38, 112), QColor(58, 90, 150), QColor(38, 138, 141), QColor(76, 182, 120),
                         QColor(170, 216, 84), QColor(248, 230, 90)});
}

void dress(Axis& axis, const Look& look)
{
    Axis::Settings& settings = axis.getSettings();
    settings.getLine().setVisible(true);
    settings.getLine().setColor(look.ink);
    axis.setLineWidth(look.lineWidth, 0.9, 0.6);
    settings.getTics().setVisible(true);
    settings.getNumbers().setVisible(true);
    settings.getNumbers().setColor(look.ink);
    settings.getNumbers().setFont(look.numberFont);
    axis.getLabel().getSettings().setColor(look.ink);
    axis.getLabel().getSettings().setFont(look.nameFont);
    axis.getArrow().setVisible(look.arrows);
    axis.getArrow().getSettings().setColor(look.ink);
}

} // namespace

Look Look::light()
{
    Look look;
    look.name = QT_TRANSLATE_NOOP("Look", "Light");
    look.background = Qt::white;
    look.ink = QColor(40, 40, 40);
    look.gridColor = QColor(200, 204, 210);
    look.meshColor = QColor(30, 30, 30, 170);
    look.gridStyle = GridBack | GridBottom;
    look.titleFont = QFont("Sans Serif", 13, QFont::DemiBold);
    look.nameFont = QFont("Sans Serif", 10);
    look.numberFont = QFont("Sans Serif", 9);
    look.gradientName = QT_TRANSLATE_NOOP("GradientName", "Blue to yellow");
    look.gradient = blueToYellow();
    return look;
}

Look Look::dark()
{
    Look look = light();
    look.name = QT_TRANSLATE_NOOP("Look", "Dark");
    look.background = QColor(36, 39, 44);
    look.ink = QColor(222, 224, 228);
    look.gridColor = QColor(86, 91, 100);
    look.meshColor = QColor(15, 15, 20, 150);
    return look;
}

Look Look::print()
{
    Look look = light();
    look.name = QT_TRANSLATE_NOOP("Look", "Print");
    look.ink = Qt::black;
    look.gridColor = QColor(170, 170, 170);
    look.meshColor = QColor(0, 0, 0, 200);
    look.lineWidth = 1.5;
    look.titleFont.setPointSize(15);
    look.nameFont.setPointSize(12);
    look.numberFont.setPointSize(11);
    return look;
}

QString Look::getTitle() const
{
    return QCoreApplication::translate("Look", name.toUtf8().constData());
}

QList<Look> Look::all()
{
    return {light(), dark(), print()};
}

void Look::applyTo(BasePlot& plot) const
{
    plot.setBackgroundColor(background);
    plot.setMeshColor(meshColor);
    plot.setPolygonOffset(1.0);
    plot.setGradient(gradientName, gradient);
    plot.setGridStyle(gridStyle);
    plot.setAutomaticFaces(true);
    for (BaseAxisType axis : {XAxis, YAxis, ZAxis}) {
        plot.setMajorInterval(axis, Linear, majorInterval);
        plot.setMinorInterval(axis, Linear, minorInterval);
    }
    CoordinateSystem& box = plot.getCoordinateSystem();
    box.getSettings().setGridColor(gridColor);
    box.getSettings().setMinorVisible(false);
    for (int i = 0; i < axisCount; ++i)
        dress(box.getAxis(AxisType(i)), *this);
    box.setMajorLineWidth(lineWidth);
    Legend& legend = plot.getLegend();
    legend.setVisible(true);
    dress(legend.getAxis(), *this);
    legend.getAxis().getArrow().setVisible(false);
    Title& title = plot.getTitle();
    title.getSettings().setFont(titleFont);
    title.getSettings().setColor(ink);
}

} // namespace Zel3D
