#include "gridreader.h"

#include "grid.h"
#include "loadprogress.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

#include <gdal.h>

namespace {

// Lines that are read at once: their nodes lie side by side in the grid's columns, which saves most of the
// time that writing them one by one takes.
constexpr int mostLines = 16;
constexpr int mostValues = 1 << 20;

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

GDALRasterBandH maskOf(GDALRasterBandH band)
{
    return (GDALGetMaskFlags(band) & GMF_ALL_VALID) == 0 ? GDALGetMaskBand(band) : nullptr;
}

} // namespace

GridReader::GridReader(void* band)
    : m_band(band), m_source(band), m_mask(maskOf(band)), m_scale(factor(band)), m_offset(summand(band))
{
}

void GridReader::setReversed(bool columns, bool lines)
{
    m_columnsReversed = columns;
    m_linesReversed = lines;
}

/// Heights of the source into m_values; missing ones are NaN.
bool GridReader::readLines(int column, int line, int columns, int lines)
{
    const std::size_t count = std::size_t(columns) * std::size_t(lines);
    m_values.resize(count);
    if (GDALRasterIO(m_source, GF_Read, column, line, columns, lines, m_values.data(), columns, lines,
                     GDT_Float64, 0, 0) != CE_None)
        return false;
    if (m_mask != nullptr) {
        m_valid.resize(count);
        if (GDALRasterIO(m_mask, GF_Read, column, line, columns, lines, m_valid.data(), columns, lines,
                         GDT_Byte, 0, 0) != CE_None)
            return false;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const double height = m_values[i] * m_scale + m_offset;
        // The plot draws in single precision; what does not fit there is no height. NaN fails too.
        const bool usable =
            (m_mask == nullptr || m_valid[i] != 0) && std::abs(height) <= static_cast<double>(FLT_MAX);
        m_values[i] = usable ? height : std::numeric_limits<double>::quiet_NaN();
    }
    return true;
}

bool GridReader::read(const GridPart& window, Grid& grid, const LoadProgress& progress)
{
    if (!progress(0.0))
        return false;
    const bool full = grid.columns == window.columns && grid.rows == window.rows;
    return full ? readFull(window, grid, progress) : readThinned(window, grid, progress);
}

bool GridReader::readFull(const GridPart& window, Grid& grid, const LoadProgress& progress)
{
    const int atOnce = std::clamp(mostValues / window.columns, 1, mostLines);
    for (int line = 0; line < window.rows; line += atOnce) {
        const int lines = std::min(atOnce, window.rows - line);
        if (!readLines(window.column, window.row + line, window.columns, lines))
            return false;
        for (int column = 0; column < window.columns; ++column) {
            double* const heights =
                grid.columnStarts[std::size_t(placed(column, window.columns, m_columnsReversed))];
            const double* value = m_values.data() + column;
            for (int i = 0; i < lines; ++i, value += window.columns)
                heights[placed(line + i, window.rows, m_linesReversed)] = *value;
        }
        if (!progress(double(line + lines) / window.rows))
            return false;
    }
    return true;
}

void GridReader::chooseOverview(const GridPart& window, const Grid& grid)
{
    const double columns = GDALGetRasterBandXSize(m_band);
    const double lines = GDALGetRasterBandYSize(m_band);
    for (int i = 0; i < GDALGetOverviewCount(m_band); ++i) {
        const GDALRasterBandH overview = GDALGetOverview(m_band, i);
        if (overview == nullptr)
            continue;
        const bool fineEnough = GDALGetRasterBandXSize(overview) / columns * window.columns >= grid.columns &&
                                GDALGetRasterBandYSize(overview) / lines * window.rows >= grid.rows;
        const bool coarser = GDALGetRasterBandXSize(overview) < GDALGetRasterBandXSize(m_source);
        // Some overviews lack the mask of their band.
        const bool masked = maskOf(m_band) == nullptr || maskOf(overview) != nullptr;
        if (fineEnough && coarser && masked)
            m_source = overview;
    }
    m_mask = maskOf(m_source);
}

/// Shares the nodes from start to end, in steps from the outer edge of the first, out to blocks of equal
/// width, which is at least one step.
GridReader::Shares GridReader::share(double start, double end, int blocks, int nodes)
{
    const double width = (end - start) / blocks;
    Shares made;
    made.first = std::clamp(int(start), 0, nodes - 1);
    const int last = std::clamp(int(std::ceil(end)) - 1, made.first, nodes - 1);
    for (int node = made.first; node <= last; ++node) {
        const double from = std::max(double(node), start);
        const double to = std::min(node + 1.0, end);
        Share share;
        share.block = std::clamp(int((from - start) / width), 0, blocks - 1);
        const double border = start + (share.block + 1) * width;
        share.weight = share.block == blocks - 1 ? to - from : std::clamp(border - from, 0.0, to - from);
        share.rest = to - from - share.weight;
        made.shares.push_back(share);
    }
    return made;
}

/// Adds the heights of a line of the source up by blocks.
bool GridReader::addLine(int line, const Shares& columns)
{
    std::fill(m_lineSums.begin(), m_lineSums.end(), 0.0);
    std::fill(m_lineWeights.begin(), m_lineWeights.end(), 0.0);
    const int count = int(columns.shares.size());
    for (int start = 0; start < count; start += mostValues) {
        const int width = std::min(mostValues, count - start);
        if (!readLines(columns.first + start, line, width, 1))
            return false;
        for (int i = 0; i < width; ++i) {
            const double height = m_values[std::size_t(i)];
            if (std::isnan(height))
                continue;
            const Share& share = columns.shares[std::size_t(start + i)];
            const auto block = std::size_t(share.block);
            m_lineSums[block] += share.weight * height;
            m_lineWeights[block] += share.weight;
            if (share.rest > 0.0) {
                m_lineSums[block + 1] += share.rest * height;
                m_lineWeights[block + 1] += share.rest;
            }
        }
    }
    return true;
}

void GridReader::addBlocks(double weight, std::vector<double>& sums, std::vector<double>& weights) const
{
    for (std::size_t i = 0; i < sums.size(); ++i) {
        sums[i] += weight * m_lineSums[i];
        weights[i] += weight * m_lineWeights[i];
    }
}

bool GridReader::readThinned(const GridPart& window, Grid& grid, const LoadProgress& progress)
{
    chooseOverview(window, grid);
    const int sourceColumns = GDALGetRasterBandXSize(m_source);
    const int sourceLines = GDALGetRasterBandYSize(m_source);
    const double alongX = double(sourceColumns) / GDALGetRasterBandXSize(m_band);
    const double alongY = double(sourceLines) / GDALGetRasterBandYSize(m_band);
    const Shares columns =
        share(window.column * alongX, (window.column + window.columns) * alongX, grid.columns, sourceColumns);
    const Shares lines =
        share(window.row * alongY, (window.row + window.rows) * alongY, grid.rows, sourceLines);
    const double fullWeight = window.columns * alongX / grid.columns * (window.rows * alongY / grid.rows);
    const auto width = std::size_t(grid.columns);
    m_lineSums.resize(width);
    m_lineWeights.resize(width);
    std::vector<double> sums(width);
    std::vector<double> weights(width);
    std::vector<double> nextSums(width);
    std::vector<double> nextWeights(width);
    int block = 0;
    const auto finishBlock = [&] {
        const int row = placed(block, grid.rows, m_linesReversed);
        for (std::size_t i = 0; i < width; ++i) {
            const auto column = std::size_t(placed(int(i), grid.columns, m_columnsReversed));
            // Sums of parts of nodes are not exact.
            if (weights[i] >= (0.5 - 1e-9) * fullWeight)
                grid.columnStarts[column][row] = sums[i] / weights[i];
        }
        sums.swap(nextSums);
        weights.swap(nextWeights);
        std::fill(nextSums.begin(), nextSums.end(), 0.0);
        std::fill(nextWeights.begin(), nextWeights.end(), 0.0);
        ++block;
    };
    const auto count = lines.shares.size();
    for (std::size_t i = 0; i < count; ++i) {
        const Share& share = lines.shares[i];
        while (block < share.block)
            finishBlock();
        if (!addLine(lines.first + int(i), columns))
            return false;
        addBlocks(share.weight, sums, weights);
        if (share.rest > 0.0)
            addBlocks(share.rest, nextSums, nextWeights);
        if (!progress(double(i + 1) / double(count)))
            return false;
    }
    while (block < grid.rows)
        finishBlock();
    return true;
}
