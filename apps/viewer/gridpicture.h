#pragma once

#include <QImage>

struct Grid;

/// A picture of a grid from above, north up, in the colours of the terrain and with its light. Its longer
/// side has at most so many pixels. Missing nodes are transparent.
QImage gridPicture(Grid& grid, int longerSide);
