#include "thinning.h"

#include <algorithm>

int thinning(int columns, int rows, int most)
{
    const int largest = std::max(1, std::min(columns, rows) - 1);
    const int intervals = std::max(columns, rows) - 1;
    const int smallest = std::clamp((intervals + most - 1) / most, 1, largest);
    const auto undrawn = [columns, rows](int step) { return (columns - 1) % step + (rows - 1) % step; };
    int best = smallest;
    for (int step = smallest + 1; step <= std::min(largest, smallest + smallest / 4); ++step) {
        if (undrawn(step) < undrawn(best))
            best = step;
    }
    return best;
}
