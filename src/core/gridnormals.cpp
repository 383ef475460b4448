#include "core/gridnormals.h"

#include "core/tofloat.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

// The loops below are written for the compiler's vectoriser: plain arrays, no branches, no early exits. What
// does not exist (a neighbour beyond the edge) is a zero vector, which spans no triangle; what is not finite
// spans a triangle whose area is not finite. Both are masked by the same comparison.

namespace Zel3D {

namespace {

// qFuzzyIsNull() for a double: the squared length below which QVector3D does not normalise.
constexpr double fuzzyNull = 0.000000000001;

// Vectors as three arrays.
struct Vectors
{
    explicit Vectors(std::size_t count) : x(count), y(count), z(count) {}

    std::vector<float> x;
    std::vector<float> y;
    std::vector<float> z;
};

// Reads a column. Returns whether a coordinate is not finite as a float.
bool load(const double* values, std::size_t rows, Vectors& points)
{
    constexpr float most = std::numeric_limits<float>::max();
    float* x = points.x.data();
    float* y = points.y.data();
    float* z = points.z.data();
    int bad = 0;
    for (std::size_t j = 0; j < rows; ++j) {
        x[j] = toFloat(values[3 * j]);
        y[j] = toFloat(values[3 * j + 1]);
        z[j] = toFloat(values[3 * j + 2]);
        bad |=
            int(!(std::abs(x[j]) <= most)) | int(!(std::abs(y[j]) <= most)) | int(!(std::abs(z[j]) <= most));
    }
    return bad != 0;
}

void subtract(const float* a, const float* b, std::size_t count, float* difference)
{
    for (std::size_t j = 0; j < count; ++j)
        difference[j] = a[j] - b[j];
}

// Adds the unit normal of the triangle spanned by two edges. Returns whether the area is too large for the
// type that it is computed in.
template <class Real>
inline bool addNormal(float ax, float ay, float az, float bx, float by, float bz, float& x, float& y,
                      float& z)
{
    const auto cx = Real(ay * bz - az * by);
    const auto cy = Real(az * bx - ax * bz);
    const auto cz = Real(ax * by - ay * bx);
    const Real squared = cx * cx + cy * cy + cz * cz;
    const Real factor = Real(1) / std::sqrt(squared);
    const bool tooLarge = squared > std::numeric_limits<Real>::max();
    const bool usable = squared > Real(fuzzyNull) && squared <= std::numeric_limits<Real>::max();
    x += float(usable ? cx * factor : Real(0));
    y += float(usable ? cy * factor : Real(0));
    z += float(usable ? cz * factor : Real(0));
    return tooLarge;
}

// The normals of a column from the edges to the next (right) and from the previous column (left), and from
// the edges between its rows: element j is the edge to row j from the row below, element j + 1 the edge
// upwards. Returns whether an area was too large for the type.
template <class Real>
bool columnNormals(const Vectors& right, const Vectors& left, const Vectors& up, std::size_t rows,
                   double* normals)
{
    const float* rx = right.x.data();
    const float* ry = right.y.data();
    const float* rz = right.z.data();
    const float* lx = left.x.data();
    const float* ly = left.y.data();
    const float* lz = left.z.data();
    const float* ux = up.x.data();
    const float* uy = up.y.data();
    const float* uz = up.z.data();
    int tooLarge = 0;
    for (std::size_t j = 0; j < rows; ++j) {
        float x = 0.0F;
        float y = 0.0F;
        float z = 0.0F;
        tooLarge |= int(addNormal<Real>(rx[j], ry[j], rz[j], ux[j + 1], uy[j + 1], uz[j + 1], x, y, z));
        tooLarge |= int(addNormal<Real>(rx[j], ry[j], rz[j], ux[j], uy[j], uz[j], x, y, z));
        tooLarge |= int(addNormal<Real>(lx[j], ly[j], lz[j], ux[j], uy[j], uz[j], x, y, z));
        tooLarge |= int(addNormal<Real>(lx[j], ly[j], lz[j], ux[j + 1], uy[j + 1], uz[j + 1], x, y, z));
        const auto dx = Real(x);
        const auto dy = Real(y);
        const auto dz = Real(z);
        const Real squared = dx * dx + dy * dy + dz * dz;
        const Real factor = squared > Real(fuzzyNull) ? Real(1) / std::sqrt(squared) : Real(1);
        normals[3 * j] = double(float(dx * factor));
        normals[3 * j + 1] = double(float(dy * factor));
        normals[3 * j + 2] = double(float(dz * factor));
    }
    return tooLarge != 0;
}

} // namespace

bool gridNormals(const double* values, double* normals, std::size_t columns, std::size_t rows)
{
    if (columns == 0 || rows == 0)
        return false;
    Vectors current(rows);
    Vectors next(rows);
    Vectors left(rows);
    Vectors right(rows);
    Vectors up(rows + 1);
    const auto isFinite = [](double value) { return std::isfinite(value); };
    bool missing = false;
    const auto read = [&](std::size_t column, Vectors& points) {
        const double* first = values + 3 * column * rows;
        if (load(first, rows, points) && !missing)
            missing = !std::all_of(first, first + 3 * rows, isFinite);
    };
    read(0, current);
    for (std::size_t i = 0; i < columns; ++i) {
        if (i + 1 < columns) {
            read(i + 1, next);
            subtract(next.x.data(), current.x.data(), rows, right.x.data());
            subtract(next.y.data(), current.y.data(), rows, right.y.data());
            subtract(next.z.data(), current.z.data(), rows, right.z.data());
        } else {
            right = Vectors(rows);
        }
        subtract(current.x.data() + 1, current.x.data(), rows - 1, up.x.data() + 1);
        subtract(current.y.data() + 1, current.y.data(), rows - 1, up.y.data() + 1);
        subtract(current.z.data() + 1, current.z.data(), rows - 1, up.z.data() + 1);
        // Single precision is twice as fast; only very large grids need the range of a double.
        double* column = normals + 3 * i * rows;
        if (columnNormals<float>(right, left, up, rows, column))
            columnNormals<double>(right, left, up, rows, column);
        std::swap(left, right);
        std::swap(current, next);
    }
    return missing;
}

} // namespace Zel3D
