#include "plots/pickcloud.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace Zel3D {

namespace {

constexpr int groupSize = 64;
constexpr float mostCells = 1023.0F; // a direction: ten bits

bool isFinite(const QVector3D& p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y()) && std::isfinite(p.z());
}

/// Ten bits with two free places between each.
std::uint32_t spread(std::uint32_t number)
{
    std::uint32_t result = 0;
    for (unsigned bit = 0; bit < 10; ++bit)
        result |= (number >> bit & 1U) << 3 * bit;
    return result;
}

/// The place on the Z-order curve (Morton, "A computer oriented geodetic data base", 1966) through a box.
std::uint32_t placeOnCurve(const QVector3D& p, const Parallelepiped& box)
{
    std::uint32_t place = 0;
    for (int k = 0; k < 3; ++k) {
        const float extent = box.maximum[k] - box.minimum[k];
        const float part = extent > 0.0F && std::isfinite(extent) ? (p[k] - box.minimum[k]) / extent : 0.0F;
        place |= spread(std::uint32_t(part * mostCells)) << k;
    }
    return place;
}

} // namespace

void PickCloud::orderPoints()
{
    Parallelepiped box;
    std::vector<std::pair<std::uint32_t, int>> places;
    places.reserve(std::size_t(size()));
    for (int i = 0; i < size(); ++i) {
        const QVector3D p = position(i);
        if (!isFinite(p))
            continue;
        for (int k = 0; k < 3; ++k) {
            box.minimum[k] = places.empty() ? p[k] : std::min(box.minimum[k], p[k]);
            box.maximum[k] = places.empty() ? p[k] : std::max(box.maximum[k], p[k]);
        }
        places.emplace_back(0U, i);
    }
    for (auto& place : places)
        place.first = placeOnCurve(position(place.second), box);
    std::sort(places.begin(), places.end());
    order.clear();
    order.reserve(places.size());
    for (const auto& place : places)
        order.push_back(place.second);
}

int PickCloud::groups() const
{
    return (int(order.size()) + groupSize - 1) / groupSize;
}

void PickCloud::group(int number, std::vector<int>& indices) const
{
    const auto begin = order.begin() + std::ptrdiff_t(number) * groupSize;
    indices.insert(indices.end(), begin, order.end() - begin > groupSize ? begin + groupSize : order.end());
}

} // namespace Zel3D
