#include "core/spectrumdata.h"

#include "core/tofloat.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

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
    const auto sameKey = [](const auto& a, const auto& b) { return a.first == b.first; };
    const auto samePoints = [&](const auto& a, const auto& b) {
        return sameKey(a, b) && a.second.size() == b.second.size() &&
               std::equal(a.second.begin(), a.second.end(), b.second.begin(), sameKey);
    };
    if (data.size() != spectrum.size() || !std::equal(data.begin(), data.end(), spectrum.begin(), samePoints))
        return false;
    auto from = data.begin();
    for (auto& values : spectrum) {
        auto height = from->second.begin();
        for (auto& value : values.second)
            value.second = (height++)->second;
        ++from;
    }
    computeBox();
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
