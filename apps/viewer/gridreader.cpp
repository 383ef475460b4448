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

GridReader::Blocks::Blocks(double from, double to, int blocks, int nodes)
    : start(from),
      end(to),
      count(blocks),
      width((to - from) / blocks),
      first(std::clamp(int(from), 0, nodes - 1)),
      last(std::clamp(int(std::ceil(to)) - 1, first, nodes - 1))
{
}

GridReader::Share GridReader::Blocks::share(int node) const
{
    const double from = std::max(double(node), start);
    const double to = std::min(node + 1.0, end);
    Share share;
    share.block = std::min(int((from - start) / width), count - 1);
    const double border = start + (share.block + 1) * width;
    share.weight = share.block == count - 1 ? to - from : std::clamp(border - from, 0.0, to - from);
    share.rest = to - from - share.weight;
    return share;
}

/// Adds the heights of a line of the source up by blocks.
bool GridReader::addLine(int line, const Blocks& columns, const LoadProgress& progress)
{
    std::fill(m_lineSums.begin(), m_lineSums.end(), 0.0);
    std::fill(m_lineWeights.begin(), m_lineWeights.end(), 0.0);
    for (int start = columns.first, width = 0; start <= columns.last; start += width) {
        width = std::min(mostValues, columns.last - start + 1);
        // Lines can be very long: the progress stays and can be cancelled.
        if (!progress(0.0) || !readLines(start, line, width, 1))
            return false;
        for (int i = 0; i < width; ++i) {
            const double height = m_values[std::size_t(i)];
            if (std::isnan(height))
                continue;
            const Share share = columns.share(start + i);
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
    const Blocks columns(window.column * alongX, (window.column + window.columns) * alongX, grid.columns,
                         sourceColumns);
    const Blocks lines(window.row * alongY, (window.row + window.rows) * alongY, grid.rows, sourceLines);
    const double fullWeight = columns.width * lines.width;
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
    for (int line = lines.first; line <= lines.last; ++line) {
        const Share share = lines.share(line);
        while (block < share.block)
            finishBlock();
        if (!addLine(line, columns, progress))
            return false;
        addBlocks(share.weight, sums, weights);
        if (share.rest > 0.0)
            addBlocks(share.rest, nextSums, nextWeights);
        if (!progress(double(line - lines.first + 1) / double(lines.last - lines.first + 1)))
            return false;
    }
    while (block < grid.rows)
        finishBlock();
    return true;
}
