#pragma once

#include "loadprogress.h"
#include "mesh.h"

#include <QCoreApplication>
#include <QString>

/// Reads a mesh file of any format that Assimp opens: OFF, OBJ, PLY, STL and more.
///
/// All meshes of the file become one, each where the file's scene places it. Polygons stay as they are.
/// Vertices at exactly the same place become one, so that shading is smooth also where the format repeats
/// them; values and colours of vertices are not read. Cells without area, and vertices without a cell, are
/// left out with a note.
class MeshFile
{
    Q_DECLARE_TR_FUNCTIONS(MeshFile)

public:
    explicit MeshFile(const QString& path);

    /// Reads the file and replaces the mesh. False when that fails: the mesh is as it was then and error()
    /// says why, or is empty when the progress was cancelled.
    bool read(Mesh& mesh, const LoadProgress& progress = {});
    /// One sentence that names the file and the reason; empty after a success.
    const QString& error() const { return m_error; }

private:
    bool fail(const QString& sentence);
    bool checkFile();
    bool readScene(Mesh& mesh, const LoadProgress& progress);
    QString openingFailure(const QString& reason) const;

    QString m_path;
    QString m_error;
};
