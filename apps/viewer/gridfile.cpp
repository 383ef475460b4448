#include "gridfile.h"

#include "gdalmessages.h"
#include "gridplacement.h"
#include "memoryneed.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <cfloat>
#include <cmath>
#include <limits>
#include <memory>
#include <new>

#include <gdal.h>
#include <ogr_srs_api.h>

namespace {

struct CloseDataset
{
    void operator()(void* dataset) const { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<void, CloseDataset>;

Dataset openDataset(const QString& name)
{
    GDALAllRegister();
    // Text grids are read whole numbers first, and would lose the decimals that come later, when nothing asks
    // for a real type. Formats without the option ignore it.
    const char* const options[] = {"DATATYPE=Float64", nullptr};
    return Dataset(GDALOpenEx(name.toUtf8().constData(),
                              GDAL_OF_RASTER | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR, nullptr, options,
                              nullptr));
}

/// The name of a grid inside the file, when it is a container of several.
QString firstContained(GDALDatasetH dataset)
{
    return QString::fromUtf8(GDALGetMetadataItem(dataset, "SUBDATASET_1_NAME", "SUBDATASETS"));
}

double factor(GDALRasterBandH band)
{
    int given = 0;
    const double scale = GDALGetRasterScale(band, &given);
    return given != 0 && std::isfinite(scale) && scale != 0.0 ? scale : 1.0;
}

double summand(GDALRasterBandH band)
{
    int given = 0;
    const double offset = GDALGetRasterOffset(band, &given);
    return given != 0 && std::isfinite(offset) ? offset : 0.0;
}

/// Reads a band row by row into the grid's columns. False when GDAL fails.
bool readRows(GDALRasterBandH band, const GridPlacement& placement, Grid& grid)
{
    const GDALRasterBandH maskBand =
        (GDALGetMaskFlags(band) & GMF_ALL_VALID) == 0 ? GDALGetMaskBand(band) : nullptr;
    const double scale = factor(band);
    const double offset = summand(band);
    const auto columns = static_cast<std::size_t>(grid.columns);
    std::vector<double> values(columns);
    std::vector<unsigned char> mask(columns, 255);
    for (int line = 0; line < grid.rows; ++line) {
        if (GDALRasterIO(band, GF_Read, 0, line, grid.columns, 1, values.data(), grid.columns, 1, GDT_Float64,
                         0, 0) != CE_None)
            return false;
        if (maskBand != nullptr && GDALRasterIO(maskBand, GF_Read, 0, line, grid.columns, 1, mask.data(),
                                                grid.columns, 1, GDT_Byte, 0, 0) != CE_None)
            return false;
        const int row = placement.rowsReversed ? grid.rows - 1 - line : line;
        for (std::size_t i = 0; i < columns; ++i) {
            const double height = values[i] * scale + offset;
            // The plot draws in single precision; what does not fit there is no height. NaN fails too.
            if (mask[i] != 0 && std::abs(height) <= static_cast<double>(FLT_MAX))
                grid.columnStarts[placement.columnsReversed ? columns - 1 - i : i][row] = height;
        }
    }
    return true;
}

} // namespace

GridFile::GridFile(const QString& name) : m_name(name) {}

bool GridFile::fail(const QString& sentence)
{
    m_error = sentence;
    return false;
}

QString GridFile::openingFailure(const QString& reason) const
{
    const QFileInfo file(m_name);
    if (m_name.isEmpty())
        return tr("No file is named.");
    if (file.isDir())
        return tr("\"%1\" is a folder, not a grid file.").arg(m_name);
    if (!file.exists())
        return tr("\"%1\" does not exist.").arg(m_name);
    if (!file.isReadable())
        return tr("\"%1\" cannot be read: permission denied.").arg(m_name);
    if (file.isFile() && file.size() == 0)
        return tr("\"%1\" is empty.").arg(m_name);
    if (GDALIdentifyDriverEx(m_name.toUtf8().constData(), GDAL_OF_VECTOR, nullptr, nullptr) != nullptr)
        return tr("\"%1\" holds no raster.").arg(m_name);
    // GDAL's commonest reason repeats the name, which the sentence has already.
    if (reason.isEmpty() || reason.contains(QLatin1String("not recognized as")))
        return tr("\"%1\" cannot be read: it is no grid file of a known format.").arg(m_name);
    return tr("\"%1\" cannot be read: %2.").arg(m_name, reason);
}

bool GridFile::checkBand(void* dataset, int band)
{
    const int bands = GDALGetRasterCount(dataset);
    const QString contained = firstContained(dataset);
    if (bands == 0 && contained.isEmpty())
        return fail(tr("\"%1\" holds no raster.").arg(m_name));
    if (bands == 0)
        return fail(tr("\"%1\" holds several grids; name one of them, such as %2.").arg(m_name, contained));
    if (band < 1 || band > bands)
        return fail(tr("\"%1\" has no band %2; its bands are 1 to %3.").arg(m_name).arg(band).arg(bands));
    const GDALDataType type = GDALGetRasterDataType(GDALGetRasterBand(dataset, band));
    if (GDALDataTypeIsComplex(type) != 0)
        return fail(tr("\"%1\" holds complex numbers (%2); only real heights can be drawn.")
                        .arg(m_name, QString::fromUtf8(GDALGetDataTypeName(type))));
    const int columns = GDALGetRasterXSize(dataset);
    const int rows = GDALGetRasterYSize(dataset);
    if (columns < 2 || rows < 2)
        return fail(tr("\"%1\" has %2 x %3 nodes (columns x rows); a surface needs at least 2 x 2.")
                        .arg(m_name)
                        .arg(columns)
                        .arg(rows));
    return checkMemory(columns, rows);
}

bool GridFile::checkMemory(int columns, int rows)
{
    const MemoryNeed need(columns, rows);
    const std::optional<double> freeBytes = MemoryNeed::freeBytes();
    if (!freeBytes || need.fits(*freeBytes))
        return true;
    return fail(tr("\"%1\" needs about %2; %3 are free.")
                    .arg(m_name, need.text(), MemoryNeed::gigabytes(*freeBytes)));
}

bool GridFile::place(void* dataset, GridPlacement& placement)
{
    const int columns = GDALGetRasterXSize(dataset);
    const int rows = GDALGetRasterYSize(dataset);
    double transform[6];
    if (GDALGetGeoTransform(dataset, transform) != CE_None) {
        placement = GridPlacement::numbered(columns, rows);
        return true;
    }
    GridPlacement::Problem problem = GridPlacement::None;
    placement = GridPlacement::fromTransform(transform, columns, rows, problem);
    if (problem == GridPlacement::Rotated)
        return fail(tr("\"%1\" is rotated against the x and y axes; only grids along the axes can be drawn.")
                        .arg(m_name));
    if (problem == GridPlacement::Unusable)
        return fail(tr("\"%1\" has unusable georeferencing: its cells have no size at their coordinates.")
                        .arg(m_name));
    return true;
}

void GridFile::nameAxes(void* dataset, Grid& grid)
{
    double transform[6];
    if (GDALGetGeoTransform(dataset, transform) != CE_None) {
        grid.xName = tr("Column");
        grid.yName = tr("Row, from the bottom");
        return;
    }
    OGRSpatialReferenceH reference = GDALGetSpatialRef(dataset);
    if (!reference)
        return;
    if (OSRIsGeographic(reference)) {
        grid.xName = tr("Longitude (\302\260)");
        grid.yName = tr("Latitude (\302\260)");
    } else if (OSRIsProjected(reference)) {
        char* unit = nullptr;
        OSRGetLinearUnits(reference, &unit);
        const QString name = QString::fromUtf8(unit);
        const QString text = name == "metre" || name == "meter" ? QStringLiteral("m") : name;
        grid.xName = tr("Easting (%1)").arg(text);
        grid.yName = tr("Northing (%1)").arg(text);
    }
}

bool GridFile::fill(void* band, const GridPlacement& placement, Grid& grid)
{
    static const QRegularExpression origin("^.*, band \\d+: ");
    const GdalMessages messages;
    if (!readRows(band, placement, grid))
        return fail(tr("\"%1\" cannot be read: %2.").arg(m_name, messages.failure().remove(origin)));
    grid.measure();
    if (grid.validNodes == 0)
        return fail(tr("\"%1\" holds no heights: every node is missing.").arg(m_name));
    if (grid.zMax - grid.zMin > double(std::numeric_limits<float>::max()))
        return fail(
            tr("\"%1\" cannot be drawn: its heights span from %L2 to %L3, more than single precision holds.")
                .arg(m_name)
                .arg(grid.zMin)
                .arg(grid.zMax));
    return true;
}

bool GridFile::read(Grid& grid, int bandNumber)
{
    m_error.clear();
    const GdalMessages messages;
    const Dataset dataset = openDataset(m_name);
    if (!dataset)
        return fail(openingFailure(messages.failure()));
    GridPlacement placement;
    if (!checkBand(dataset.get(), bandNumber) || !place(dataset.get(), placement))
        return false;
    const GDALRasterBandH band = GDALGetRasterBand(dataset.get(), bandNumber);
    Grid found;
    try {
        found.allocate(GDALGetRasterXSize(dataset.get()), GDALGetRasterYSize(dataset.get()));
    } catch (const std::bad_alloc&) {
        const MemoryNeed need(GDALGetRasterXSize(dataset.get()), GDALGetRasterYSize(dataset.get()));
        return fail(tr("\"%1\" needs about %2, which cannot be had.").arg(m_name, need.text()));
    }
    found.xMin = placement.xMin;
    found.xMax = placement.xMax;
    found.yMin = placement.yMin;
    found.yMax = placement.yMax;
    nameAxes(dataset.get(), found);
    found.name = QString::fromUtf8(GDALGetDescription(band));
    found.unit = QString::fromUtf8(GDALGetRasterUnitType(band));
    if (!fill(band, placement, found))
        return false;
    grid = std::move(found);
    return true;
}
