#include "comparison.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <GL/gl.h>

namespace bench {

namespace {

/// The rectangle of the pixels that are not white.
QRect extent(QGLWidget& widget)
{
    widget.makeCurrent();
    const QImage image = widget.grabFrameBuffer();
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if ((image.pixel(x, y) & 0xFFFFFFU) != 0xFFFFFFU)
                result |= QRect(x, y, 1, 1);
        }
    }
    return result;
}

} // namespace

void Comparison::Times::add(const Work& work)
{
    const std::clock_t processor = std::clock();
    const auto start = std::chrono::steady_clock::now();
    work();
    wall.push_back(
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    used.push_back(1000.0 * double(std::clock() - processor) / CLOCKS_PER_SEC);
}

void Comparison::run(const Work& floorWork, const Work& libraryWork)
{
    const bool floorFirst = floor.wall.size() % 2 == 0;
    if (floorFirst)
        floor.add(floorWork);
    library.add(libraryWork);
    if (!floorFirst)
        floor.add(floorWork);
}

double Comparison::median(std::vector<double> times)
{
    const auto middle = times.begin() + std::ptrdiff_t(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

void Comparison::printHead(const char* title)
{
    std::printf("%s; medians in ms\n\n"
                "| what | size | floor | library | ratio | ratio of processor time | runs |\n"
                "| --- | --- | --- | --- | --- | --- | --- |\n",
                title);
}

void Comparison::print() const
{
    const double floorTime = median(floor.wall);
    const double libraryTime = median(library.wall);
    std::printf("| %s | %s | %.2f | %.2f | %.2f | %.2f | %zu |\n", name.c_str(), size.c_str(), floorTime,
                libraryTime, libraryTime / floorTime, median(library.used) / median(floor.used),
                floor.wall.size());
    std::fflush(stdout);
}

void paint(QGLWidget& widget)
{
    widget.updateGL();
    glFinish();
}

void compareExtents(QGLWidget& floor, QGLWidget& library)
{
    constexpr int tolerance = 4;
    const QRect a = extent(floor);
    const QRect b = extent(library);
    const int difference = std::max({std::abs(a.left() - b.left()), std::abs(a.right() - b.right()),
                                     std::abs(a.top() - b.top()), std::abs(a.bottom() - b.bottom())});
    if (a.isEmpty() || difference > tolerance)
        std::fprintf(stderr, "The pictures differ: the floor covers %d by %d pixels, the library %d by %d.\n",
                     a.width(), a.height(), b.width(), b.height());
}

} // namespace bench
