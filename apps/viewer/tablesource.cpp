#include "tablesource.h"

#include "griddescription.h"
#include "viewerplot.h"
#include "viewerspectrum.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double tableRelief = 0.4;

/// Part of a step that single precision may shift a line by.
constexpr double coarseness = 1e-3;

bool isCoarse(const std::vector<double>& lines)
{
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (std::abs(double(float(lines[i])) - lines[i]) > coarseness * (lines[i] - lines[i - 1]))
            return true;
    }
    return false;
}

} // namespace

TableSource::TableSource(ClipboardTable table, TableMeaning meaning)
    : m_table(std::move(table)), m_meaning(meaning)
{
    setName(tr("Pasted table"));
}

QString TableSource::identity() const
{
    return QStringLiteral("Pasted table");
}

std::unique_ptr<PlotView> TableSource::read(const LoadProgress& /*progress*/)
{
    return m_meaning == TableMeaning::Spectra ? readSpectra() : readSurface();
}

std::unique_ptr<PlotView> TableSource::readSurface()
{
    TableGrid made;
    if (!m_table.makeGrid(m_meaning, made))
        return fail(m_table.error());
    if (!made.even && (isCoarse(made.x) || isCoarse(made.y)))
        return fail(tr("The table cannot be drawn: its uneven rows or columns lie so far from zero that they "
                       "fall together; take a constant off them first."));
    auto plot = std::make_unique<ViewerPlot>();
    plot->setRelief(tableRelief);
    prepare(*plot);
    if (!plot->load(made))
        return failToDraw();
    setDescription(describeGrid(made.grid));
    setNotes(made.notes);
    m_table = ClipboardTable(QString());
    return plot;
}

std::unique_ptr<PlotView> TableSource::readSpectra()
{
    Spectra spectra;
    if (!m_table.makeSpectra(spectra))
        return fail(m_table.error());
    auto plot = std::make_unique<ViewerSpectrum>();
    prepare(*plot);
    if (!plot->load(spectra))
        return failToDraw();
    m_names = spectra.names;
    setDescription(
        tr("%1 spectra, %2 points each").arg(spectra.map.size()).arg(spectra.map.begin()->second.size()));
    setNotes(spectra.notes);
    m_table = ClipboardTable(QString());
    return plot;
}

QString TableSource::describe(const Zel3D::SelectedObjectsInfo& place) const
{
    if (m_names.isEmpty())
        return QString();
    const int spectrum = std::clamp(int(std::lround(place.y)) - 1, 0, m_names.size() - 1);
    return tr("%1: %2 at %3").arg(m_names[spectrum]).arg(place.z).arg(place.x, 0, 'g', 10);
}
