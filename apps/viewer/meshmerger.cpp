#include "meshmerger.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include <assimp/scene.h>

namespace {

constexpr unsigned int noVertex = std::numeric_limits<unsigned int>::max();

constexpr unsigned int facesBetweenReports = 1024;

/// What joins coloured meshes without colours.
constexpr QRgb uncolored = qRgb(160, 160, 160);

QRgb colorOf(const aiMesh& mesh, unsigned int vertex)
{
    if (!mesh.HasVertexColors(0))
        return uncolored;
    const aiColor4D& color = mesh.mColors[0][vertex];
    const auto part = [](float value) {
        // Not a number becomes 0.
        return value > 0.0F ? int(std::lround(255.0F * std::min(value, 1.0F))) : 0;
    };
    return qRgba(part(color.r), part(color.g), part(color.b), part(color.a));
}

} // namespace

std::size_t MeshMerger::PlaceHash::operator()(const Place& place) const
{
    std::size_t seed = 0;
    for (const float coordinate : {place.x, place.y, place.z})
        seed = seed * 0x9E3779B97F4A7C15U + std::hash<float>()(coordinate);
    return seed ^ (seed >> 29);
}

bool MeshMerger::take(const aiScene& scene, const LoadProgress& progress)
{
    m_progress = progress;
    for (unsigned int i = 0; i < scene.mNumMeshes; ++i)
        m_faces += scene.mMeshes[i]->mNumFaces;
    const bool whole = takeNode(scene, *scene.mRootNode, aiMatrix4x4());
    m_places.clear();
    return whole;
}

/// Scenes that show a mesh several times have more faces than meshes tell; the progress waits at its end.
bool MeshMerger::report()
{
    return m_progress(m_taken / std::max(m_faces, 1.0));
}

bool MeshMerger::takeNode(const aiScene& scene, const aiNode& node, const aiMatrix4x4& above)
{
    const aiMatrix4x4 transform = above * node.mTransformation;
    for (unsigned int i = 0; i < node.mNumMeshes; ++i) {
        if (!takeMesh(*scene.mMeshes[node.mMeshes[i]], transform))
            return false;
    }
    for (unsigned int i = 0; i < node.mNumChildren; ++i) {
        if (!takeNode(scene, *node.mChildren[i], transform))
            return false;
    }
    return true;
}

unsigned int MeshMerger::vertexAt(const Place& place, QRgb color)
{
    const auto found = m_places.emplace(place, static_cast<unsigned int>(m_mesh.vertices.size()));
    if (found.second) {
        m_mesh.vertices.append(QVector3D(place.x, place.y, place.z));
        m_mesh.colors.append(color);
    }
    return found.first->second;
}

/// Newell's sum, which is twice the area of a polygon, whatever its shape.
bool MeshMerger::hasArea(const QVector<unsigned int>& cell) const
{
    std::array<double, 3> sum{};
    const QVector3D origin = m_mesh.vertices[static_cast<int>(cell.front())];
    const auto corner = [&](int k) {
        const QVector3D& at = m_mesh.vertices[static_cast<int>(cell[k % cell.size()])];
        return std::array<double, 3>{double(at.x()) - double(origin.x()), double(at.y()) - double(origin.y()),
                                     double(at.z()) - double(origin.z())};
    };
    for (int k = 0; k < cell.size(); ++k) {
        const auto a = corner(k);
        const auto b = corner(k + 1);
        for (std::size_t i = 0; i < 3; ++i)
            sum[i] += a[(i + 1) % 3] * b[(i + 2) % 3] - a[(i + 2) % 3] * b[(i + 1) % 3];
    }
    return sum != std::array<double, 3>{};
}

void MeshMerger::takeFace(const aiMesh& mesh, const aiFace& face, const aiMatrix4x4& transform, bool mirrored)
{
    if (face.mNumIndices == 1 || face.mNumIndices == 2) {
        ++m_pointsAndLines;
        return;
    }
    QVector<unsigned int> cell;
    bool finite = true;
    for (unsigned int k = 0; k < face.mNumIndices; ++k) {
        const aiVector3D at = transform * mesh.mVertices[face.mIndices[k]];
        finite = finite && std::isfinite(at.x) && std::isfinite(at.y) && std::isfinite(at.z);
        if (!finite)
            break;
        const unsigned int vertex = vertexAt({at.x, at.y, at.z}, colorOf(mesh, face.mIndices[k]));
        if (cell.isEmpty() || cell.back() != vertex)
            cell.append(vertex);
    }
    while (cell.size() > 1 && cell.front() == cell.back())
        cell.removeLast();
    if (!finite)
        ++m_infinite;
    else if (cell.size() < 3 || !hasArea(cell))
        ++m_flat;
    else {
        if (mirrored)
            std::reverse(cell.begin(), cell.end());
        m_mesh.cells.append(cell);
    }
}

bool MeshMerger::takeMesh(const aiMesh& mesh, const aiMatrix4x4& transform)
{
    m_colored = m_colored || mesh.HasVertexColors(0);
    // A transform that mirrors turns the winding round.
    const bool mirrored = transform.Determinant() < 0;
    std::vector<bool> used(mesh.mNumVertices, false);
    for (unsigned int i = 0; i < mesh.mNumFaces; ++i) {
        const aiFace& face = mesh.mFaces[i];
        for (unsigned int k = 0; k < face.mNumIndices; ++k)
            used[face.mIndices[k]] = true;
        takeFace(mesh, face, transform, mirrored);
        ++m_taken;
        if (i % facesBetweenReports == 0 && !report())
            return false;
    }
    m_unused += static_cast<int>(std::count(used.begin(), used.end(), false));
    return report();
}

Mesh MeshMerger::finish()
{
    // Corners of cells that were left out have their vertices still.
    std::vector<unsigned int> numbers(static_cast<std::size_t>(m_mesh.vertices.size()), noVertex);
    QVector<QVector3D> vertices;
    vertices.reserve(m_mesh.vertices.size());
    QVector<QRgb> colors;
    for (QVector<unsigned int>& cell : m_mesh.cells) {
        for (unsigned int& corner : cell) {
            unsigned int& number = numbers[corner];
            if (number == noVertex) {
                number = static_cast<unsigned int>(vertices.size());
                vertices.append(m_mesh.vertices[static_cast<int>(corner)]);
                if (m_colored)
                    colors.append(m_mesh.colors[static_cast<int>(corner)]);
            }
            corner = number;
        }
    }
    m_mesh.vertices = vertices;
    m_mesh.colors = colors;
    if (m_flat > 0)
        m_mesh.notes.append(tr("Faces without area left out: %L1.").arg(m_flat));
    if (m_infinite > 0)
        m_mesh.notes.append(tr("Faces with a corner at no finite place left out: %L1.").arg(m_infinite));
    if (m_pointsAndLines > 0)
        m_mesh.notes.append(tr("Points and lines left out: %L1.").arg(m_pointsAndLines));
    if (m_unused > 0)
        m_mesh.notes.append(tr("Vertices without a face left out: %L1.").arg(m_unused));
    Mesh made = std::move(m_mesh);
    *this = MeshMerger();
    return made;
}
