// The spectrum plot against a bare display list of the same polygons from arrays that are ready: load, frame
// and reload of filled sheets. The two take turns; ends with a table of medians and ratios.

#include "comparison.h"
#include "surfacebench.h"

#include "core/spectrumbands.h"
#include "plots/spectrum.h"
#include "scene/legend.h"

#include <QApplication>

#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include <GL/gl.h>

namespace {

using bench::Comparison;
using Map = Zel3D::SpectrumData::Map;

const std::vector<double> stops{0.0, 0.25, 0.5, 0.75, 1.0};

QLinearGradient gradient()
{
    QLinearGradient result;
    const std::array<QColor, 5> colors{QColor(30, 60, 160), QColor(60, 160, 200), QColor(240, 240, 220),
                                       QColor(220, 140, 60), QColor(160, 20, 30)};
    for (std::size_t i = 0; i < colors.size(); ++i)
        result.setColorAt(stops[i], colors[i]);
    return result;
}

/// Peaks over a base line, from -0.1 to 1 at every phase, so that the box of the data is the same.
Map spectra(int count, int points, double phase)
{
    Map map;
    for (int k = 0; k < count; ++k) {
        for (int i = 0; i < points; ++i) {
            const double p = double(i) / points;
            const auto peak = [p](double middle, double width) {
                return std::exp(-(p - middle) * (p - middle) / (width * width));
            };
            const double ripple = 0.02 * std::sin(60.0 * p + phase + 0.2 * k);
            map[k][i] = 0.05 + 0.6 * peak(0.3 + 0.001 * k, 0.08) + 0.8 * peak(0.75, 0.05) + ripple;
        }
    }
    map.begin()->second.begin()->second = -0.1;
    map.rbegin()->second.rbegin()->second = 1.0;
    return map;
}

/// The camera of the library's view and a list of polygons.
class Floor : public QGLWidget
{
public:
    Floor() : QGLWidget(QGLFormat(QGL::DoubleBuffer | QGL::NoSampleBuffers)) {}
    ~Floor() override
    {
        makeCurrent();
        glDeleteLists(list, 1);
    }

    void prepare(const Map& map)
    {
        starts.clear();
        positions.clear();
        colors.clear();
        std::vector<double> levels;
        for (double stop : stops)
            levels.push_back(-0.1 + 1.1 * stop);
        const Zel3D::SpectrumBands bands(levels);
        const auto depth = double(map.size() - 1);
        for (const auto& [outer, values] : map) {
            const double y = 2.0 * outer / depth - 1.0;
            const auto width = double(values.size() - 1);
            for (auto to = std::next(values.begin()), from = values.begin(); to != values.end();
                 ++to, ++from) {
                bands.cut({from->first, from->second}, {to->first, to->second}, [&](const auto& band) {
                    starts.push_back(positions.size());
                    for (std::size_t i = 0; i < band.count; ++i) {
                        const auto t = float((band.corners[i].height + 0.1) / 1.1);
                        positions.push_back(
                            {float(2.0 * band.corners[i].position / width - 1.0), float(y), 2.0F * t - 1.0F});
                        colors.push_back({t, 1.0F - t, 0.5F, 1.0F});
                    }
                });
            }
        }
        starts.push_back(positions.size());
    }

    void load()
    {
        makeCurrent();
        glDeleteLists(list, 1);
        list = glGenLists(1);
        glNewList(list, GL_COMPILE);
        glEnable(GL_CULL_FACE);
        glFrontFace(GL_CCW);
        for (std::size_t i = 0; i + 1 < starts.size(); ++i)
            send(i);
        glFrontFace(GL_CW);
        for (std::size_t i = starts.size() - 1; i > 0; --i)
            send(i - 1);
        glDisable(GL_CULL_FACE);
        glEndList();
    }

    double angle = 0.0;

protected:
    void initializeGL() override
    {
        glEnable(GL_BLEND);
        glEnable(GL_DEPTH_TEST);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    }
    void resizeGL(int width, int height) override { glViewport(0, 0, width, height); }
    void paintGL() override
    {
        const double radius = std::sqrt(3.0);
        glClearColor(1.0F, 1.0F, 1.0F, 1.0F);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glOrtho(-radius, radius, -radius, radius, 0.0, 40.0 * radius);
        glTranslatef(0.0F, 0.0F, float(-7.0 * radius));
        glRotatef(-60.0F, 1.0F, 0.0F, 0.0F);
        glRotatef(float(angle), 0.0F, 0.0F, 1.0F);
        glCallList(list);
        glPopMatrix();
    }

private:
    void send(std::size_t polygon) const
    {
        glBegin(GL_POLYGON);
        for (std::size_t k = starts[polygon]; k < starts[polygon + 1]; ++k) {
            glColor4fv(colors[k].data());
            glVertex3fv(positions[k].data());
        }
        glEnd();
    }

    unsigned int list = 0;
    std::vector<std::size_t> starts; ///< of the polygons, and the end of the last one
    std::vector<std::array<float, 3>> positions;
    std::vector<std::array<float, 4>> colors;
};

/// The zoom at which the library shows its box as large as the floor does: the library's camera sees the
/// sphere around the box as it is, the floor's the one around the cube that the box is drawn as.
double floorZoom(int count, int points)
{
    const QVector3D sides(float(points - 1), float(count - 1), 1.1F);
    return double(sides.length()) / (std::sqrt(3.0) * double(points - 1));
}

class Library : public Zel3D::Spectrum
{
public:
    Library() : Spectrum("bench", "voran-bench", "voran-bench")
    {
        setFormat(QGLFormat(QGL::DoubleBuffer | QGL::NoSampleBuffers));
        setGradient("bench", gradient());
        setPlotStyle(3);
        setRotation({30.0, 0.0, 0.0});
        getLegend().setVisible(false); // the floor has none
    }
};

/// Each phase for both, one after the other.
bool measure(int count, int points, int rounds)
{
    const std::array<Map, 2> maps{spectra(count, points, 0.0), spectra(count, points, 1.0)};
    const std::string size = std::to_string(count) + " x " + std::to_string(points);
    Comparison load("load", size);
    Comparison frame("frame", size);
    Comparison reload("reload", size);
    for (int round = 0; round < rounds; ++round) {
        Floor floor;
        Library library;
        library.setZoom(floorZoom(count, points));
        if (!bench::show(floor) || !bench::show(library))
            return false;
        for (std::size_t i = 0; i < 5; ++i) {
            const Map& map = maps[i % 2];
            floor.prepare(map);
            (i == 0 ? load : reload)
                .run(
                    [&] {
                        floor.load();
                        bench::paint(floor);
                    },
                    [&] {
                        library.loadFromData(map, Zel3D::YAxis);
                        bench::paint(library);
                    });
        }
        bench::compareExtents(floor, library);
        for (int i = 0; i < 10; ++i) {
            floor.angle += 1.0;
            Zel3D::ValueXYZ<double> rotation = library.getRotation();
            rotation.z += 1.0;
            library.setRotation(rotation);
            frame.run([&] { bench::paint(floor); }, [&] { bench::paint(library); });
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
    Comparison::printHead("Filled spectra, 800 by 600, no multisampling");
    if (measure(60, 401, 7) && measure(50, 2000, 5))
        return 0;
    std::fprintf(stderr, "bench_spectrum: a window did not appear\n");
    return 1;
}
