#include "core/celldata.h"
#include "core/griddata.h"
#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/arrowaddition.h"
#include "plots/dotaddition.h"
#include "plots/pickpoints.h"
#include "plots/spectrum.h"
#include "plots/sphereaddition.h"
#include "scene/viewframe.h"

#include <GL/gl.h>

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

using namespace Zel3D;
using namespace fixture;

using Prepare = std::function<void(SHPlot&)>;
Q_DECLARE_METATYPE(Prepare)

namespace {

constexpr int width = 240;
constexpr int height = 180;

/// Where a point of the scene is drawn, in the widget's logical pixels.
QPointF pixelIn(BasePlot& plot, const QVector3D& p)
{
    plot.makeCurrent();
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    plot.orthoGL();
    const WindowPoint at = projectToWindow(currentViewFrame(), p);
    glPopMatrix();
    const double ratio = plot.devicePixelRatioF();
    return {at.x / ratio, plot.height() - at.y / ratio};
}

/// A plot whose picks can be made step by step.
class PickPlot : public Plot
{
public:
    PickPlot() { setSelecting(true); }

    /// The selection buffer of a pick, hit by hit as OpenGL writes it.
    QVector<unsigned int> hits(const QPointF& position, bool everything)
    {
        setPickEverything(everything);
        makeCurrent();
        QVector<unsigned int> buffer(4 * prepareSelection(position) + 4);
        glSelectBuffer(buffer.size(), buffer.data());
        glRenderMode(GL_SELECT);
        glInitNames();
        const std::array<double, 16> matrix = pickMatrix(position);
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadMatrixd(matrix.data());
        select();
        glMatrixMode(GL_PROJECTION);
        glPopMatrix();
        const int count = glRenderMode(GL_RENDER);
        setPickEverything(false);
        buffer.resize(4 * qMax(count, 0));
        return buffer;
    }

    QPointF pixelOf(const QVector3D& p) { return pixelIn(*this, p); }

    SelectedObjectsInfo pickAt(const QPointF& position)
    {
        SelectedObjectsInfo found;
        const auto connection = connect(this, &ZelGLWidget::selectedObject, this,
                                        [&](const SelectedObjectsInfo& info) { found = info; });
        findObjects(position, Qt::NoModifier);
        disconnect(connection);
        return found;
    }

    using SHPlot::createPickPoints;
    using SHPlot::getNumberSelectedData;
    using SHPlot::selectableObjects;
    using SHPlot::selectionCapacity;
};

class PickSpectra : public Spectrum
{
public:
    PickSpectra() : Spectrum("spectra", fixture::organization, fixture::application)
    {
        setGradient("ramp", ramp());
    }
    QPointF pixelOf(const QVector3D& p) { return pixelIn(*this, p); }

    using Spectrum::getNumberSelectedData;
    using Spectrum::selectionCapacity;
};

double hill(int column, int row)
{
    return 4.0 + 3.0 * std::sin(0.4 * column) * std::cos(0.3 * row);
}

bool loadHill(SHPlot& plot, int columns, int rows)
{
    return Heights(columns, rows, hill).into(plot);
}

/// A hill with holes, too wide for one tile of the index and no power of two.
void holes(SHPlot& plot)
{
    Heights(37, 21, [](int i, int j) {
        return (i * 7 + j * 3) % 11 == 0 ? std::numeric_limits<double>::quiet_NaN() : hill(i, j);
    }).into(plot);
}

void points(SHPlot& plot)
{
    QVector<QVector<QVector3D>> values(25, QVector<QVector3D>(18));
    QVector<QVector3D*> starts;
    for (int i = 0; i < 25; ++i) {
        for (int j = 0; j < 18; ++j)
            values[i][j] = QVector3D(std::cos(0.25F * float(i)), std::sin(0.25F * float(i)), 0.1F * float(j));
        starts.append(values[i].data());
    }
    plot.loadFromData(starts.data(), 25, 18, 1.0, 1.0);
}

QVector<QVector3D> cloud(int count)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> place(1.0F, 100.0F);
    QVector<QVector3D> vertices;
    for (int i = 0; i < count; ++i)
        vertices.append(QVector3D(place(random), place(random), place(random)));
    vertices[5].setX(std::numeric_limits<float>::quiet_NaN());
    return vertices;
}

void cells(SHPlot& plot)
{
    plot.loadFromData(cloud(700), {{0, 1, 2}, {3, 4, 6}}, 1.0, 1.0);
}

Prepare style(int number, int resolution = 1)
{
    return [=](SHPlot& plot) {
        plot.setResolution(resolution);
        loadHill(plot, 30, 23);
        plot.setPlotStyle(number);
    };
}

} // namespace

class TestPicking : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<SelectedObjectsInfo>(); }

    void whatIsSentNearTheCursorIsEnough_data()
    {
        QTest::addColumn<Prepare>("prepare");
        QTest::newRow("surface") << style(4);
        QTest::newRow("every third node") << style(4, 3);
        QTest::newRow("points") << style(1);
        QTest::newRow("histogram") << style(6, 2);
        QTest::newRow("holes") << Prepare(holes);
        QTest::newRow("points of a parametric surface") << Prepare(points);
        QTest::newRow("cells") << Prepare(cells);
        QTest::newRow("contour plot") << Prepare([](SHPlot& plot) {
            plot.setViewProjection(TopProjection);
            style(4)(plot);
        });
        QTest::newRow("logarithmic") << Prepare([](SHPlot& plot) {
            plot.setLogarithmicData(ZAxis, true);
            style(4)(plot);
        });
        QTest::newRow("additions") << Prepare([](SHPlot& plot) {
            SphereAddition sphere(0.3, Qt::red, 6, 4);
            plot.addAddition(sphere);
            DotAddition dot(2.0, false, Qt::blue);
            plot.addAddition(dot);
            loadHill(plot, 12, 11);
            plot.setPlotStyle(0);
        });
        QTest::newRow("arrows") << Prepare([](SHPlot& plot) {
            loadHill(plot, 14, 12);
            auto* arrow = new ArrowAddition;
            arrow->setEnd(QVector3D(6, 5, 20));
            plot.setPlotStyle(1);
            plot.setStyleAddition(arrow);
            plot.addAddition(*arrow);
        });
    }
    void whatIsSentNearTheCursorIsEnough()
    {
        QFETCH(const Prepare, prepare);
        PickPlot plot;
        plot.setPlotStyle(4);
        prepare(plot);
        QVERIFY(harness::show(plot, width, height));
        std::mt19937 random(11);
        std::uniform_real_distribution<double> unit(0.0, 1.0);
        int withHits = 0;
        for (int i = 0; i < 150; ++i) {
            plot.setAutoScaling(i % 3 != 0);
            plot.setProjectionType(i % 2 == 0 ? Orthogonal : Perspective);
            plot.setRotation({360.0 * unit(random), 360.0 * unit(random), 360.0 * unit(random)});
            plot.setZoom(std::exp(3.0 * unit(random) - 1.0));
            plot.setViewportShift({0.4 * unit(random) - 0.2, 0.4 * unit(random) - 0.2});
            // Half of them near a point of the data.
            QPointF position(width * unit(random), height * unit(random));
            const auto all = plot.createPickPoints();
            if (i % 2 == 1)
                position = plot.pixelOf(all->position(int(all->size() * unit(random)))) + QPointF(0.7, 0.4);
            if (!QRectF(0, 0, width, height).contains(position))
                position = {width * 0.5, height * 0.5};
            const QVector<unsigned int> near = plot.hits(position, false);
            QCOMPARE(near, plot.hits(position, true));
            withHits += near.isEmpty() ? 0 : 1;
        }
        QVERIFY2(withHits >= 20, qPrintable(QString("only %1 picks hit").arg(withHits)));
    }

    void theCallersCoordinatesAreReported_data()
    {
        QTest::addColumn<Prepare>("prepare");
        QTest::addColumn<QVector3D>("drawn");
        QTest::addColumn<QVector<double>>("reported");
        const auto heights = [](double** z) {
            return Prepare([z](SHPlot& plot) { plot.loadFromData(z, 2, 3, 0.7, -0.1, 10.1, 30.1); });
        };
        static double columns[2][3] = {{0.1, 0.2, 0.3}, {0.4, 1000.1, 0.6}};
        static double* z[2] = {columns[0], columns[1]};
        QTest::newRow("a falling range") << heights(z) << QVector3D(0.7F, 20.1F, 1000.1F)
                                         << QVector<double>{0.7 - (0.7 + 0.1), 20.1, 1000.1};
        QTest::newRow("logarithmic z") << Prepare([heights](SHPlot& plot) {
            plot.setLogarithmicData(ZAxis, true);
            heights(z)(plot);
        }) << QVector3D(0.7F, 20.1F, std::log10(1000.1F))
                                       << QVector<double>{0.7 - (0.7 + 0.1), 20.1, 1000.1};
        QTest::newRow("a vertex of cells on logarithmic axes") << Prepare([](SHPlot& plot) {
            plot.setLogarithmicData(XAxis, true);
            plot.loadFromData({{1, 1, 1}, {100, 1, 1}, {100, 5, 3}}, {{0, 1, 2}}, 1.0, 1.0);
        }) << QVector3D(2, 5, 3) << QVector<double>{100, 5, 3};
    }
    void theCallersCoordinatesAreReported()
    {
        QFETCH(const Prepare, prepare);
        QFETCH(const QVector3D, drawn);
        QFETCH(const QVector<double>, reported);
        PickPlot plot;
        prepare(plot);
        plot.setPlotStyle(4);
        plot.setRotation({30, 0, 20});
        QVERIFY(harness::show(plot, width, height));
        const SelectedObjectsInfo found = plot.pickAt(plot.pixelOf(drawn));
        QVERIFY(found.valid);
        QCOMPARE(found.x, reported[0]);
        QCOMPARE(found.y, reported[1]);
        QCOMPARE(found.z, reported[2]);
        QVERIFY(!plot.pickAt({2.0, 2.0}).valid);
    }

    void spectraArePickedByTheirPoints_data()
    {
        QTest::addColumn<bool>("alongX");
        QTest::newRow("along x") << true;
        QTest::newRow("along y") << false;
    }
    void spectraArePickedByTheirPoints()
    {
        QFETCH(const bool, alongX);
        PickSpectra plot;
        plot.setPlotStyle(3);
        plot.setSelecting(true);
        QVERIFY(harness::show(plot, width, height));
        plot.loadFromData({{1.1, {{1, 2}, {2, 5}, {3, 4}}}, {2.1, {{1, 3}, {2.3, 0.1}, {3, 2}, {4, 2}}}},
                          alongX ? XAxis : YAxis);
        plot.setRotation({30, 0, 20});
        QCOMPARE(plot.getNumberSelectedData(), 7);
        QCOMPARE(plot.selectionCapacity, 7);
        SelectedObjectsInfo found;
        connect(&plot, &ZelGLWidget::selectedObject, this,
                [&](const SelectedObjectsInfo& info) { found = info; });
        const QVector3D drawn = alongX ? QVector3D(2.1F, 2.3F, 0.1F) : QVector3D(2.3F, 2.1F, 0.1F);
        plot.findObjects(plot.pixelOf(drawn), Qt::NoModifier);
        QVERIFY(found.valid);
        QCOMPARE(alongX ? found.x : found.y, 2.1);
        QCOMPARE(alongX ? found.y : found.x, 2.3);
        QCOMPARE(found.z, 0.1);
        plot.setResolution(2);
        plot.findObjects(plot.pixelOf(drawn), Qt::NoModifier);
        QVERIFY(!found.valid);
        QCOMPARE(plot.getNumberSelectedData(), 4);
        plot.setResolution(std::numeric_limits<int>::max());
        QCOMPARE(plot.getNumberSelectedData(), 2); // the first of each
        plot.setPlotStyle(0);
        QCOMPARE(plot.getNumberSelectedData(), 0);
    }

    void aPickFollowsWhatChanged()
    {
        PickPlot plot;
        plot.setSelecting(false);
        style(4)(plot);
        plot.setRotation({90, 0, 0});
        QVERIFY(harness::show(plot, width, height));
        const auto at = [&](int column, int row) {
            return plot.pickAt(plot.pixelOf(QVector3D(float(column), float(row), float(hill(column, row)))));
        };
        QVERIFY(!at(3, 5).valid);
        plot.setSelecting(true);
        QCOMPARE(at(3, 5).x, 3.0);
        QCOMPARE(at(3, 5).z, hill(3, 5));
        plot.setResolution(2);
        QVERIFY(at(4, 6).valid);
        QCOMPARE(plot.getNumberSelectedData(), 15 * 11);
        QCOMPARE(plot.selectionCapacity, 15 * 11);
        plot.slotSetPlotStyle(0);
        QVERIFY(!at(4, 6).valid);
        DotAddition dot(2.0, false, Qt::blue);
        Addition* const added = plot.addAddition(dot);
        QVERIFY(at(4, 6).valid);
        QVERIFY(plot.removeAddition(added));
        QVERIFY(!at(4, 6).valid);
        plot.slotSetPlotStyle(2);
        QVERIFY(at(4, 6).valid);
        plot.clearData();
        QVERIFY(!at(4, 6).valid);
        loadHill(plot, 8, 8);
        QVERIFY(plot.pickAt(plot.pixelOf(QVector3D(4, 2, float(hill(4, 2))))).valid);
    }

    void littleIsSentOnALargeGrid()
    {
        PickPlot plot;
        loadHill(plot, 300, 300);
        plot.setPlotStyle(4);
        plot.setRotation({40, 0, 30});
        QVERIFY(harness::show(plot, width, height));
        const QPointF middle(width / 2.0, height / 2.0);
        plot.pickAt(middle);
        GLRecorder recorder;
        QVERIFY(plot.pickAt(middle).valid);
        // About 90000 nodes on a quarter of the window's pixels, of which a pick sees 25; some stand behind
        // each other.
        QVERIFY(recorder.count("glLoadName") < 3000);
        QCOMPARE(plot.selectionCapacity, 90000);
        QVERIFY(plot.selectableObjects.size() < 3000);
    }

    void thePickedPointIsMarked()
    {
        PickPlot plot;
        loadHill(plot, 9, 9);
        plot.setPlotStyle(1);
        plot.setGradient("white", plain(Qt::white));
        plot.setRotation({90, 0, 0});
        QVERIFY(harness::show(plot, width, height));
        const QPointF place = plot.pixelOf(QVector3D(2, 6, float(hill(2, 6))));
        const auto darkAround = [&] {
            const QImage image = harness::grab(plot);
            const double ratio = plot.devicePixelRatioF();
            const QRect around((place * ratio).toPoint() - QPoint(12, 12) * ratio, QSize(25, 25) * ratio);
            return pixels(image.copy(around), QColor(13, 13, 13));
        };
        plot.pickAt(place);
        QCOMPARE(darkAround(), 0);
        QSignalSpy changed(&plot, &BasePlot::pickHighlightChanged);
        plot.slotSetPickHighlight(true);
        QCOMPARE(changed.count(), 1);
        QVERIFY(darkAround() > 15);
        plot.pickAt({1.0, 1.0});
        QCOMPARE(darkAround(), 0);
        plot.pickAt(place);
        QVERIFY(darkAround() > 15);
        plot.slotSetSelecting(false);
        QCOMPARE(darkAround(), 0);
    }
};

int main(int argc, char* argv[])
{
    return harness::run<TestPicking>(argc, argv);
}

#include "tst_picking.moc"
