#include "samples.h"

#include <Zel3D/SHPlot>
#include <Zel3D/Spectrum>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

namespace {

/// The zoom is a property and stays. At its default a box fits whose sides are about equal.
void turn(Zel3D::BasePlot& plot)
{
    plot.setRotation({30.0, 0.0, 30.0});
}

} // namespace

void fillWithSample(Zel3D::SHPlot& plot)
{
    constexpr unsigned int nodes = 41;
    std::vector<std::vector<double>> heights(nodes, std::vector<double>(nodes));
    std::vector<double*> columns;
    for (unsigned int i = 0; i < nodes; ++i) {
        for (unsigned int j = 0; j < nodes; ++j) {
            const double x = 0.15 * (i - 20.0);
            const double y = 0.15 * (j - 20.0);
            heights[i][j] = 3.0 * std::cos(2.0 * std::hypot(x, y)) * std::exp(-0.25 * (x * x + y * y));
        }
        columns.push_back(heights[i].data());
    }
    plot.loadFromData(columns.data(), nodes, nodes, -3.0, 3.0, -3.0, 3.0);
    turn(plot);
}

void fillWithSample(Zel3D::Spectrum& plot)
{
    constexpr int spectra = 8;
    constexpr int points = 61;
    std::map<double, std::map<double, double>> family;
    for (int k = 0; k < spectra; ++k) {
        for (int i = 0; i < points; ++i) {
            const double p = 0.05 * i;
            const double line = (p - 1.0 - 0.12 * k) / 0.2;
            const double second = (p - 2.3) / 0.12;
            const double height = 2.5 * std::exp(-line * line) + 0.3 * k * std::exp(-second * second);
            family[0.4 * k][p] = std::max(0.0, height - 0.01);
        }
    }
    plot.loadFromData(family, Zel3D::YAxis);
    turn(plot);
}
