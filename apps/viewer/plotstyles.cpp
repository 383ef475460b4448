#include "plotstyles.h"

#include <QVector>

namespace {

struct Entry
{
    const char* name;
    const char* text; ///< on the plot's tool bar
};

const QVector<Entry>& entries(PlotKind kind)
{
    static const QVector<Entry> surfaces{{"none", "No plot"},        {"points", "Points"},
                                         {"wireframe", "Wireframe"}, {"hidden", "Hidden line"},
                                         {"filled", "Filled"},       {"mesh", "Filled and mesh"},
                                         {"histogram", "Histogram"}};
    static const QVector<Entry> spectra{{"none", "No plot"},
                                        {"points", "Points"},
                                        {"lines", "Lines"},
                                        {"filled", "Filled"},
                                        {"frame", "Filled and frame"}};
    return kind == PlotKind::Spectra ? spectra : surfaces;
}

} // namespace

QStringList PlotStyles::names(PlotKind kind)
{
    QStringList names;
    for (const Entry& entry : entries(kind))
        names.append(QLatin1String(entry.name));
    return names;
}

std::optional<int> PlotStyles::fromName(PlotKind kind, const QString& name)
{
    const QString wanted = name.simplified();
    int style = 0;
    for (const Entry& entry : entries(kind)) {
        if (wanted.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0 ||
            wanted.compare(QLatin1String(entry.text), Qt::CaseInsensitive) == 0)
            return style;
        ++style;
    }
    return std::nullopt;
}
