#include "samples.h"

#include "core/columnarray.h"
#include "core/parametricsurface.h"
#include "core/watersurface.h"
#include "plots/shplot.h"
#include "plots/spectrum.h"

#include <QTimer>

#include <cmath>
#include <limits>

namespace samples {

bool heights(Zel3D::SHPlot& plot)
{
    //! [heights]
    const unsigned int columns = 40; // along x
    const unsigned int rows = 30;    // along y
    Zel3D::ColumnArray<double> z(columns, rows);
    for (unsigned int i = 0; i < columns; ++i) {
        for (unsigned int j = 0; j < rows; ++j)
            z[i][j] = std::sin(0.3 * i) * std::cos(0.2 * j);
    }
    z[7][9] = std::numeric_limits<double>::quiet_NaN(); // a hole
    const bool loaded = plot.loadFromData(z.columns(), columns, rows, 0.0, 4.0, 0.0, 3.0);
    //! [heights]
    return loaded;
}

bool points(Zel3D::SHPlot& plot)
{
    //! [points]
    Zel3D::ColumnArray<QVector3D> nodes(3, 3);
    for (unsigned int i = 0; i < 3; ++i) {
        for (unsigned int j = 0; j < 3; ++j)
            nodes[i][j] = QVector3D(float(i * i), float(j), float(i) * 0.5F);
    }
    const bool loaded = plot.loadFromData(nodes.columns(), 3, 3, 1.0, 1.0);
    //! [points]
    return loaded;
}

bool cells(Zel3D::SHPlot& plot)
{
    //! [cells]
    const QVector<QVector3D> vertices = {
        {0.0F, 0.0F, 0.0F}, {1.0F, 0.0F, 0.2F}, {1.0F, 1.0F, 0.6F}, {0.0F, 1.0F, 0.1F}, {2.0F, 0.5F, 0.4F}};
    const QVector<QVector<unsigned int>> cells = {{0, 1, 2, 3}, {1, 4, 2}};
    const bool loaded = plot.loadFromData(vertices, cells, 1.0, 1.0);
    //! [cells]
    return loaded;
}

bool spectra(Zel3D::Spectrum& plot)
{
    //! [spectra]
    std::map<double, std::map<double, double>> spectra;
    for (int run = 1; run <= 5; ++run) {
        for (double wavelength = 400.0; wavelength <= 700.0; wavelength += 2.0)
            spectra[run][wavelength] = std::exp(-std::pow((wavelength - 500.0 - 20.0 * run) / 30.0, 2.0));
    }
    // The runs stand along y, the wavelengths along x.
    const bool loaded = plot.loadFromData(spectra, Zel3D::YAxis);
    //! [spectra]
    return loaded;
}

//! [parametric]
class Helicoid : public Zel3D::ParametricSurface
{
public:
    using ParametricSurface::ParametricSurface;
    QVector3D operator()(double u, double v) override
    {
        return {float(v * std::cos(u)), float(v * std::sin(u)), float(0.3 * u)};
    }
};

bool parametric(Zel3D::SHPlot& plot)
{
    Helicoid helicoid(plot);
    helicoid.setMesh(121, 21);
    helicoid.setAreaLimits(0.0, 12.0, -1.0, 1.0); // u, then v
    return helicoid.create();
}
//! [parametric]

bool logarithmic(Zel3D::SHPlot& plot, double** z, unsigned int columns, unsigned int rows)
{
    //! [logarithmic]
    plot.setLogarithmicData(Zel3D::ZAxis, true); // before loading
    const bool loaded = plot.loadFromData(z, columns, rows, 0.0, 1.0, 0.0, 1.0);
    //! [logarithmic]
    return loaded;
}

void water(Zel3D::SHPlot& plot, QTimer& timer)
{
    //! [water]
    auto surface = std::make_shared<Zel3D::WaterSurface>(plot);
    surface->setMesh(64, 64);
    surface->setAreaLimits(-1.0, 1.0, -1.0, 1.0);
    surface->reset(); // a stone falls
    QObject::connect(&timer, &QTimer::timeout, &plot, [surface, &plot] {
        surface->timeout();
        plot.updateGL();
    });
    timer.start(20);
    //! [water]
}

} // namespace samples
