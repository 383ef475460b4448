#include "plotvalues.h"

#include "gridvalues.h"
#include "meshvalues.h"
#include "plots/baseplot.h"
#include "plots/shplot.h"
#include "plots/spectrum.h"
#include "scene/coordinatesystem.h"
#include "spectravalues.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

QString letter(Zel3D::BaseAxisType direction)
{
    const char* const letters[] = {"x", "y", "z"};
    return QString::fromLatin1(letters[direction]);
}

} // namespace

PlotValues::PlotValues(Zel3D::BasePlot& plot) : m_plot(plot) {}

std::unique_ptr<PlotValues> PlotValues::of(Zel3D::BasePlot& plot)
{
    const Zel3D::Data* data = plot.getData();
    if (!data || data->isEmpty())
        return nullptr;
    if (auto* surface = dynamic_cast<Zel3D::SHPlot*>(&plot)) {
        if (data == surface->getGridData())
            return std::make_unique<GridValues>(*surface);
        return std::make_unique<MeshValues>(*surface);
    }
    if (auto* spectra = dynamic_cast<Zel3D::Spectrum*>(&plot))
        return std::make_unique<SpectraValues>(*spectra);
    return nullptr;
}

void PlotValues::visitHeights(const std::function<void(double)>& take) const
{
    for (int column = 0; column < columns(); ++column) {
        for (int row = 0; row < rows(); ++row)
            take(value(column, row));
    }
}

QString PlotValues::name(Zel3D::BaseAxisType direction) const
{
    const Zel3D::AxisType edges[] = {Zel3D::XFrontBottom, Zel3D::YLeftBottom, Zel3D::ZBackLeft};
    const QString text =
        m_plot.getCoordinateSystem().getAxis(edges[direction]).getLabel().getSettings().getText();
    return text.isEmpty() ? letter(direction) : text;
}

bool PlotValues::isLogarithmic(Zel3D::BaseAxisType direction) const
{
    return m_plot.isLogarithmicData(direction);
}

QByteArray PlotValues::exact(double number) const
{
    if (std::isnan(number))
        return QByteArray();
    // Plain numbers that come from exponents lose their last digits.
    constexpr int rounded = 14;
    const bool computed =
        (kind() == Kind::Spectra || isSingle()) &&
        (isLogarithmic(Zel3D::XAxis) || isLogarithmic(Zel3D::YAxis) || isLogarithmic(Zel3D::ZAxis));
    if (computed)
        return QByteArray::number(number, 'g', isSingle() ? 6 : rounded);
    std::array<char, 32> text{};
    char* const end = text.data() + text.size();
    const std::to_chars_result result =
        isSingle() ? std::to_chars(text.data(), end, float(number)) : std::to_chars(text.data(), end, number);
    return {text.data(), int(result.ptr - text.data())};
}
