#pragma once

/// The step between the nodes to draw so that at most about \a most of them stand along the longer side of a
/// grid, but never so far apart that the shorter side has no second node. Among the steps near that the one
/// is taken that leaves the least of the grid's far edges undrawn.
int thinning(int columns, int rows, int most);
