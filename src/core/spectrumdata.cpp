#include "core/spectrumdata.h"

#include "core/tofloat.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace Zel3D {

namespace {

struct Range
{
    double lower = std::numeric_limits<double>::infinity();
    double upper = -std::numeric_limits<double>::infinity();

    void widen(double value)
    {
        if (!std::isfinite(value))
            return;
        lower = std::min(lower, value);
        upper = std::max(upper, value);
    }
};

} // namespace

SpectrumData::SpectrumData() : Data(2) {}

void SpectrumData::setData(const Map& data)
{
    if (&data != &spectrum)
        spectrum = data;
    computeBox();
}

void SpectrumData::setData(Map&& data)
{
    spectrum = std::move(data);
    computeBox();
}

bool SpectrumData::setHeights(const Map& data)
{
    if (data.size() != spectrum.size())
        return false;
    // Collected first, and in one walk through both: a map of many points is far from any cache.
    std::vector<double> heights;
    auto held = spectrum.cbegin();
    for (const auto& [position, values] : data) {
        if (position != held->first || values.size() != held->second.size())
            return false;
        auto point = held->second.cbegin();
        for (const auto& [key, value] : values) {
            if (key != point->first)
                return false;
            heights.push_back(value);
            ++point;
        }
        ++held;
    }
    Range range;
    auto height = heights.cbegin();
    for (auto& values : spectrum) {
        for (auto& value : values.second) {
            value.second = *height++;
            range.widen(value.second);
        }
    }
    // The positions, and with them x and y of the box, are those of before.
    minimum.setZ(toFloat(range.lower));
    maximum.setZ(toFloat(range.upper));
    return true;
}

void SpectrumData::computeBox()
{
    Range outer;
    Range inner;
    Range height;
    bool seeded = false;
    for (const auto& [position, values] : spectrum) {
        outer.widen(position);
        if (!seeded && !values.empty()) {
            inner.widen(position);
            seeded = true;
        }
        for (const auto& [key, value] : values) {
            inner.widen(key);
            height.widen(value);
        }
    }
    const Range& x = axis == YAxis ? inner : outer;
    const Range& y = axis == YAxis ? outer : inner;
    minimum = QVector3D(toFloat(x.lower), toFloat(y.lower), toFloat(height.lower));
    maximum = QVector3D(toFloat(x.upper), toFloat(y.upper), toFloat(height.upper));
}

void SpectrumData::clear()
{
    minimum = QVector3D();
    maximum = QVector3D();
    spectrum.clear();
}

bool SpectrumData::isEmpty() const
{
    return spectrum.empty();
}

} // namespace Zel3D
