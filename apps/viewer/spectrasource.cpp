#include "spectrasource.h"

#include "plots/baseplot.h"
#include "spectra.h"
#include "spectrafile.h"
#include "viewerspectrum.h"

#include <QFileInfo>

#include <iterator>

SpectraSource::SpectraSource(const QString& path) : m_path(path)
{
    setName(QFileInfo(path).fileName());
}

std::unique_ptr<PlotView> SpectraSource::read()
{
    Spectra spectra;
    SpectraFile reader(m_path);
    if (!reader.read(spectra))
        return fail(reader.error());
    auto plot = std::make_unique<ViewerSpectrum>();
    prepare(*plot);
    if (!plot->load(spectra))
        return failToDraw();
    m_label = spectra.spectraLabel;
    std::size_t values = 0;
    int index = 0;
    for (const auto& [position, spectrum] : spectra.map) {
        values += spectrum.size();
        m_names[position] = spectra.names.value(index++);
    }
    const Zel3D::Parallelepiped& read = plot->box();
    const QVector3D& lower = read.minimum;
    const QVector3D& upper = read.maximum;
    const QString box = tr("%1 to %2, values %3 to %4")
                            .arg(double(lower.x()), 0, 'g', 6)
                            .arg(double(upper.x()), 0, 'g', 6)
                            .arg(double(lower.z()), 0, 'g', 6)
                            .arg(double(upper.z()), 0, 'g', 6);
    setDescription(tr("%1 spectra, %2 points, %3").arg(spectra.map.size()).arg(values).arg(box));
    setNotes(spectra.notes);
    return plot;
}

QString SpectraSource::describe(const Zel3D::SelectedObjectsInfo& place) const
{
    // The plot tells single precision.
    auto nearest = m_names.lower_bound(place.y);
    if (nearest == m_names.end() ||
        (nearest != m_names.begin() && place.y - std::prev(nearest)->first < nearest->first - place.y))
        --nearest;
    return tr("%1 %2: %3 at %4").arg(m_label, nearest->second).arg(place.z).arg(place.x);
}
