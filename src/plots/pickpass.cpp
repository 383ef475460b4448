#include "plots/pickpass.h"

#include "plots/addition.h"
#include "view/opengl.h"

#include <numeric>

namespace Zel3D {

struct PickPass::Layer
{
    std::unique_ptr<Addition> marker;
    bool projected = false;
    double height = 0.0; ///< of the plane of a projection
    int firstName = 0;
    std::vector<int> chosen;
};

PickPass::PickPass() = default;

PickPass::~PickPass() = default;

void PickPass::clear()
{
    setPoints(nullptr);
}

void PickPass::setPoints(std::unique_ptr<PickPoints> newPoints)
{
    layers.clear();
    index.reset();
    points = std::move(newPoints);
}

void PickPass::add(const Addition& marker, bool projected, double z, int lastName)
{
    if (!points)
        return;
    const int behind = layers.empty() ? 0 : layers.back().firstName + points->size() - 1;
    Layer layer;
    layer.marker.reset(marker.clone());
    layer.projected = projected;
    layer.height = z;
    layer.firstName = std::max(lastName, behind) + 1;
    layers.push_back(std::move(layer));
}

void PickPass::addMarkers(const Addition& marker, int lastName)
{
    add(marker, false, 0.0, lastName);
}

void PickPass::addProjections(const Addition& marker, double z, int lastName)
{
    add(marker, true, z, lastName);
}

int PickPass::size() const
{
    return points ? points->size() * int(layers.size()) : 0;
}

void PickPass::choose(Layer& layer, const PickVolume& volume)
{
    layer.chosen.clear();
    Parallelepiped origin;
    if (everything || !layer.marker->reach(origin)) {
        layer.chosen.resize(std::size_t(points->size()));
        std::iota(layer.chosen.begin(), layer.chosen.end(), 0);
        return;
    }
    if (!index)
        index = std::make_unique<PickIndex>(*points);
    const auto reach = [&layer](Parallelepiped box) {
        layer.marker->reach(box);
        if (layer.projected) {
            box.minimum.setZ(float(layer.height));
            box.maximum.setZ(float(layer.height));
        }
        return box;
    };
    index->find(volume, reach, layer.chosen);
}

int PickPass::find(const PickVolume& volume)
{
    std::size_t count = 0;
    for (Layer& layer : layers) {
        choose(layer, volume);
        count += layer.chosen.size();
    }
    return int(count);
}

void PickPass::send(QHash<int, SelectedObjectsInfo>& table)
{
    for (int name : sent)
        table.remove(name);
    sent.clear();
    for (const Layer& layer : layers) {
        glPushName(0);
        for (int i : layer.chosen) {
            const int name = layer.firstName + i;
            glLoadName(unsigned(name));
            table.insert(name, points->info(i));
            sent.push_back(name);
            if (layer.projected)
                layer.marker->selectProjection(points->position(i), layer.height);
            else
                layer.marker->select(points->position(i));
        }
        glPopName();
    }
}

bool PickPass::position(int name, QVector3D& place) const
{
    for (const Layer& layer : layers) {
        const int i = name - layer.firstName;
        if (i < 0 || i >= points->size())
            continue;
        place = points->position(i);
        return true;
    }
    return false;
}

} // namespace Zel3D
