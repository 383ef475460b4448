#pragma once

#include "plots/pickindex.h"

#include <QHash>

#include <memory>

namespace Zel3D {

class Addition;

/// What a pick of a plot sends to OpenGL: layers of markers at the points of the data, every marker under a
/// name of its own.
///
/// The names of a layer are as many as there are points, so that a name does not depend on what lies under
/// the cursor; only what may lie there is sent. The index of the points is made by the first pick.
class PickPass
{
public:
    PickPass();
    ~PickPass();
    PickPass(const PickPass&) = delete;
    PickPass& operator=(const PickPass&) = delete;

    /// Drops points and layers.
    void clear();
    /// Drops the layers, too.
    void setPoints(std::unique_ptr<PickPoints> points);
    /// Adds a copy of a marker at every point. The names start behind \a lastName and behind those of the
    /// layers before.
    void addMarkers(const Addition& marker, int lastName);
    /// The same with the markers' projections onto the plane of constant z.
    void addProjections(const Addition& marker, double z, int lastName);
    /// Number of names of all layers.
    int size() const;

    /// On: every marker is sent, as a check on the choice.
    void setEverything(bool on) { everything = on; }
    /// Chooses what send() sends. Returns the number of markers.
    int find(const PickVolume& volume);
    /// Sends the chosen markers with their names and enters them in the table, from which those of the last
    /// time are taken. OpenGL is in selection mode.
    void send(QHash<int, SelectedObjectsInfo>& table);
    /// Where the point with a name is drawn; false for a name of no layer.
    bool position(int name, QVector3D& place) const;

private:
    struct Layer;
    void add(const Addition& marker, bool projected, double z, int lastName);
    void choose(Layer& layer, const PickVolume& volume);

    std::unique_ptr<PickPoints> points;
    std::unique_ptr<PickIndex> index;
    std::vector<Layer> layers;
    std::vector<int> sent;
    bool everything = false;
};

} // namespace Zel3D
