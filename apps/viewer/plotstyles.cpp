#include "plotstyles.h"

namespace {

struct Entry
{
    const char* name;
    const char* text; ///< on the plot's tool bar
};

constexpr Entry entries[] = {{"none", "No plot"},       {"points", "Points"}, {"wireframe", "Wireframe"},
                             {"hidden", "Hidden line"}, {"filled", "Filled"}, {"mesh", "Filled and mesh"},
                             {"histogram", "Histogram"}};

} // namespace

QStringList PlotStyles::names()
{
    QStringList names;
    for (const Entry& entry : entries)
        names.append(QLatin1String(entry.name));
    return names;
}

std::optional<int> PlotStyles::fromName(const QString& name)
{
    const QString wanted = name.simplified();
    int style = 0;
    for (const Entry& entry : entries) {
        if (wanted.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0 ||
            wanted.compare(QLatin1String(entry.text), Qt::CaseInsensitive) == 0)
            return style;
        ++style;
    }
    return std::nullopt;
}
