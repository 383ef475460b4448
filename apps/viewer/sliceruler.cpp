#include "sliceruler.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// So many steps more than wanted, and two numbers lie in every range.
constexpr int surelyTwo = 4;

/// The next wider one of the round widths.
double roundWidth(double wanted)
{
    const double power = std::pow(10.0, std::floor(std::log10(wanted)));
    for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
        if (factor * power >= wanted)
            return factor * power;
    }
    return 10.0 * power;
}

} // namespace

SliceRuler::SliceRuler(const std::vector<double>& numbers, bool logarithmic, double margin)
    : m_logarithmic(logarithmic),
      m_lower(std::numeric_limits<double>::infinity()),
      m_upper(-std::numeric_limits<double>::infinity())
{
    for (const double number : numbers) {
        const double place = scaled(number);
        if (std::isfinite(place)) {
            m_lower = std::min(m_lower, place);
            m_upper = std::max(m_upper, place);
        }
    }
    if (m_lower > m_upper) {
        m_lower = 0.0;
        m_upper = 1.0;
    }
    double wider = margin * (m_upper - m_lower);
    if (!(m_upper - m_lower > 1e-12 * std::max(std::abs(m_lower), std::abs(m_upper))))
        wider = m_lower == 0.0 ? 0.5 : 0.05 * std::abs(m_lower);
    m_lower -= wider;
    m_upper += wider;
}

double SliceRuler::scaled(double number) const
{
    if (!m_logarithmic)
        return number;
    return number > 0.0 ? std::log10(number) : std::numeric_limits<double>::quiet_NaN();
}

double SliceRuler::part(double number) const
{
    return (scaled(number) - m_lower) / (m_upper - m_lower);
}

double SliceRuler::step(int most) const
{
    // One number alone does not tell the size of a step, so there are two at least.
    const int least = std::max(most, 1);
    for (int count = least; count < least + surelyTwo; ++count) {
        const double width = roundWidth((m_upper - m_lower) / count);
        if (std::floor(m_upper / width) > std::ceil(m_lower / width))
            return width;
    }
    return roundWidth((m_upper - m_lower) / (least + surelyTwo));
}

QVector<double> SliceRuler::ticks(int most) const
{
    QVector<double> found;
    const bool decades = m_logarithmic && m_upper - m_lower >= 2.0;
    if (m_logarithmic && !decades) {
        // Fewer than two decades: some numbers of each.
        const auto last = int(std::floor(m_upper));
        for (int decade = int(std::floor(m_lower)); decade <= last; ++decade) {
            for (const double factor : {1.0, 2.0, 5.0}) {
                const double number = factor * std::pow(10.0, double(decade));
                if (scaled(number) >= m_lower && scaled(number) <= m_upper)
                    found.append(number);
            }
        }
        return found;
    }
    const double width = decades ? std::max(1.0, std::ceil(step(most))) : step(most);
    const double first = std::ceil(m_lower / width);
    for (int i = 0; (first + i) * width <= m_upper; ++i)
        found.append(m_logarithmic ? std::pow(10.0, (first + i) * width) : (first + i) * width);
    return found;
}

int SliceRuler::digits(int most) const
{
    // Up to a million without an exponent.
    constexpr int usual = 6;
    if (m_logarithmic)
        return usual;
    const double size = std::max(std::abs(m_lower), std::abs(m_upper));
    return std::clamp(int(std::ceil(std::log10(size / step(most)))) + 1, usual, 15);
}
