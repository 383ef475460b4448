#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <vector>

/// What many numbers have in common. Reads them several times and copies only those near the median.
class ValueStatistics
{
public:
    using Visit = std::function<void(double)>;
    /// Calls a function for every number, NaN for a missing one; the same ones each time.
    using Source = std::function<void(const Visit&)>;

    ValueStatistics() = default;
    explicit ValueStatistics(const Source& source);

    std::size_t count() const { return m_count; }     ///< without the missing ones
    std::size_t missing() const { return m_missing; } ///< how many are missing
    /// Without numbers these are NaN.
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    double mean() const { return m_mean; }
    /// Of the numbers themselves, not an estimate from a sample: divided by their count.
    double deviation() const { return m_deviation; }
    double median() const { return m_median; }
    /// How many numbers stand in each of \a bars equal parts of the range, at most fineBars.
    std::vector<std::size_t> histogram(int bars) const;

    static constexpr int fineBars = 4096;

private:
    int barOf(double number) const;
    void measure(const Source& source);
    double middle(const Source& source) const;

    std::size_t m_count = 0;
    std::size_t m_missing = 0;
    double m_minimum = std::numeric_limits<double>::quiet_NaN();
    double m_maximum = std::numeric_limits<double>::quiet_NaN();
    double m_mean = std::numeric_limits<double>::quiet_NaN();
    double m_deviation = std::numeric_limits<double>::quiet_NaN();
    double m_median = std::numeric_limits<double>::quiet_NaN();
    std::vector<std::size_t> m_bars;
};
