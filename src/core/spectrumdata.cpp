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
        spectrum = copyInOrder(data);
    computeBox();
}

void SpectrumData::setData(Map&& data)
{
    spectrum = std::move(data);
    computeBox();
}

SpectrumData::Map SpectrumData::copyInOrder(const Map& data)
{
    Map copy;
    for (const auto& [position, values] : data) {
        auto& points = copy.emplace_hint(copy.end(), position, Map::mapped_type())->second;
        for (const auto& value : values)
            points.insert(points.end(), value);
    }
    return copy;
}

bool SpectrumData::setHeights(const Map& data)
{
    if (data.size() != spectrum.size())
        return false;
    std::size_t points = 0;
    auto curve = spectrum.cbegin();
    for (const auto& [position, values] : data) {
        if (position != curve->first || values.size() != curve->second.size())
            return false;
        points += values.size();
        ++curve;
    }
    // In one walk through both: a map of many points is far from any cache. The heights of before are kept
    // until the last position has been seen to be the same.
    std::vector<double> before;
    before.reserve(points);
    Range range;
    auto held = spectrum.begin();
    for (auto given = data.begin(); given != data.end(); ++given, ++held) {
        auto point = held->second.begin();
        for (const auto& [key, value] : given->second) {
            if (key != point->first) {
                restoreHeights(before);
                return false;
            }
            before.push_back(point->second);
            point->second = value;
            range.widen(value);
            ++point;
        }
    }
    // The positions, and with them x and y of the box, are those of before.
    minimum.setZ(toFloat(range.lower));
    maximum.setZ(toFloat(range.upper));
    return true;
}

void SpectrumData::restoreHeights(const std::vector<double>& heights)
{
    auto height = heights.begin();
    for (auto& values : spectrum) {
        for (auto& value : values.second) {
            if (height == heights.end())
                return;
            value.second = *height++;
        }
    }
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
