#include "meshsource.h"

#include "mesh.h"
#include "meshfile.h"
#include "startview.h"
#include "viewerplot.h"

#include <QFileInfo>

#include <algorithm>

namespace {

// Taking the cells and the first picture of them.
constexpr double secondsPerCell = 2e-6;

constexpr float flatPart = 0.25F;

/// Whether the y axis points upwards, which no mesh file says. Most formats have it so by custom; printers
/// have z, and what is flat along z is land.
bool isYUp(const QString& path, const Zel3D::Parallelepiped& box)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    const QVector3D extent = box.maximum - box.minimum;
    return ending != "stl" && ending != "3ds" && extent.z() > flatPart * std::min(extent.x(), extent.y());
}

} // namespace

MeshSource::MeshSource(const QString& path) : m_path(path)
{
    setName(QFileInfo(path).fileName());
}

std::unique_ptr<PlotView> MeshSource::read(const LoadProgress& progress)
{
    Mesh mesh;
    MeshFile reader(m_path);
    if (!reader.read(mesh, progress))
        return fail(reader.error());
    if (!progress.busy(LoadProgress::Drawing, mesh.cells.size() * secondsPerCell))
        return nullptr;
    auto plot = std::make_unique<ViewerPlot>();
    if (!plot->load(mesh))
        return failToDraw();
    if (isYUp(m_path, plot->getHull())) {
        plot->setStartRotation(StartView::rotationWithYUp());
        plot->resetView();
    }
    setDescription(tr("%L1 vertices, %L2 cells").arg(mesh.vertices.size()).arg(mesh.cells.size()));
    setNotes(mesh.notes);
    return plot;
}
