#pragma once

#include <QGLWidget>

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Two contenders, floor and library, that do the same in turns, so that what else the machine does meets
/// both.
class Comparison
{
public:
    using Work = std::function<void()>;

    /// What the table calls the work, and its size.
    Comparison(std::string workName, std::string workSize)
        : name(std::move(workName)), size(std::move(workSize))
    {
    }

    /// Times both once; who begins changes from call to call.
    void run(const Work& floor, const Work& library);

    /// A line of the table: medians in ms and their ratio, that of the processor time of all threads, which
    /// says more on a busy machine, and how often both ran.
    void print() const;
    static void printHead(const char* title);

private:
    struct Times
    {
        void add(const Work& work);

        std::vector<double> wall; ///< ms
        std::vector<double> used; ///< of the processors, ms
    };
    static double median(std::vector<double> times);

    std::string name;
    std::string size;
    Times floor;
    Times library;
};

/// Paints and waits until the picture is done.
void paint(QGLWidget& widget);

/// Says so on the error stream when the pictures of two widgets have different extents: then one of them has
/// more to fill, and their times do not compare.
void compareExtents(QGLWidget& floor, QGLWidget& library);

} // namespace bench
