#pragma once

#include "loadprogress.h"
#include "mesh.h"

#include <QCoreApplication>

#include <cstdint>
#include <unordered_map>

#include <assimp/matrix4x4.h>

struct aiFace;
struct aiMesh;
struct aiNode;
struct aiScene;

/// Makes one mesh of a scene; see MeshFile for what is joined and what is left out.
class MeshMerger
{
    Q_DECLARE_TR_FUNCTIONS(MeshMerger)

public:
    /// False when the load is cancelled. Throws std::bad_alloc.
    bool take(const aiScene& scene, const LoadProgress& progress);
    /// The mesh with its notes. Empties the merger.
    Mesh finish();

    /// How many polygons with an area there are.
    int cells() const { return m_mesh.cells.size(); }
    /// How many faces were left out because they have no area.
    int flat() const { return m_flat; }
    /// How many faces of one or two corners were left out.
    int pointsAndLines() const { return m_pointsAndLines; }

private:
    struct Place
    {
        float x = 0.0F;
        float y = 0.0F;
        float z = 0.0F;
        bool operator==(const Place& other) const { return x == other.x && y == other.y && z == other.z; }
    };
    struct PlaceHash
    {
        std::size_t operator()(const Place& place) const;
    };

    bool takeNode(const aiScene& scene, const aiNode& node, const aiMatrix4x4& above);
    bool takeMesh(const aiMesh& mesh, const aiMatrix4x4& transform);
    void takeFace(const aiMesh& mesh, const aiFace& face, const aiMatrix4x4& transform, bool mirrored);
    bool report();
    unsigned int vertexAt(const Place& place, QRgb color);
    bool hasArea(const QVector<unsigned int>& cell) const;

    Mesh m_mesh;
    LoadProgress m_progress;
    double m_faces = 0.0; ///< of the scene
    double m_taken = 0.0; ///< of them
    std::unordered_map<Place, unsigned int, PlaceHash> m_places;
    bool m_colored = false;
    int m_flat = 0;
    int m_infinite = 0;
    int m_pointsAndLines = 0;
    int m_unused = 0;
};
