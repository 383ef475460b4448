#pragma once

#include "plots/pickpoints.h"
#include "plots/pickvolume.h"

#include <algorithm>
#include <cstddef>

namespace Zel3D {

/// Finds the points that may lie in a volume without looking at all of them: boxes around the groups of
/// neighbours, boxes around these, and so on.
class PickIndex
{
public:
    PickIndex() = default;
    /// Looks at every point once. The points must outlive the object.
    explicit PickIndex(const PickPoints& points);

    /// Appends the numbers of the points that may reach into the volume, ascending. \a reach(box) widens a
    /// box of points to the box of what is drawn at them.
    template <class Reach>
    void find(const PickVolume& volume, const Reach& reach, std::vector<int>& found) const
    {
        if (levels.empty())
            return;
        search(int(levels.size()) - 1, 0, int(levels.back().size()), volume, reach, found);
        sortAscending(found);
    }

private:
    static constexpr int fanOut = 16;
    static void sortAscending(std::vector<int>& found);

    template <class Reach>
    void search(int level, int begin, int end, const PickVolume& volume, const Reach& reach,
                std::vector<int>& found) const
    {
        const std::vector<Parallelepiped>& boxes = levels[std::size_t(level)];
        for (int i = begin; i < end; ++i) {
            const Parallelepiped& box = boxes[std::size_t(i)];
            // An empty box stays empty, however far a marker reaches.
            if (!(box.minimum.x() <= box.maximum.x()) || !volume.mayHold(reach(box)))
                continue;
            if (level > 0) {
                const auto below = int(levels[std::size_t(level) - 1].size());
                search(level - 1, i * fanOut, std::min((i + 1) * fanOut, below), volume, reach, found);
                continue;
            }
            const std::size_t before = found.size();
            points->group(i, found);
            const auto outside = [&](int index) {
                const QVector3D p = points->position(index);
                return !volume.mayHold(reach(Parallelepiped{p, p}));
            };
            found.erase(std::remove_if(found.begin() + std::ptrdiff_t(before), found.end(), outside),
                        found.end());
        }
    }

    const PickPoints* points = nullptr;
    std::vector<std::vector<Parallelepiped>> levels; ///< of the groups first
};

} // namespace Zel3D
