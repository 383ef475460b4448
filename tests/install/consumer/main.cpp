// A program as its author would write it: shows both plots and leaves. The exit status is 0 when both drew.

#include <Zel3D/FunctionOf>
#include <Zel3D/Look>
#include <Zel3D/SHPlot>
#include <Zel3D/Spectrum>
#include <Zel3D/features.h>
#include <Zel3D/version.h>

#include <QApplication>
#include <QImage>
#include <QWindow>

#include <cmath>

#if VORANPLOT_VERSION < VORANPLOT_VERSION_CHECK(1, 0, 0) ||                                                  \
    VORANPLOT_VERSION >= VORANPLOT_VERSION_CHECK(2, 0, 0)
#error "The library is of another major version."
#endif
#ifndef VORANPLOT_HAS_DESIGNER
#error "The features are not stated."
#endif

namespace {

QImage picture(Zel3D::BasePlot& plot)
{
    plot.resize(300, 300);
    plot.show();
    while (!plot.windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    plot.updateGL();
    return plot.grabFrameBuffer();
}

/// Whether one pixel in fifty differs; the data cover several.
bool differ(const QImage& a, const QImage& b)
{
    int pixels = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            pixels += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return pixels > a.width() * a.height() / 50;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);

    Zel3D::SHPlot surface("surface", "consumer", "consumer");
    Zel3D::Spectrum spectra("spectra", "consumer", "consumer");
    for (Zel3D::BasePlot* plot :
         {static_cast<Zel3D::BasePlot*>(&surface), static_cast<Zel3D::BasePlot*>(&spectra)}) {
        Zel3D::Look::light().applyTo(*plot);
        plot->setBoxScaling(Zel3D::CubeScaling);
    }
    Zel3D::FunctionOf function(surface, [](double x, double y) { return std::sin(x) * std::cos(y); });
    function.setAreaLimits(-3.0, 3.0, -3.0, 3.0);
    function.setMesh(31, 31);
    const bool loaded =
        function.create() && spectra.loadFromData({{0.0, {{0.0, 0.0}, {1.0, 2.0}, {2.0, 0.5}}},
                                                   {1.0, {{0.0, 1.0}, {1.0, 3.0}, {2.0, 0.0}}}},
                                                  Zel3D::XAxis);
    surface.fitView();
    spectra.fitView();
    const QImage emptyBox = picture(surface);
    const QImage otherBox = picture(spectra);
    surface.setPlotStyle(Zel3D::SHPlot::Filled);
    spectra.setPlotStyle(Zel3D::Spectrum::Filled);
    const bool drawn = loaded && differ(emptyBox, picture(surface)) && differ(otherBox, picture(spectra));
    qInfo("VORANPlot %s %s", VORANPLOT_VERSION_STR, drawn ? "drew both plots" : "drew nothing");
    return drawn ? 0 : 1;
}
