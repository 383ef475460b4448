#pragma once

#include "plots/shplot.h"

#include <QGLWidget>

#include <functional>
#include <memory>
#include <vector>

namespace bench {

/// Heights of N by N nodes, at first of a smooth surface with detail, and the column pointers that a plot
/// takes.
class Heights
{
public:
    explicit Heights(int nodes, double phase = 0.0);
    /// Heights given by column and row.
    Heights(int nodes, const std::function<double(int, int)>& height);
    int size() const { return count; }
    double** columns() { return pointers.data(); }
    double at(int column, int row) const
    {
        return values[std::size_t(column) * std::size_t(count) + std::size_t(row)];
    }

private:
    int count;
    std::vector<double> values;
    std::vector<double*> pointers;
};

/// What is measured: a lit, coloured, filled surface in a window of 800 by 600.
class Candidate
{
public:
    virtual ~Candidate() = default;
    /// What the candidate needs before its clock starts.
    virtual void prepare(Heights& heights) = 0;
    /// From data in memory to the display list; the frame follows.
    virtual void load(Heights& heights) = 0;
    virtual void rotate(double degrees) = 0;
    virtual QGLWidget& widget() = 0;

    /// Paints and waits until the picture is done.
    void frame();
};

/// A view with the camera and the light of the library's, bare, and a list of what send() sends.
class FloorView : public QGLWidget
{
public:
    explicit FloorView(bool multisampling);
    ~FloorView() override;

    /// Records the list anew.
    void load();

    double angle = 0.0; ///< around z, in degrees

protected:
    virtual void send() const = 0;
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;

private:
    unsigned int list = 0;
};

/// A filled, lit plot without a legend, under the camera of a FloorView once it has data.
std::unique_ptr<Zel3D::SHPlot> makePlot(bool multisampling);
/// Turns a view around z.
void turn(Zel3D::ZelGLWidget& view, double degrees);

/// The same geometry sent by a bare loop from arrays of floats that are ready: positions, normals, colours.
std::unique_ptr<Candidate> makeFloor(bool multisampling);
/// The library's surface plot.
std::unique_ptr<Candidate> makeLibrary(bool multisampling);

/// Shows a window of 800 by 600 and waits for it.
bool show(QGLWidget& widget);
inline bool show(Candidate& candidate)
{
    return show(candidate.widget());
}

/// Starts the program again with malloc told to keep its memory, unless that was done: the software renderer
/// otherwise gives memory back and faults it in again at some sizes, which can double a frame. Does nothing
/// when the environment has VORAN_BENCH_MALLOC=default.
void keepMemory(char* argv[]);

} // namespace bench
