#include "plots/pickindex.h"

#include <cmath>
#include <limits>

namespace Zel3D {

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

Parallelepiped emptyBox()
{
    return {QVector3D(infinity, infinity, infinity), QVector3D(-infinity, -infinity, -infinity)};
}

void widen(Parallelepiped& box, const Parallelepiped& by)
{
    for (int k = 0; k < 3; ++k) {
        box.minimum[k] = std::min(box.minimum[k], by.minimum[k]);
        box.maximum[k] = std::max(box.maximum[k], by.maximum[k]);
    }
}

} // namespace

PickIndex::PickIndex(const PickPoints& all) : points(&all)
{
    std::vector<Parallelepiped> boxes;
    boxes.reserve(std::size_t(all.groups()));
    std::vector<int> indices;
    for (int g = 0; g < all.groups(); ++g) {
        indices.clear();
        all.group(g, indices);
        Parallelepiped box = emptyBox();
        for (int index : indices) {
            const QVector3D p = all.position(index);
            if (std::isfinite(p.x()) && std::isfinite(p.y()) && std::isfinite(p.z()))
                widen(box, {p, p});
        }
        boxes.push_back(box);
    }
    while (!boxes.empty()) {
        levels.push_back(std::move(boxes));
        boxes.clear();
        const std::vector<Parallelepiped>& below = levels.back();
        if (below.size() == 1)
            break;
        for (std::size_t i = 0; i < below.size(); i += fanOut) {
            Parallelepiped box = emptyBox();
            for (std::size_t k = i; k < std::min(i + fanOut, below.size()); ++k)
                widen(box, below[k]);
            boxes.push_back(box);
        }
    }
}

void PickIndex::sortAscending(std::vector<int>& found)
{
    std::sort(found.begin(), found.end());
}

} // namespace Zel3D
