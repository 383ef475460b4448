#include "valuestatistics.h"

#include <algorithm>
#include <cmath>

ValueStatistics::ValueStatistics(const Source& source)
{
    measure(source);
    if (m_count == 0)
        return;
    m_bars.assign(fineBars, 0);
    source([this](double number) {
        if (!std::isnan(number))
            ++m_bars[std::size_t(barOf(number))];
    });
    m_median = middle(source);
}

/// Mean and deviation in one pass: Welford, "Note on a method for calculating corrected sums of squares and
/// products", 1962.
void ValueStatistics::measure(const Source& source)
{
    double mean = 0.0;
    double squares = 0.0;
    source([&](double number) {
        if (std::isnan(number)) {
            ++m_missing;
            return;
        }
        m_minimum = m_count == 0 ? number : std::min(m_minimum, number);
        m_maximum = m_count == 0 ? number : std::max(m_maximum, number);
        ++m_count;
        const double before = number - mean;
        mean += before / double(m_count);
        squares += before * (number - mean);
    });
    if (m_count == 0)
        return;
    m_mean = mean;
    m_deviation = std::sqrt(squares / double(m_count));
}

int ValueStatistics::barOf(double number) const
{
    const double range = m_maximum - m_minimum;
    return range > 0.0 ? std::min(int((number - m_minimum) / range * fineBars), fineBars - 1) : 0;
}

/// The median: the number in the middle of the sorted ones, or the mean of the two there.
double ValueStatistics::middle(const Source& source) const
{
    if (m_maximum == m_minimum)
        return m_minimum;
    const std::size_t rank = m_count / 2;
    std::size_t below = 0;
    int bar = 0;
    while (below + m_bars[std::size_t(bar)] <= rank)
        below += m_bars[std::size_t(bar++)];
    std::vector<double> near;
    near.reserve(m_bars[std::size_t(bar)]);
    double before = m_minimum; // the largest of the bars below
    source([&](double number) {
        if (std::isnan(number))
            return;
        const int place = barOf(number);
        if (place == bar)
            near.push_back(number);
        else if (place < bar)
            before = std::max(before, number);
    });
    const auto middle = near.begin() + std::ptrdiff_t(rank - below);
    std::nth_element(near.begin(), middle, near.end());
    if (m_count % 2 == 1)
        return *middle;
    return 0.5 * (*middle + (middle == near.begin() ? before : *std::max_element(near.begin(), middle)));
}

std::vector<std::size_t> ValueStatistics::histogram(int bars) const
{
    std::vector<std::size_t> counts(std::size_t(bars), 0);
    for (std::size_t i = 0; i < m_bars.size(); ++i)
        counts[i * std::size_t(bars) / fineBars] += m_bars[i];
    return counts;
}
