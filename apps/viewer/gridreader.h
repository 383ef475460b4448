#pragma once

#include "gridpart.h"

#include <vector>

class LoadProgress;
struct Grid;

/// Reads the heights of a part of a band of GDAL into a grid, in full or thinned.
///
/// Every node of a thinned grid is the mean of the block of nodes that it stands for, taken from the coarsest
/// overview of the file that is fine enough. Nodes that are masked, no numbers or too large to draw are
/// missing: they take no part in a mean, and where they are more than half of a block its node is missing.
class GridReader
{
public:
    /// The band of an open dataset, which must live as long as the reader.
    explicit GridReader(void* band);

    /// Fills an allocated grid from a rectangle of the file, in its columns and lines; the grid has as many
    /// nodes or fewer. False when GDAL fails or the load is cancelled.
    bool read(const GridPart& window, Grid& grid, const LoadProgress& progress);
    /// The file's first column has the largest x, its first line the largest y.
    void setReversed(bool columns, bool lines);

private:
    /// What a node of the source gives to a block, and to the block after it.
    struct Share
    {
        int block = 0;
        double weight = 0.0;
        double rest = 0.0;
    };
    /// Blocks of equal width, which is at least one node, along a line of the source or down its lines.
    struct Blocks
    {
        /// From start to end, in nodes from the outer edge of the first.
        Blocks(double start, double end, int count, int nodes);
        Share share(int node) const;

        double start;
        double end;
        int count;
        double width;
        int first; ///< node that a block has a part of
        int last;
    };

    bool readLines(int column, int line, int columns, int lines);
    bool readFull(const GridPart& window, Grid& grid, const LoadProgress& progress);
    bool readThinned(const GridPart& window, Grid& grid, const LoadProgress& progress);
    void chooseOverview(const GridPart& window, const Grid& grid);
    bool addLine(int line, const Blocks& columns, const LoadProgress& progress);
    void addBlocks(double weight, std::vector<double>& sums, std::vector<double>& weights) const;
    int placed(int index, int count, bool reversed) const { return reversed ? count - 1 - index : index; }

    void* m_band;
    void* m_source; ///< the band or one of its overviews
    void* m_mask = nullptr;
    double m_scale = 1.0;
    double m_offset = 0.0;
    bool m_columnsReversed = false;
    bool m_linesReversed = true;
    std::vector<double> m_values;
    std::vector<unsigned char> m_valid;
    std::vector<double> m_lineSums;
    std::vector<double> m_lineWeights;
};
