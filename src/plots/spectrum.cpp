// Life, loading and the box of the spectrum plot.

#include "plots/spectrum.h"

#include "plots/datacheck.h"
#include "plots/styleaction.h"

#include <QIcon>

#include <limits>
#include <new>

namespace Zel3D {

namespace {

/// NaN for what has no exponent.
double exponentOf(double value)
{
    return value > 0.0 ? std::log10(value) : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

Spectrum::Spectrum(const QString& name, const QString& organizationName, const QString& applicationName,
                   QWidget* parent, const QGLWidget* shareWidget, Qt::WindowFlags flags)
    : BasePlot(name, organizationName, applicationName, parent, shareWidget, flags),
      spectrumData(std::make_unique<SpectrumData>())
{
    createPlotStyleActions();
}

Spectrum::~Spectrum() = default;

void Spectrum::createPlotStyleActions()
{
    if (!styleActions.isEmpty())
        return;
    const struct
    {
        QString label;
        const char* icon;
    } styles[] = {{tr("No plot"), "noplot"},
                  {tr("Points"), "points"},
                  {tr("Lines"), "spectrum"},
                  {tr("Filled"), "spectrumfilled"},
                  {tr("Filled and frame"), "spectrumframe"}};
    for (const auto& style : styles) {
        const QIcon icon(QString(":/plot/images/%1.svg").arg(QLatin1String(style.icon)));
        styleActions.append(new StyleAction(styleActions.size(), icon, style.label, this));
    }
}

SpectrumData::Map Spectrum::toExponents(const SpectrumData::Map& spectra, BaseAxisType axis, int& lost) const
{
    const std::array<bool, 3>& directions = getLogarithmicData();
    const bool outer = directions[std::size_t(axis)];
    const bool inner = directions[std::size_t(axis == XAxis ? YAxis : XAxis)];
    const bool height = directions[ZAxis];
    if (!outer && !inner && !height)
        return spectra;
    SpectrumData::Map converted;
    for (const auto& [position, values] : spectra) {
        const double place = outer ? exponentOf(position) : position;
        Values* kept = std::isfinite(place) ? &converted[place] : nullptr;
        for (const auto& [key, value] : values) {
            const double point = inner ? exponentOf(key) : key;
            const double z = height ? exponentOf(value) : value;
            const bool placed = kept && std::isfinite(point);
            lost += std::isfinite(value) && !(placed && std::isfinite(z)) ? 1 : 0;
            // Without a height it stays as a hole; without a place it lies before all others.
            if (placed)
                kept->emplace_hint(kept->end(), point, z);
        }
    }
    return converted;
}

bool Spectrum::loadFromData(const std::map<double, std::map<double, double>>& spectra, BaseAxisType axis)
{
    if (!spectrumData)
        return false;
    QString fault = DataCheck::spectra(spectra, axis);
    SpectrumData::Map loaded;
    int lost = 0;
    // Copied before anything is cleared: memory may run out, and the map may be the plot's own.
    if (fault.isEmpty()) {
        try {
            loaded = toExponents(spectra, axis, lost);
        } catch (const std::bad_alloc&) {
            fault = QStringLiteral("memory ran out");
        }
    }
    if (!fault.isEmpty()) {
        qWarning("Plot \"%s\": the data were not loaded: %s.", qPrintable(objectName()), qPrintable(fault));
        return false;
    }
    const BusyScope rebuilding(*this);
    spectrumData->clear();
    setData(spectrumData.get());
    applyLogarithmicData();
    spectrumData->setAxis(axis);
    spectrumData->setData(std::move(loaded));
    warnOfLostValues(lost);
    if (spectrumData->isEmpty())
        setHull(Parallelepiped());
    updateData();
    updateNormals();
    updateSelection();
    createCoordinateSystem();
    return true;
}

void Spectrum::updateDataType(int type)
{
    if (!getData() || getData() != spectrumData.get() || type == getData()->getDataType())
        return;
    spectrumData->clear();
    markAllChanged();
}

void Spectrum::clearData()
{
    const BusyScope rebuilding(*this);
    spectrumData->clear();
    setData(nullptr);
    removeDataList();
    updateSelection();
    createCoordinateSystem();
}

void Spectrum::calculateHull()
{
    if (!getData() || getData()->isEmpty())
        return;
    setHull(dataBox());
}

} // namespace Zel3D
