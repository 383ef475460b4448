// Cells and the cylinders of a histogram against bare loops that send the same polygons from arrays that are
// ready: load, frame and reload.

#include "comparison.h"
#include "surfacebench.h"

#include <QApplication>

#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include <GL/gl.h>

namespace {

using bench::Comparison;
using bench::Heights;

struct Corner
{
    std::array<float, 3> position;
    std::array<float, 3> normal;
    std::array<float, 4> color;
};

std::array<float, 4> colorOf(double z)
{
    const auto t = float(0.5 + 0.5 * z);
    return {t, 1.0F - t, 0.5F, 1.0F};
}

class Shapes : public bench::FloorView
{
public:
    Shapes() : FloorView(false) {}
    virtual void prepare(const Heights& heights) = 0;
};

/// Triangles, each a polygon whose corners come with colour, position and normal.
class CellFloor : public Shapes
{
public:
    void prepare(const Heights& heights) override
    {
        corners.clear();
        const int nodes = heights.size();
        const double step = 2.0 / (nodes - 1);
        const auto add = [&](int i, int j) {
            const double z = heights.at(i, j);
            corners.push_back({{float(-1.0 + i * step), float(-1.0 + j * step), float(z)},
                               {float(0.1 * z), 0.0F, 1.0F},
                               colorOf(z)});
        };
        for (int i = 0; i + 1 < nodes; ++i) {
            for (int j = 0; j + 1 < nodes; ++j) {
                add(i, j);
                add(i + 1, j);
                add(i + 1, j + 1);
                add(i, j);
                add(i + 1, j + 1);
                add(i, j + 1);
            }
        }
    }

protected:
    void send() const override
    {
        for (std::size_t k = 0; k + 2 < corners.size(); k += 3) {
            glBegin(GL_POLYGON);
            for (std::size_t i = k; i < k + 3; ++i) {
                glColor4fv(corners[i].color.data());
                glVertex3fv(corners[i].position.data());
                glNormal3fv(corners[i].normal.data());
            }
            glEnd();
        }
    }

private:
    std::vector<Corner> corners;
};

/// Prisms: a colour each, the sides as one run of quads with a normal each, two caps.
class CylinderFloor : public Shapes
{
public:
    explicit CylinderFloor(int ribs) : count(std::size_t(ribs))
    {
        // As the library's, the outline reaches as far as the cylinder's share of the grid in x and in y.
        for (std::size_t k = 0; k < count; ++k) {
            widest = std::max(widest, std::abs(std::cos(around(double(k)))));
            deepest = std::max(deepest, std::abs(std::sin(around(double(k)))));
        }
    }
    void prepare(const Heights& heights) override
    {
        prisms.clear();
        const int nodes = heights.size();
        const double step = 2.0 / (nodes - 1);
        normals.clear();
        for (std::size_t k = 0; k < count; ++k) {
            const double nx = std::cos(around(double(k) + 0.5)) / deepest;
            const double ny = std::sin(around(double(k) + 0.5)) / widest;
            const double length = std::hypot(nx, ny);
            normals.push_back({float(nx / length), float(ny / length), 0.0F});
        }
        for (int i = 0; i < nodes; ++i) {
            for (int j = 0; j < nodes; ++j) {
                const double z = heights.at(i, j);
                Prism prism{colorOf(z), {}, {}};
                for (std::size_t k = 0; k < count; ++k) {
                    const float px = float(-1.0 + i * step) + x(double(k), 0.5 * step);
                    const float py = float(-1.0 + j * step) + y(double(k), 0.5 * step);
                    prism.lower.push_back({px, py, float(std::min(z, 0.0))});
                    prism.upper.push_back({px, py, float(std::max(z, 0.0))});
                }
                prisms.push_back(std::move(prism));
            }
        }
    }

protected:
    void send() const override
    {
        const std::array<float, 3> up{0.0F, 0.0F, 1.0F};
        const std::array<float, 3> down{0.0F, 0.0F, -1.0F};
        for (const Prism& prism : prisms) {
            glColor4fv(prism.color.data());
            glBegin(GL_QUADS);
            for (std::size_t k = 0; k < count; ++k) {
                const std::size_t next = k + 1 < count ? k + 1 : 0;
                glNormal3fv(normals[k].data());
                glVertex3fv(prism.lower[k].data());
                glVertex3fv(prism.lower[next].data());
                glVertex3fv(prism.upper[next].data());
                glVertex3fv(prism.upper[k].data());
            }
            glEnd();
            glBegin(GL_POLYGON);
            glNormal3fv(up.data());
            for (std::size_t k = 0; k < count; ++k)
                glVertex3fv(prism.upper[k].data());
            glEnd();
            glBegin(GL_POLYGON);
            glNormal3fv(down.data());
            for (std::size_t k = count; k > 0; --k)
                glVertex3fv(prism.lower[k - 1].data());
            glEnd();
        }
    }

private:
    struct Prism
    {
        std::array<float, 4> color;
        std::vector<std::array<float, 3>> lower;
        std::vector<std::array<float, 3>> upper;
    };

    double around(double corner) const { return 2.0 * M_PI * corner / double(count); }
    float x(double corner, double radius) const { return float(radius / widest * std::cos(around(corner))); }
    float y(double corner, double radius) const { return float(radius / deepest * std::sin(around(corner))); }

    double widest = 0.0;
    double deepest = 0.0;
    std::size_t count;
    std::vector<std::array<float, 3>> normals;
    std::vector<Prism> prisms;
};

constexpr int ribs = 6;

/// The library's side.
class Loader
{
public:
    virtual ~Loader() = default;
    virtual void prepare(const Heights& heights) = 0;
    virtual void load(Heights& heights) = 0;

    std::unique_ptr<Zel3D::SHPlot> plot = bench::makePlot(false);
};

class CellLoader : public Loader
{
public:
    void prepare(const Heights& heights) override
    {
        vertices.clear();
        const int nodes = heights.size();
        const double step = 2.0 / (nodes - 1);
        for (int i = 0; i < nodes; ++i) {
            for (int j = 0; j < nodes; ++j)
                vertices.append(
                    QVector3D(float(-1.0 + i * step), float(-1.0 + j * step), float(heights.at(i, j))));
        }
        // As with the surface, a reload brings new heights; what joins them stays.
        if (!cells.isEmpty())
            return;
        const auto index = [nodes](int i, int j) { return unsigned(i * nodes + j); };
        for (int i = 0; i + 1 < nodes; ++i) {
            for (int j = 0; j + 1 < nodes; ++j) {
                cells.append({index(i, j), index(i + 1, j), index(i + 1, j + 1)});
                cells.append({index(i, j), index(i + 1, j + 1), index(i, j + 1)});
            }
        }
    }
    void load(Heights& /*heights*/) override { plot->loadFromData(vertices, cells, 0.0, 0.0); }

private:
    QVector<QVector3D> vertices;
    QVector<QVector<unsigned int>> cells;
};

class CylinderLoader : public Loader
{
public:
    explicit CylinderLoader(int ribLines)
    {
        plot->setPlotStyle(6);
        plot->setCylinderRibNumber(ribLines);
        plot->setCylinderFrameVisible(false);
        plot->setCylinderAngleZ(0.0);
    }
    void prepare(const Heights& /*heights*/) override {}
    void load(Heights& heights) override
    {
        const auto nodes = unsigned(heights.size());
        plot->loadFromData(heights.columns(), nodes, nodes, -1.0, 1.0, -1.0, 1.0);
    }
};

template <class MakeFloor, class MakeLibrary>
bool measure(const char* what, int nodes, int rounds, const MakeFloor& makeFloor,
             const MakeLibrary& makeLibrary)
{
    const std::string size = std::to_string(nodes);
    Comparison load(what + std::string(", load"), size);
    Comparison frame(what + std::string(", frame"), size);
    Comparison reload(what + std::string(", reload"), size);
    std::array<Heights, 2> heights{Heights(nodes), Heights(nodes, 1.0)};
    for (int round = 0; round < rounds; ++round) {
        const std::unique_ptr<Shapes> floor = makeFloor();
        const std::unique_ptr<Loader> library = makeLibrary();
        if (!bench::show(*floor) || !bench::show(*library->plot))
            return false;
        for (std::size_t i = 0; i < 5; ++i) {
            Heights& current = heights[i % 2];
            floor->prepare(current);
            library->prepare(current);
            (i == 0 ? load : reload)
                .run(
                    [&] {
                        floor->load();
                        bench::paint(*floor);
                    },
                    [&] {
                        library->load(current);
                        bench::paint(*library->plot);
                    });
        }
        bench::compareExtents(*floor, *library->plot);
        for (int i = 0; i < 10; ++i) {
            floor->angle += 1.0;
            bench::turn(*library->plot, 1.0);
            frame.run([&] { bench::paint(*floor); }, [&] { bench::paint(*library->plot); });
        }
    }
    for (const Comparison& comparison : {load, frame, reload})
        comparison.print();
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    bench::keepMemory(argv);
    const QApplication application(argc, argv);
    Comparison::printHead("Triangle cells and six-sided cylinders of N by N nodes, no multisampling");
    const auto cells = [](int nodes, int rounds) {
        return measure(
            "cells", nodes, rounds, [] { return std::make_unique<CellFloor>(); },
            [] { return std::make_unique<CellLoader>(); });
    };
    const auto cylinders = [](int nodes, int rounds) {
        return measure(
            "cylinders", nodes, rounds, [] { return std::make_unique<CylinderFloor>(ribs); },
            [] { return std::make_unique<CylinderLoader>(ribs); });
    };
    if (cells(128, 7) && cells(512, 5) && cylinders(32, 7) && cylinders(128, 5))
        return 0;
    std::fprintf(stderr, "bench_shapes: a window did not appear\n");
    return 1;
}
