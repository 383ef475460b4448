// Life, loading and the box of the spectrum plot.

#include "plots/spectrum.h"

#include "core/dataorigin.h"
#include "plots/datacheck.h"
#include "plots/sheetpolygons.h"
#include "plots/styleaction.h"
#include "settings/plotsettingsdialog.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace Zel3D {

namespace {

struct StyleEntry
{
    const char* icon;
    const char* label;
};

constexpr StyleEntry styles[] = {
    {":/plot/images/noplot.svg", QT_TRANSLATE_NOOP("Zel3D::Spectrum", "No plot")},
    {":/plot/images/points.svg", QT_TRANSLATE_NOOP("Zel3D::Spectrum", "Points")},
    {":/plot/images/spectrum.svg", QT_TRANSLATE_NOOP("Zel3D::Spectrum", "Lines")},
    {":/plot/images/spectrumfilled.svg", QT_TRANSLATE_NOOP("Zel3D::Spectrum", "Filled")},
    {":/plot/images/spectrumframe.svg", QT_TRANSLATE_NOOP("Zel3D::Spectrum", "Filled and frame")},
};

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
    Spectrum::createPlotStyleActions();
    createPlotStyleToolBar();
    createContextMenu();
}

Spectrum::Spectrum(QWidget* parent)
    : Spectrum(QString(), QCoreApplication::organizationName(), QCoreApplication::applicationName(), parent)
{
}

Spectrum::~Spectrum() = default;

void Spectrum::slotSettingsDialog()
{
    PlotSettingsDialog::run(*this);
}

void Spectrum::createPlotStyleActions()
{
    int style = 0;
    for (const StyleEntry& entry : styles)
        addStyleAction(style++, entry.icon, tr(entry.label));
}

void Spectrum::changeEvent(QEvent* event)
{
    BasePlot::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    // Those of a derived plot follow.
    int style = 0;
    const QList<StyleAction*> made = getStyleActions();
    for (const StyleEntry& entry : styles)
        made.at(style++)->setLabel(tr(entry.label));
}

SpectrumData::Map Spectrum::toExponents(const SpectrumData::Map& spectra, BaseAxisType axis, int& lost) const
{
    const std::array<bool, 3>& directions = getLogarithmicData();
    const bool outer = directions[std::size_t(axis)];
    const bool inner = directions[std::size_t(axis == XAxis ? YAxis : XAxis)];
    const bool height = directions[ZAxis];
    if (!outer && !inner && !height)
        return SpectrumData::copyInOrder(spectra);
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

ValueXYZ<double> Spectrum::moveOrigin(SpectrumData::Map& spectra, BaseAxisType axis) const
{
    const std::array<bool, 3>& directions = getLogarithmicData();
    const BaseAxisType along = axis == XAxis ? YAxis : XAxis;
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    for (const auto& [position, values] : spectra) {
        if (!values.empty()) {
            low = std::min(low, values.begin()->first);
            high = std::max(high, values.rbegin()->first);
        }
    }
    const double inner = directions[std::size_t(along)] ? 0.0 : dataOrigin(low, high);
    const double outer = directions[std::size_t(axis)] || spectra.empty()
                             ? 0.0
                             : dataOrigin(spectra.begin()->first, spectra.rbegin()->first);
    if (inner != 0.0 || outer != 0.0) {
        SpectrumData::Map moved;
        for (const auto& [position, values] : spectra) {
            Values& kept = moved[position - outer];
            for (const auto& [key, value] : values)
                kept.emplace_hint(kept.end(), key - inner, value);
        }
        spectra = std::move(moved);
    }
    return axis == XAxis ? ValueXYZ<double>{outer, inner, 0.0} : ValueXYZ<double>{inner, outer, 0.0};
}

bool Spectrum::loadFromData(const std::map<double, std::map<double, double>>& spectra, BaseAxisType axis)
{
    if (!spectrumData)
        return false;
    const std::array<bool, 3>& directions = getLogarithmicData();
    const ValueXYZ<double>& held = getDataOrigin();
    const bool plain = !directions[0] && !directions[1] && !directions[2] && !isDataCentred() &&
                       held.x == 0.0 && held.y == 0.0;
    QString fault;
    SpectrumData::Map loaded;
    ValueXYZ<double> origin{0.0, 0.0, 0.0};
    int lost = 0;
    bool refilled = false;
    // Copied before anything is cleared: memory may run out, and the map may be the plot's own.
    try {
        // The positions that are held have been checked.
        refilled = plain && axis == spectrumData->getAxis() && spectrumData->setHeights(spectra);
        if (!refilled)
            fault = DataCheck::spectra(spectra, axis);
        if (!refilled && fault.isEmpty()) {
            loaded = toExponents(spectra, axis, lost);
            if (isDataCentred())
                origin = moveOrigin(loaded, axis);
        }
    } catch (const std::bad_alloc&) {
        fault = QStringLiteral("memory ran out");
    }
    if (!fault.isEmpty()) {
        qWarning("Plot \"%s\": the data were not loaded: %s.", qPrintable(objectName()), qPrintable(fault));
        return false;
    }
    const BusyScope rebuilding(*this);
    clearPickPoints();
    setData(spectrumData.get());
    applyLogarithmicData();
    setDataOrigin(origin);
    if (!refilled) {
        spectrumData->clear();
        spectrumData->setAxis(axis);
        spectrumData->setData(std::move(loaded));
        warnOfLostValues(lost);
    }
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
    clearPickPoints();
    spectrumData->clear();
    markAllChanged();
}

void Spectrum::clearData()
{
    clearPickPoints();
    const BusyScope rebuilding(*this);
    clearPickPoints();
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
