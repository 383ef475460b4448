#include "filesource.h"

#include "filekind.h"
#include "gridsource.h"
#include "meshsource.h"
#include "spectrasource.h"

std::unique_ptr<PlotSource> sourceOfFile(const QString& path, int band, const GridChoice& choice)
{
    switch (fileKind(path)) {
    case FileKind::Spectra:
        return std::make_unique<SpectraSource>(path);
    case FileKind::Mesh:
        return std::make_unique<MeshSource>(path);
    case FileKind::Grid:
        break;
    }
    return std::make_unique<GridSource>(path, band, choice);
}
