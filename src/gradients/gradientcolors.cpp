#include "gradients/gradientcolors.h"

#include <algorithm>

namespace Zel3D {

namespace {

constexpr double edgeGap = 1e-9;

bool hasInventedStops(const QGradient& gradient)
{
    // An added stop makes a list that holds stops no shorter; the invented pair it replaces by itself.
    QGradient probe = gradient;
    probe.setColorAt(0.5, Qt::black);
    return probe.stops().size() < gradient.stops().size();
}

int blend(int from, int to, double fraction)
{
    return static_cast<int>((to - from) * fraction + from);
}

} // namespace

QGradientStops editableStops(const QGradient& gradient)
{
    if (hasInventedStops(gradient))
        return {};
    QGradientStops stops = gradient.stops();
    for (int first = 0; first < stops.size();) {
        int end = first + 1;
        while (end < stops.size() && stops[end].first - stops[end - 1].first < 1.5 * edgeGap)
            ++end;
        // At the right end the others moved down, everywhere else they moved up.
        const double position = stops[end - 1].first >= 1.0 ? 1.0 : stops[first].first;
        for (; first < end; ++first)
            stops[first].first = position;
    }
    return stops;
}

QLinearGradient gradientOf(const QGradientStops& stops)
{
    QGradientStops apart = stops;
    for (int i = 1; i < apart.size(); ++i)
        apart[i].first = std::max(apart[i].first, apart[i - 1].first + edgeGap);
    double limit = 1.0;
    for (int i = apart.size() - 1; i >= 0 && apart[i].first > limit; --i) {
        apart[i].first = limit;
        limit -= edgeGap;
    }
    QLinearGradient gradient(0.0, 0.0, 1.0, 0.0);
    gradient.setStops(apart);
    return gradient;
}

QGradientStops coveringStops(const QGradientStops& stops)
{
    QGradientStops covering = stops;
    if (covering.size() < 2)
        return covering;
    if (covering.first().first > 0.0)
        covering.prepend({0.0, covering.first().second});
    if (covering.last().first < 1.0)
        covering.append({1.0, covering.last().second});
    return covering;
}

QColor stopsColor(const QGradientStops& stops, double position)
{
    if (stops.isEmpty())
        return {};
    if (!(position > stops.first().first))
        return stops.first().second;
    if (position >= stops.last().first)
        return stops.last().second;
    const auto next = std::lower_bound(stops.begin(), stops.end(), position,
                                       [](const QGradientStop& stop, double p) { return stop.first < p; });
    const auto before = next - 1;
    const double fraction = (position - before->first) / (next->first - before->first);
    const QColor& a = before->second;
    const QColor& b = next->second;
    return {blend(a.red(), b.red(), fraction), blend(a.green(), b.green(), fraction),
            blend(a.blue(), b.blue(), fraction), blend(a.alpha(), b.alpha(), fraction)};
}

QString colorText(const QColor& color)
{
    return color.name() + QString("%1").arg(color.alpha(), 2, 16, QLatin1Char('0'));
}

QColor colorFromText(const QString& text)
{
    QString digits = text.trimmed();
    if (!digits.startsWith('#'))
        return {};
    digits.remove(0, 1);
    if (digits.size() == 3 || digits.size() == 4) {
        QString doubled;
        for (const QChar digit : qAsConst(digits))
            doubled += QString(2, digit);
        digits = doubled;
    }
    const bool isHex = std::all_of(digits.begin(), digits.end(), [](QChar c) {
        return (c >= '0' && c <= '9') || (c.toLower() >= 'a' && c.toLower() <= 'f');
    });
    if (!isHex || (digits.size() != 6 && digits.size() != 8))
        return {};
    const auto channel = [&digits](int index) { return digits.mid(2 * index, 2).toInt(nullptr, 16); };
    return {channel(0), channel(1), channel(2), digits.size() == 8 ? channel(3) : 255};
}

} // namespace Zel3D
