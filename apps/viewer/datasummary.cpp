#include "datasummary.h"

#include "meshvalues.h"
#include "spectravalues.h"
#include "valuestatistics.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int digits = 7;
constexpr double none = std::numeric_limits<double>::quiet_NaN();

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(DataSummary)
};

/// The smallest and the largest of some numbers, and their spacing when it is even.
struct Extent
{
    double lower = none;
    double upper = none;
    double step = none;

    void take(double value)
    {
        if (!std::isfinite(value))
            return;
        lower = lower <= value ? lower : value;
        upper = upper >= value ? upper : value;
    }
};

template <class Place>
Extent extentOf(int count, const Place& place)
{
    Extent found;
    bool even = count > 1;
    const double step = count > 1 ? (place(count - 1) - place(0)) / (count - 1) : none;
    for (int i = 0; i < count; ++i) {
        found.take(place(i));
        even = even && std::abs(place(i) - (place(0) + i * step)) <= 1e-4 * std::abs(step);
    }
    found.step = even ? step : none;
    return found;
}

QString text(const Extent& extent, const QLocale& locale)
{
    if (std::isnan(extent.lower))
        return Words::tr("none");
    const QString range =
        Words::tr("%1 to %2")
            .arg(DataSummary::number(extent.lower, locale), DataSummary::number(extent.upper, locale));
    return std::isnan(extent.step)
               ? range
               : Words::tr("%1, step %2").arg(range, DataSummary::number(extent.step, locale));
}

QString missingText(const ValueStatistics& statistics, const QLocale& locale)
{
    const auto all = double(statistics.count() + statistics.missing());
    if (statistics.missing() == 0)
        return Words::tr("none");
    const double percent = 100.0 * double(statistics.missing()) / all;
    return Words::tr("%1 (%2 %)")
        .arg(locale.toString(qulonglong(statistics.missing())), locale.toString(percent, 'g', 2));
}

QVector<Extent> extents(const PlotValues& values)
{
    if (values.isRectangular())
        return {extentOf(values.columns(), [&values](int i) { return values.x(i, 0); }),
                extentOf(values.rows(), [&values](int i) { return values.y(0, i); })};
    Extent x;
    Extent y;
    const int across = values.kind() == PlotValues::Kind::Mesh ? 1 : values.columns();
    for (int column = 0; column < across; ++column) {
        for (int row = 0; row < values.rows(); ++row) {
            x.take(values.x(column, row));
            y.take(values.y(column, row));
        }
    }
    return {x, y};
}

void addCounts(QVector<DataSummary::Line>& lines, const PlotValues& values, const QLocale& locale)
{
    const QString product = Words::tr("%1 columns \u00d7 %2 rows")
                                .arg(locale.toString(values.columns()), locale.toString(values.rows()));
    switch (values.kind()) {
    case PlotValues::Kind::Surface:
        lines.append({Words::tr("Kind"), Words::tr("Surface over a grid")});
        lines.append({Words::tr("Nodes"), product});
        break;
    case PlotValues::Kind::Points:
        lines.append({Words::tr("Kind"), Words::tr("Surface of free nodes")});
        lines.append({Words::tr("Nodes"), product});
        break;
    case PlotValues::Kind::Spectra: {
        const auto& spectra = static_cast<const SpectraValues&>(values);
        int least = spectra.points(0);
        int most = least;
        for (int row = 1; row < spectra.rows(); ++row) {
            least = std::min(least, spectra.points(row));
            most = std::max(most, spectra.points(row));
        }
        lines.append({Words::tr("Kind"), Words::tr("Spectra")});
        lines.append({Words::tr("Spectra"), locale.toString(spectra.rows())});
        lines.append({Words::tr("Points each"),
                      least == most
                          ? locale.toString(least)
                          : Words::tr("%1 to %2").arg(locale.toString(least), locale.toString(most))});
        break;
    }
    case PlotValues::Kind::Mesh:
        lines.append({Words::tr("Kind"), Words::tr("Mesh")});
        lines.append({Words::tr("Vertices"), locale.toString(values.rows())});
        lines.append({Words::tr("Cells"), locale.toString(static_cast<const MeshValues&>(values).cells())});
        break;
    }
}

} // namespace

QString DataSummary::number(double value, const QLocale& locale)
{
    QLocale plain = locale;
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    // Not 1e+06 for a million.
    const double size = std::abs(value);
    const int needed = size >= 1.0 && size < 1e12 ? std::max(digits, int(std::log10(size)) + 1) : digits;
    return std::isnan(value) ? QStringLiteral("\u2013") : plain.toString(value, 'g', needed);
}

QVector<DataSummary::Line> DataSummary::lines(const PlotValues& values, const ValueStatistics& statistics,
                                              const QLocale& locale)
{
    QVector<Line> lines;
    addCounts(lines, values, locale);
    const QVector<Extent> horizontal = extents(values);
    lines.append({values.name(Zel3D::XAxis), text(horizontal[0], locale)});
    lines.append({values.name(Zel3D::YAxis), text(horizontal[1], locale)});
    Extent heights;
    heights.take(statistics.minimum());
    heights.take(statistics.maximum());
    lines.append({values.name(Zel3D::ZAxis), text(heights, locale)});
    if (values.kind() == PlotValues::Kind::Mesh)
        return lines;
    lines.append({Words::tr("Missing"), missingText(statistics, locale)});
    lines.append({Words::tr("Mean"), number(statistics.mean(), locale)});
    lines.append({Words::tr("Std. deviation"), number(statistics.deviation(), locale)});
    lines.append({Words::tr("Median"), number(statistics.median(), locale)});
    return lines;
}
