#include "surfacebench.h"

#include "comparison.h"

#include "plots/shplot.h"
#include "scene/legend.h"
#include "view/light.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLinearGradient>
#include <QWindow>

#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include <GL/gl.h>
#include <unistd.h>

namespace bench {

namespace {

QGLFormat windowFormat(bool multisampling)
{
    QGLFormat result(QGL::DoubleBuffer | (multisampling ? QGL::SampleBuffers : QGL::NoSampleBuffers));
    if (multisampling)
        result.setSamples(4);
    return result;
}

QLinearGradient gradient()
{
    QLinearGradient result;
    result.setColorAt(0.0, QColor(30, 60, 160));
    result.setColorAt(0.25, QColor(60, 160, 200));
    result.setColorAt(0.5, QColor(240, 240, 220));
    result.setColorAt(0.75, QColor(220, 140, 60));
    result.setColorAt(1.0, QColor(160, 20, 30));
    return result;
}

/// The surface as strips.
class FloorWidget : public FloorView
{
public:
    using FloorView::FloorView;

    void prepare(const Heights& heights)
    {
        nodes = heights.size();
        const auto count = std::size_t(nodes) * std::size_t(nodes);
        positions.resize(count);
        normals.resize(count);
        colors.resize(count);
        const double step = 2.0 / (nodes - 1);
        for (int i = 0; i < nodes; ++i) {
            for (int j = 0; j < nodes; ++j) {
                const std::size_t k = index(i, j);
                const double z = heights.at(i, j);
                positions[k] = {float(-1.0 + i * step), float(-1.0 + j * step), float(z)};
                const double dx =
                    heights.at(std::min(i + 1, nodes - 1), j) - heights.at(std::max(i - 1, 0), j);
                const double dy =
                    heights.at(i, std::min(j + 1, nodes - 1)) - heights.at(i, std::max(j - 1, 0));
                const double length = std::sqrt(dx * dx + dy * dy + 4.0 * step * step);
                normals[k] = {float(-dx / length), float(-dy / length), float(2.0 * step / length)};
                const auto t = float(0.5 + 0.5 * z);
                colors[k] = {t, 1.0F - t, 0.5F, 1.0F};
            }
        }
    }

protected:
    void send() const override
    {
        for (int i = 0; i < nodes - 1; ++i) {
            glBegin(GL_TRIANGLE_STRIP);
            for (int j = 0; j < nodes; ++j) {
                send(index(i, j));
                send(index(i + 1, j));
            }
            glEnd();
        }
    }

private:
    std::size_t index(int i, int j) const { return std::size_t(i) * std::size_t(nodes) + std::size_t(j); }
    void send(std::size_t k) const
    {
        glColor4fv(colors[k].data());
        glNormal3fv(normals[k].data());
        glVertex3fv(positions[k].data());
    }

    int nodes = 0;
    std::vector<std::array<float, 3>> positions;
    std::vector<std::array<float, 3>> normals;
    std::vector<std::array<float, 4>> colors;
};

class Floor : public Candidate
{
public:
    explicit Floor(bool multisampling) : view(multisampling) {}
    void prepare(Heights& heights) override { view.prepare(heights); }
    void load(Heights& /*heights*/) override { view.load(); }
    void rotate(double degrees) override { view.angle += degrees; }
    QGLWidget& widget() override { return view; }

private:
    FloorWidget view;
};

class Library : public Candidate
{
public:
    explicit Library(bool multisampling) : plot(makePlot(multisampling)) {}
    void prepare(Heights& /*heights*/) override {}
    void load(Heights& heights) override
    {
        const auto nodes = unsigned(heights.size());
        plot->loadFromData(heights.columns(), nodes, nodes, -1.0, 1.0, -1.0, 1.0);
    }
    void rotate(double degrees) override { turn(*plot, degrees); }
    QGLWidget& widget() override { return *plot; }

private:
    std::unique_ptr<Zel3D::SHPlot> plot;
};

} // namespace

FloorView::FloorView(bool multisampling) : QGLWidget(windowFormat(multisampling)) {}

FloorView::~FloorView()
{
    makeCurrent();
    glDeleteLists(list, 1);
}

void FloorView::load()
{
    makeCurrent();
    glDeleteLists(list, 1);
    list = glGenLists(1);
    glNewList(list, GL_COMPILE);
    send();
    glEndList();
}

void FloorView::initializeGL()
{
    glEnable(GL_BLEND);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_COLOR_MATERIAL);
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, 1);
    // The library's light: the floor shades as much as it does.
    const std::array<float, 4> gray{0.63F, 0.63F, 0.64F, 1.0F};
    const std::array<float, 4> white{1.0F, 1.0F, 1.0F, 1.0F};
    const std::array<float, 4> direction{0.87F, 0.87F, 1.22F, 0.0F};
    glLightfv(GL_LIGHT1, GL_POSITION, direction.data());
    glLightfv(GL_LIGHT1, GL_AMBIENT, gray.data());
    glLightfv(GL_LIGHT1, GL_DIFFUSE, white.data());
    glLightfv(GL_LIGHT1, GL_SPECULAR, white.data());
    glLightf(GL_LIGHT1, GL_QUADRATIC_ATTENUATION, 0.1F);
    glEnable(GL_LIGHT1);
}

void FloorView::resizeGL(int width, int height)
{
    glViewport(0, 0, width, height);
}

void FloorView::paintGL()
{
    const double radius = std::sqrt(3.0);
    glClearColor(1.0F, 1.0F, 1.0F, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glEnable(GL_LIGHTING);
    glEnable(GL_NORMALIZE);
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glOrtho(-radius, radius, -radius, radius, 0.0, 40.0 * radius);
    glTranslatef(0.0F, 0.0F, float(-7.0 * radius));
    glRotatef(-50.0F, 1.0F, 0.0F, 0.0F);
    glRotatef(float(angle), 0.0F, 0.0F, 1.0F);
    glCallList(list);
    glPopMatrix();
    glDisable(GL_LIGHTING);
}

std::unique_ptr<Zel3D::SHPlot> makePlot(bool multisampling)
{
    auto plot = std::make_unique<Zel3D::SHPlot>("bench", "voran-bench", "voran-bench");
    plot->setFormat(windowFormat(multisampling));
    plot->setGradient("bench", gradient());
    plot->setPlotStyle(4);
    plot->setLighting(true);
    plot->getLights().at(1)->setOn(true);
    plot->setRotation({40.0, 0.0, 0.0});
    plot->getLegend().setVisible(false); // the floor has none
    return plot;
}

void turn(Zel3D::ZelGLWidget& view, double degrees)
{
    Zel3D::ValueXYZ<double> rotation = view.getRotation();
    rotation.z += degrees;
    view.setRotation(rotation);
}

Heights::Heights(int nodes, const std::function<double(int, int)>& height) : count(nodes)
{
    const auto size = std::size_t(nodes);
    values.resize(size * size);
    pointers.resize(size);
    for (std::size_t i = 0; i < size; ++i) {
        pointers[i] = &values[i * size];
        for (std::size_t j = 0; j < size; ++j)
            pointers[i][j] = height(int(i), int(j));
    }
}

Heights::Heights(int nodes, double phase)
    : Heights(nodes, [nodes, phase](int i, int j) {
          const double x = 2.0 * i / (nodes - 1) - 1.0;
          const double y = 2.0 * j / (nodes - 1) - 1.0;
          return 0.7 * std::sin(3.0 * x + phase) * std::cos(4.0 * y) + 0.05 * std::sin(40.0 * x * y);
      })
{
    // The extremes are the same at every phase, so that the box of the data is, too.
    values.front() = -1.0;
    values.back() = 1.0;
}

void Candidate::frame()
{
    paint(widget());
}

std::unique_ptr<Candidate> makeFloor(bool multisampling)
{
    return std::make_unique<Floor>(multisampling);
}

std::unique_ptr<Candidate> makeLibrary(bool multisampling)
{
    return std::make_unique<Library>(multisampling);
}

bool show(QGLWidget& widget)
{
    widget.resize(800, 600);
    widget.show();
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 5000) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        if (widget.windowHandle() && widget.windowHandle()->isExposed())
            return true;
    }
    return false;
}

void keepMemory(char* argv[])
{
    const char* wanted = std::getenv("VORAN_BENCH_MALLOC");
    if (std::getenv("MALLOC_TRIM_THRESHOLD_") || (wanted && std::strcmp(wanted, "default") == 0))
        return;
    setenv("MALLOC_TRIM_THRESHOLD_", "4000000000", 1);
    setenv("MALLOC_MMAP_THRESHOLD_", "4000000000", 1);
    execv("/proc/self/exe", argv);
}

} // namespace bench
