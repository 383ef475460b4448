#pragma once

#include <QByteArray>
#include <QString>

/// Which reader opens a file: GridFile, SpectraFile or MeshFile.
enum class FileKind { Grid, Spectra, Mesh };

/// Tells the kind from the name and the first bytes (a few thousand are enough).
///
/// The ending of the name decides where it is plain: csv and tsv are spectra; ply, off, obj, stl and other
/// endings of meshes are meshes; asc, xyz and the endings of GDAL's formats are grids. Files with another
/// ending, txt and dat among them, are told by their bytes: a mesh by its first word; a grid by the header of
/// an ASCII grid or by rows of three numbers; spectra by rows of numbers parted by commas, semicolons or
/// tabs. What nothing tells is a grid, as GDAL knows the most formats and the names of grids inside files.
FileKind fileKind(const QString& path, const QByteArray& start);

/// The same, with the first bytes of the file if it can be read.
FileKind fileKind(const QString& path);
