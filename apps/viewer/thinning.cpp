#include "thinning.h"

#include <algorithm>

int thinning(int columns, int rows, int most)
{
    const int intervals = std::max(columns, rows) - 1;
    const int smallest = std::max(1, (intervals + most - 1) / most);
    const auto undrawn = [columns, rows](int step) { return (columns - 1) % step + (rows - 1) % step; };
    int best = smallest;
    for (int step = smallest + 1; step <= smallest + smallest / 4; ++step) {
        if (undrawn(step) < undrawn(best))
            best = step;
    }
    return best;
}
