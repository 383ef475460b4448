#include "gridfile.h"

#include "gdalmessages.h"
#include "gridplacement.h"
#include "gridreader.h"
#include "memoryneed.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <limits>
#include <memory>
#include <new>

#include <gdal.h>
#include <ogr_srs_api.h>

namespace {

// Seven before and three behind the point tell the cells of surveys apart.
constexpr int coordinateDigits = 10;

struct CloseDataset
{
    void operator()(void* dataset) const { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<void, CloseDataset>;

Dataset openDataset(const QString& name)
{
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

/// Some formats search their whole file for the size of the grid, which GDAL cannot tell about.
void tellOfOpening(const QString& name, const LoadProgress& progress)
{
    constexpr double bytesPerSecond = 3e7;
    const GDALDriverH driver = GDALIdentifyDriver(name.toUtf8().constData(), nullptr);
    if (driver != nullptr && qstrcmp(GDALGetDriverShortName(driver), "XYZ") == 0)
        progress.busy(LoadProgress::Reading, double(QFileInfo(name).size()) / bytesPerSecond);
}

bool isSpread(const GridRange& range)
{
    // The plot's box is in single precision: it must still have a width there.
    return static_cast<float>(range.xMin) < static_cast<float>(range.xMax) &&
           static_cast<float>(range.yMin) < static_cast<float>(range.yMax);
}

/// The coordinates of the outer nodes when the nodes of a part are made of blocks of it: their centres.
GridRange thinnedRange(const GridLayout& layout, const GridSize& size)
{
    const double insetX = 0.5 * (double(layout.columns) / size.columns - 1.0) * layout.stepX();
    const double insetY = 0.5 * (double(layout.rows) / size.rows - 1.0) * layout.stepY();
    return {layout.range.xMin + insetX, layout.range.xMax - insetX, layout.range.yMin + insetY,
            layout.range.yMax - insetY};
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
    return true;
}

bool GridFile::checkMemory(const GridSize& size)
{
    const MemoryNeed need(size.columns, size.rows);
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

bool GridFile::choosePart(const GridChoice& choice, const GridPlacement& placement, const GridLayout& file)
{
    m_part = choice.range ? file.within(*choice.range) : file.whole();
    if (m_part.columns == 0 || m_part.rows == 0)
        return fail(tr("\"%1\" has no nodes in that part; its x are from %2 to %3, its y from %4 to %5.")
                        .arg(m_name)
                        .arg(placement.xMin, 0, 'g', coordinateDigits)
                        .arg(placement.xMax, 0, 'g', coordinateDigits)
                        .arg(placement.yMin, 0, 'g', coordinateDigits)
                        .arg(placement.yMax, 0, 'g', coordinateDigits));
    m_layout = {m_part.columns, m_part.rows, file.rangeOf(m_part)};
    if (!m_part.isSurface())
        return fail(
            tr("That part of \"%1\" has %2 x %3 nodes (columns x rows); a surface needs at least 2 x 2.")
                .arg(m_name)
                .arg(m_part.columns)
                .arg(m_part.rows));
    if (!isSpread(m_layout.range))
        return fail(tr("That part of \"%1\" cannot be drawn: at its coordinates single precision cannot tell "
                       "its nodes apart.")
                        .arg(m_name));
    return true;
}

bool GridFile::allocate(const GridSize& size, Grid& grid)
{
    if (!checkMemory(size))
        return false;
    try {
        grid.allocate(size.columns, size.rows);
    } catch (const std::bad_alloc&) {
        return fail(tr("\"%1\" needs about %2, which cannot be had.")
                        .arg(m_name, MemoryNeed(size.columns, size.rows).text()));
    }
    const GridRange range = thinnedRange(m_layout, size);
    grid.xMin = range.xMin;
    grid.xMax = range.xMax;
    grid.yMin = range.yMin;
    grid.yMax = range.yMax;
    return true;
}

bool GridFile::fill(void* band, const GridPlacement& placement, const LoadProgress& progress, Grid& grid)
{
    static const QRegularExpression origin("^.*, band \\d+: ");
    const GdalMessages messages;
    GridReader reader(band);
    reader.setReversed(placement.columnsReversed, placement.rowsReversed);
    GridPart window = m_part;
    if (placement.columnsReversed)
        window.column = GDALGetRasterBandXSize(band) - m_part.column - m_part.columns;
    if (placement.rowsReversed)
        window.row = GDALGetRasterBandYSize(band) - m_part.row - m_part.rows;
    if (!reader.read(window, grid, progress)) {
        if (progress.isCancelled())
            return false;
        return fail(tr("\"%1\" cannot be read: %2.").arg(m_name, messages.failure().remove(origin)));
    }
    return checkHeights(grid);
}

bool GridFile::checkHeights(Grid& grid)
{
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

bool GridFile::read(Grid& grid, int bandNumber, const GridChoice& choice, const LoadProgress& progress)
{
    m_error.clear();
    const GdalMessages messages;
    GDALAllRegister();
    tellOfOpening(m_name, progress);
    const Dataset dataset = openDataset(m_name);
    if (!dataset)
        return fail(openingFailure(messages.failure()));
    GridPlacement placement;
    if (!checkBand(dataset.get(), bandNumber) || !place(dataset.get(), placement))
        return false;
    const GridLayout file{GDALGetRasterXSize(dataset.get()),
                          GDALGetRasterYSize(dataset.get()),
                          {placement.xMin, placement.xMax, placement.yMin, placement.yMax}};
    Grid found;
    if (!choosePart(choice, placement, file) || !allocate(m_part.thinned(choice.budget), found))
        return false;
    const GDALRasterBandH band = GDALGetRasterBand(dataset.get(), bandNumber);
    nameAxes(dataset.get(), found);
    found.name = QString::fromUtf8(GDALGetDescription(band));
    found.unit = QString::fromUtf8(GDALGetRasterUnitType(band));
    if (!fill(band, placement, progress, found))
        return false;
    grid = std::move(found);
    return true;
}
