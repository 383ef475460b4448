#include "core/celldata.h"
#include "core/griddata.h"
#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/dotaddition.h"
#include "view/light.h"

#include <GL/gl.h>

#include <QtTest>

#include <cmath>
#include <limits>

using namespace Zel3D;
using namespace fixture;

using Primitives = QVector<GLRecorder::Primitive>;
using Load = std::function<bool(SHPlot&)>;
Q_DECLARE_METATYPE(Load)

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// What the plot sends while its data are compiled.
Primitives drawn(Plot& plot)
{
    GLRecorder recorder;
    plot.updateData();
    return recorder.primitives();
}

Primitives drawn(Plot& plot, unsigned int mode)
{
    Primitives result;
    for (const auto& primitive : drawn(plot)) {
        if (primitive.mode == mode)
            result.append(primitive);
    }
    return result;
}

QStringList calls(Plot& plot)
{
    GLRecorder recorder;
    plot.updateData();
    return recorder.calls();
}

/// What the list of the data, compiled after that of the additions, sends when it is called; in the place of
/// a list that it calls what that sends.
QStringList dataList(const QStringList& all)
{
    const auto contents = [&all](int start) {
        return all.mid(start, all.indexOf("glEndList()", start) - start);
    };
    QStringList list = contents(all.indexOf(QRegularExpression("glNewList.*"), all.indexOf("glEndList()")));
    const QRegularExpression calling("^glCallList\\((\\d+)\\)$");
    for (int i = list.indexOf(calling); i >= 0; i = list.indexOf(calling)) {
        const QString name = calling.match(list.takeAt(i)).captured(1);
        const QStringList called = contents(all.indexOf(QRegularExpression("glNewList\\(" + name + ",.*")));
        for (int k = called.size() - 1; k > 0; --k)
            list.insert(i, called.at(k));
    }
    return list;
}

/// The nodes of primitives as "column row" pairs of digits: "00 10 01 11 | 10 20 11 21".
QString nodes(const Primitives& primitives)
{
    QStringList all;
    for (const auto& primitive : primitives) {
        QStringList one;
        for (const auto& vertex : primitive.vertices)
            one.append(QString("%1%2").arg(vertex.position[0]).arg(vertex.position[1]));
        all.append(one.join(' '));
    }
    return all.join(" | ");
}

/// The colour of ramp() at a height over a range.
std::array<double, 4> colorOf(double z, double low, double high)
{
    const double t = (z - low) / (high - low);
    const auto channel = [t](int end) { return int(t * end); };
    const QColor color(channel(200), channel(100), channel(50));
    return {color.redF(), color.greenF(), color.blueF(), 1.0};
}

std::array<double, 4> channels(const QColor& c)
{
    return {c.redF(), c.greenF(), c.blueF(), c.alphaF()};
}

QString line(const char* call, std::initializer_list<double> arguments)
{
    QStringList numbers;
    for (double argument : arguments)
        numbers.append(QString::number(argument));
    return QString("%1(%2)").arg(QLatin1String(call), numbers.join(','));
}

using Vertices = QVector<QVector3D>;
using Cells = QVector<QVector<unsigned int>>;

/// A quadrangle and a triangle folded at a common edge, and a cell of two corners.
const Vertices roof{{0, 0, 0}, {2, 0, 0}, {2, 2, 4}, {0, 2, 4}, {1, 4, 0}};
const Cells roofCells{{0, 1, 2, 3}, {3, 2, 4}, {0, 4}};

} // namespace

class TestSHPlot : public QObject
{
    Q_OBJECT
private slots:
    void gridOrder_data();
    void gridOrder();
    void surfaceVertices();
    void passesOfTheStyles_data();
    void passesOfTheStyles();
    void meshLines_data();
    void meshLines();
    void stateInTheList_data();
    void stateInTheList();
    void opaqueSurfacesAreNotBlended_data();
    void opaqueSurfacesAreNotBlended();
    void changingDataMakeTheSamePicture_data();
    void changingDataMakeTheSamePicture();
    void projections_data();
    void projections();
    void histogramHasABarANode();
    void cellSurfaceSendsTheNormalBehindTheVertex();
    void cellMeshHasEveryCell();
    void styleAdditionAlone();
    void normalArrows_data();
    void normalArrows();
    void holesInGrids_data();
    void holesInGrids();
    void holesInCells();
    void badDataAreRefused_data();
    void badDataAreRefused();
    void descendingRangesAreDrawnAscending();
    void picturesDependOnTheDataAlone();
    void storedResolutionBelowOne();
    void switchingTheKindOfDataEmptiesTheOther();
    void clearedPlotShowsNothing();
    void hiddenLinesAreHidden();
};

void TestSHPlot::gridOrder_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("strips");
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("markers");
    QTest::newRow("4 x 3, every node")
        << 4 << 3 << 1 << "00 10 01 11 02 12 | 10 20 11 21 12 22 | 20 30 21 31 22 32"
        << "10 11 12 | 20 21 22 | 01 11 21 31"
        << "00 10 20 30 31 32 22 12 02 02 01 00"
        << "00 01 02 10 11 12 20 21 22 30 31 32";
    QTest::newRow("10 x 10, every second: up to 8")
        << 10 << 10 << 2
        << "00 20 02 22 04 24 06 26 08 28 | 20 40 22 42 24 44 26 46 28 48 | "
           "40 60 42 62 44 64 46 66 48 68 | 60 80 62 82 64 84 66 86 68 88"
        << "20 22 24 26 28 | 40 42 44 46 48 | 60 62 64 66 68 | "
           "02 22 42 62 82 | 04 24 44 64 84 | 06 26 46 66 86"
        << "00 20 40 60 80 82 84 86 88 68 48 28 08 08 06 04 02 00"
        << "00 02 04 06 08 20 22 24 26 28 40 42 44 46 48 60 62 64 66 68 80 82 84 86 88";
    QTest::newRow("5 x 8, every third: markers end earlier than the surface")
        << 5 << 8 << 3 << "00 30 03 33 06 36"
        << "03 33"
        << "00 30 33 36 06 06 03 00"
        << "00 03";
    QTest::newRow("4 x 3, as large as the rows") << 4 << 3 << 3 << "00 30"
                                                 << ""
                                                 << ""
                                                 << "00";
    QTest::newRow("3 x 4, as large as the columns") << 3 << 4 << 3 << ""
                                                    << ""
                                                    << ""
                                                    << "00";
    QTest::newRow("4 x 3, larger than both") << 4 << 3 << 5 << ""
                                             << ""
                                             << ""
                                             << "";
    QTest::newRow("one node") << 1 << 1 << 1 << ""
                              << ""
                              << ""
                              << "00";
}

void TestSHPlot::gridOrder()
{
    QFETCH(int, columns);
    QFETCH(int, rows);
    QFETCH(int, step);
    Plot plot;
    plot.setResolution(step);
    plot.setPlotStyle(5);
    QVERIFY(Heights(columns, rows, plane).into(plot));
    QTEST(nodes(drawn(plot, GL_TRIANGLE_STRIP)), "strips");
    QTEST(nodes(drawn(plot, GL_LINE_STRIP)), "lines");
    QTEST(nodes(drawn(plot, GL_LINE_LOOP)), "border");
    plot.setPlotStyle(1);
    QTEST(nodes(drawn(plot, GL_POINTS)), "markers");
}

void TestSHPlot::surfaceVertices()
{
    // Heights that no float meets: still the lowest node has the first colour and the highest the last.
    const auto height = [](int i, int j) { return 0.1 + 0.1 * (i + 10.0 * j); };
    Plot plot;
    plot.setPlotStyle(4);
    QVERIFY(Heights(4, 3, height).into(plot));
    const QVector3D normal = QVector3D(-0.1F, -1.0F, 1.0F).normalized();
    int count = 0;
    for (const auto& strip : drawn(plot, GL_TRIANGLE_STRIP)) {
        for (const auto& v : strip.vertices) {
            QCOMPARE(v.position[2], height(int(v.position[0]), int(v.position[1])));
            QCOMPARE(v.color, colorOf(double(float(v.position[2])), double(0.1F), double(2.4F)));
            for (int k = 0; k < 3; ++k)
                QVERIFY(std::abs(v.normal[std::size_t(k)] - double(normal[k])) < 1e-5);
            ++count;
        }
    }
    QCOMPARE(count, 18);
}

void TestSHPlot::passesOfTheStyles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("surface"); // what colours it
    QTest::addColumn<bool>("mesh");
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("bars");
    QTest::newRow("no plot") << 0 << "" << false << 0 << 0;
    QTest::newRow("points") << 1 << "" << false << 12 << 0;
    QTest::newRow("wireframe") << 2 << "" << true << 0 << 0;
    QTest::newRow("hidden line") << 3 << "background" << true << 0 << 0;
    QTest::newRow("filled") << 4 << "data" << false << 0 << 0;
    QTest::newRow("filled and mesh") << 5 << "data" << true << 0 << 0;
    QTest::newRow("histogram") << 6 << "" << false << 0 << 12;
}

void TestSHPlot::passesOfTheStyles()
{
    QFETCH(int, style);
    QFETCH(QString, surface);
    QFETCH(bool, mesh);
    QFETCH(int, points);
    QFETCH(int, bars);
    Plot plot;
    plot.setPlotStyle(style);
    plot.setMeshColor(QColor(9, 8, 7));
    plot.setBackgroundColor(QColor(1, 2, 3));
    for (const bool cells : {false, true}) {
        if (cells)
            QVERIFY(plot.loadFromData(roof, {{0, 1, 2, 3}}, 1.0, 1.0));
        else
            QVERIFY(Heights(4, 3, plane).into(plot));
        const double top = cells ? 4.0 : 23.0;
        QMap<unsigned int, int> found;
        bool lines = false;
        for (const auto& primitive : drawn(plot)) {
            found[primitive.mode] += primitive.mode == GL_POINTS ? primitive.vertices.size() : 1;
            const auto color = primitive.vertices.at(0).color;
            const double z = primitive.vertices.at(0).position[2];
            if (primitive.mode == GL_LINE_STRIP || primitive.mode == GL_LINE_LOOP) {
                lines = true;
                QCOMPARE(color, channels(QColor(9, 8, 7)));
            } else if (!surface.isEmpty()) {
                QVERIFY(!lines); // the surface comes before the mesh
                QCOMPARE(color, surface == "data" ? colorOf(z, 0.0, top) : channels(QColor(1, 2, 3)));
            }
        }
        const int marks = cells ? 5 : 12;
        QCOMPARE(found.value(GL_TRIANGLE_STRIP), surface.isEmpty() || cells ? 0 : 3);
        QCOMPARE(found.value(GL_POLYGON), cells && !surface.isEmpty() ? 1 : bars ? 2 * marks : 0);
        QCOMPARE(found.value(GL_LINE_LOOP), mesh ? 1 : 0);
        QCOMPARE(found.value(GL_LINE_STRIP), mesh && !cells ? 3 : 0);
        QCOMPARE(found.value(GL_POINTS), points ? marks : 0);
        QCOMPARE(found.value(GL_QUADS), bars ? marks : 0);
    }
    // Without stops nothing at all is drawn.
    plot.setGradient("none", QLinearGradient());
    QVERIFY(drawn(plot).isEmpty());
}

void TestSHPlot::meshLines_data()
{
    QTest::addColumn<bool>("x");
    QTest::addColumn<bool>("y");
    QTest::addColumn<QString>("lines");
    QTest::newRow("both") << true << true << "10 11 12 | 20 21 22 | 01 11 21 31";
    QTest::newRow("along the columns") << true << false << "10 11 12 | 20 21 22";
    QTest::newRow("along the rows") << false << true << "01 11 21 31";
    QTest::newRow("none") << false << false << "";
}

void TestSHPlot::meshLines()
{
    QFETCH(bool, x);
    QFETCH(bool, y);
    Plot plot;
    plot.setPlotStyle(2);
    plot.setMeshLineWidth(3.0);
    plot.settingsRecord().getMesh().setXVisible(x);
    plot.settingsRecord().getMesh().setYVisible(y);
    QVERIFY(Heights(4, 3, plane).into(plot));
    QTEST(nodes(drawn(plot, GL_LINE_STRIP)), "lines");
    QCOMPARE(drawn(plot, GL_LINE_LOOP).size(), 1);
    // The border alone keeps the width in force.
    QCOMPARE(calls(plot).contains("glLineWidth(3)"), x || y);
}

void TestSHPlot::stateInTheList_data()
{
    QTest::addColumn<bool>("cells");
    QTest::newRow("grid") << false;
    QTest::newRow("cells") << true;
}

void TestSHPlot::stateInTheList()
{
    QFETCH(bool, cells);
    Plot plot;
    plot.setPlotStyle(5);
    plot.setPolygonOffset(1.5);
    plot.setMeshLineWidth(2.0);
    plot.setMeshSmooth(false);
    QVERIFY(cells ? plot.loadFromData(roof, roofCells, 1.0, 1.0) : Heights(4, 3, plane).into(plot));
    plot.makeCurrent();
    glBlendFunc(GL_ONE, GL_DST_ALPHA);
    glLineWidth(4.0F);
    const QStringList list = dataList(calls(plot));
    const auto at = [&](const QString& call) { return list.indexOf(call); };
    const int begin = list.indexOf(QRegularExpression("glBegin.*"));
    const int end = list.lastIndexOf(QRegularExpression("glBegin.*"));
    const QString offsetOn = line("glEnable", {GL_POLYGON_OFFSET_FILL});
    QVERIFY(at(offsetOn) >= 0 && at(offsetOn) < begin);
    QVERIFY(at("glPolygonOffset(1.5,1)") >= 0 && at("glPolygonOffset(1.5,1)") < begin);
    const int blend = at(line("glBlendFunc", {GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA}));
    QVERIFY(blend >= 0 && blend < begin);
    // The mode that OpenGL rejects is sent all the same, for the surface only.
    const int mode = at(line("glPolygonMode", {GL_FRONT_AND_BACK, 7}));
    QVERIFY(mode >= 0 && mode < begin);
    QVERIFY(at("glLineWidth(2)") >= 0 && at("glLineWidth(2)") < end);
    // Grids switch line smoothing to the mesh's; cells leave it alone.
    QCOMPARE(at(line("glDisable", {GL_LINE_SMOOTH})) >= 0, !cells);
    // Blending and width are put back before the capabilities.
    const int back = at(line("glBlendFunc", {GL_ONE, GL_DST_ALPHA}));
    QVERIFY(back > end && at("glLineWidth(4)") > back);
    QVERIFY(at(line("glDisable", {GL_POLYGON_OFFSET_FILL})) > back);
    plot.setPlotStyle(2);
    QVERIFY(!calls(plot).contains(line("glPolygonMode", {GL_FRONT_AND_BACK, 7})));
}

void TestSHPlot::opaqueSurfacesAreNotBlended_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("lowest");
    QTest::addColumn<bool>("cells");
    QTest::addColumn<bool>("blended");
    const QColor glass(0, 0, 0, 100);
    QTest::newRow("grid") << 5 << QColor(Qt::white) << QColor(Qt::black) << false << false;
    QTest::newRow("cells") << 5 << QColor(Qt::white) << QColor(Qt::black) << true << false;
    QTest::newRow("translucent grid") << 5 << QColor(Qt::white) << glass << false << true;
    QTest::newRow("translucent cells") << 5 << QColor(Qt::white) << glass << true << true;
    QTest::newRow("hidden line") << 3 << QColor(Qt::white) << glass << false << false;
    QTest::newRow("hidden line, glass") << 3 << glass << QColor(Qt::black) << false << true;
}

void TestSHPlot::opaqueSurfacesAreNotBlended()
{
    QFETCH(int, style);
    QFETCH(QColor, background);
    QFETCH(QColor, lowest);
    QFETCH(bool, cells);
    QFETCH(bool, blended);
    Plot plot;
    plot.setGradient("tested", ramp(lowest, Qt::red));
    plot.setBackgroundColor(background);
    plot.setPlotStyle(style);
    QVERIFY(harness::show(plot, 80, 80));
    QVERIFY(cells ? plot.loadFromData(roof, roofCells, 1.0, 1.0) : Heights(4, 3, plane).into(plot));
    const QStringList list = dataList(calls(plot));
    const int off = list.indexOf(line("glDisable", {GL_BLEND}));
    QCOMPARE(off < 0, blended);
    if (blended)
        return;
    QVERIFY(off < list.indexOf(QRegularExpression("glBegin.*")));
    // The mesh is drawn behind it, and its smooth lines need it.
    const QString mesh = line("glBegin", {double(cells ? GL_LINE_LOOP : GL_LINE_STRIP)});
    const int on = list.indexOf(line("glEnable", {GL_BLEND}), off);
    QVERIFY(on > off);
    QVERIFY(on < list.indexOf(mesh));
}

void TestSHPlot::changingDataMakeTheSamePicture_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("hole");
    QTest::addColumn<bool>("glass");
    QTest::addColumn<bool>("recorded");
    QTest::newRow("filled") << 4 << 1 << false << false << false;
    QTest::newRow("every third node") << 4 << 3 << false << false << false;
    QTest::newRow("translucent") << 4 << 1 << false << true << false;
    QTest::newRow("thinned to nothing") << 4 << 50 << false << false << false;
    QTest::newRow("with a hole: a list") << 4 << 1 << true << false << true;
    QTest::newRow("with a mesh: a list") << 5 << 1 << false << false << true;
    QTest::newRow("markers: a list") << 6 << 1 << false << false << true;
}

void TestSHPlot::changingDataMakeTheSamePicture()
{
    QFETCH(int, style);
    QFETCH(int, step);
    QFETCH(bool, hole);
    QFETCH(bool, glass);
    QFETCH(bool, recorded);
    const auto prepare = [&](Plot& plot) {
        QLinearGradient gradient;
        gradient.setColorAt(0.0, QColor(20, 40, 60, glass ? 120 : 255));
        gradient.setColorAt(1.0, Qt::red);
        plot.setGradient("tested", gradient);
        plot.setPlotStyle(style);
        plot.setResolution(step);
        plot.setRotation({40.0, 0.0, 20.0});
        plot.setLighting(true);
        plot.getLights().at(1)->setOn(true);
        return harness::show(plot, 200, 160);
    };
    const auto load = [&](Plot& plot, double phase, int columns) {
        return Heights(columns, 17,
                       [&](int i, int j) {
                           return hole && i == 5 && j == 6 ? std::numeric_limits<double>::quiet_NaN()
                                                           : 4.0 * std::sin(0.5 * i + phase) + 0.2 * j;
                       })
            .into(plot);
    };
    Plot lists;
    Plot changing;
    QVERIFY(prepare(lists) && prepare(changing));
    QSignalSpy spy(&changing, &SHPlot::dataChangingChanged);
    QVERIFY(changing.setDataChanging(true));
    QVERIFY(!changing.setDataChanging(true));
    QCOMPARE(spy.count(), 1);
    // At last the smallest that has an area.
    for (const int columns : {20, 19, 2}) {
        QVERIFY(load(lists, 0.1 * columns, columns));
        GLRecorder recorder;
        QVERIFY(load(changing, 0.1 * columns, columns));
        if (columns > 2)
            QCOMPARE(!recorder.primitives().isEmpty(), recorded);
        QCOMPARE(harness::grab(changing), harness::grab(lists));
    }
    // Back to the list, and nothing left of the arrays.
    QVERIFY(changing.setDataChanging(false));
    QCOMPARE(harness::grab(changing), harness::grab(lists));
    changing.clearData();
    lists.clearData();
    QCOMPARE(harness::grab(changing), harness::grab(lists));
}

void TestSHPlot::projections_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("projection");
    QTest::addColumn<bool>("cells");
    QTest::addColumn<double>("height");
    QTest::addColumn<int>("primitives");
    for (const int style : {0, 4}) {
        QTest::addRow("grid, style %d, none", style) << style << 0 << false << 0.0 << (style ? 3 : 0);
        QTest::addRow("grid, style %d, top", style) << style << 1 << false << 23.0 << (style ? 6 : 3);
        QTest::addRow("cells, style %d, bottom", style) << style << 2 << true << 0.0 << (style ? 6 : 3);
    }
}

void TestSHPlot::projections()
{
    QFETCH(int, style);
    QFETCH(int, projection);
    QFETCH(bool, cells);
    QFETCH(double, height);
    QFETCH(int, primitives);
    Plot plot;
    plot.setPlotStyle(style);
    plot.setViewProjection(ViewProjection(projection));
    QVERIFY(cells ? plot.loadFromData(roof, roofCells, 1.0, 1.0) : Heights(4, 3, plane).into(plot));
    const Primitives all = drawn(plot);
    QCOMPARE(all.size(), primitives);
    for (int i = 0; projection != 0 && i < 3; ++i) {
        for (const auto& v : all.at(i).vertices) {
            QCOMPARE(v.position[2], height);
            const double z =
                cells ? (v.position[1] == 2.0 ? 4.0 : 0.0) : plane(int(v.position[0]), int(v.position[1]));
            QCOMPARE(v.color, colorOf(z, 0.0, cells ? 4.0 : 23.0));
        }
    }
    QCOMPARE(calls(plot).contains(line("glPolygonMode", {GL_FRONT_AND_BACK, 7})), primitives > 0);
    // A subclass may draw it on its own, with the colours of the moment.
    if (!cells && projection != 0) {
        plot.setGradient("red", plain(Qt::red));
        GLRecorder recorder;
        plot.createGridViewProjection();
        QCOMPARE(recorder.primitives(GL_TRIANGLE_STRIP).size(), 3);
        QCOMPARE(recorder.primitives().at(0).vertices.at(5).color, channels(Qt::red));
    }
}

void TestSHPlot::histogramHasABarANode()
{
    Plot plot;
    plot.setPlotStyle(6);
    QVERIFY(Heights(3, 3, [](int i, int j) { return 1.0 + plane(i, j); }).into(plot));
    QStringList tops;
    const Primitives caps = drawn(plot, GL_POLYGON);
    for (int i = 0; i < caps.size(); i += 2)
        tops.append(QString::number(caps.at(i).vertices.at(0).position[2]));
    QCOMPARE(tops.join(' '), QString("1 11 21 2 12 22 3 13 23"));
    // Bars half a step wide to each side touch their neighbours.
    double right = -infinity;
    const Primitives bars = drawn(plot, GL_QUADS);
    for (const auto& v : bars.at(0).vertices)
        right = std::max(right, v.position[0]);
    QVERIFY(std::abs(right - 0.5) < 1e-9);
}

void TestSHPlot::cellSurfaceSendsTheNormalBehindTheVertex()
{
    Plot plot;
    plot.setPlotStyle(4);
    QVERIFY(plot.loadFromData(roof, roofCells, 1.0, 1.0));
    const Primitives polygons = drawn(plot, GL_POLYGON);
    QCOMPARE(nodes(polygons), QString("00 20 22 02 | 02 22 14 | 00 14"));
    // The normals of the corners, one corner late; that of vertex 1 is the first cell's own.
    const QVector<QVector3D>& normals = plot.getCellData()->getVertexNormals();
    QVERIFY((normals.at(1) - QVector3D(0, -2, 1).normalized()).length() < 1e-5F);
    QVector<unsigned int> before;
    for (const auto& cell : roofCells)
        before += cell;
    int k = 0;
    for (const auto& polygon : polygons) {
        for (const auto& v : polygon.vertices) {
            if (k > 0) {
                const QVector3D& n = normals.at(int(before.at(k - 1)));
                QCOMPARE(v.normal, (std::array<double, 3>{double(n.x()), double(n.y()), double(n.z())}));
            }
            ++k;
        }
    }
    QVERIFY(normals.at(2) != normals.at(1));
}

void TestSHPlot::cellMeshHasEveryCell()
{
    Plot plot;
    plot.setPlotStyle(2);
    plot.settingsRecord().getMesh().setXVisible(false);
    plot.settingsRecord().getMesh().setYVisible(false);
    QVERIFY(plot.loadFromData(roof, roofCells, 1.0, 1.0));
    QCOMPARE(nodes(drawn(plot)), QString("00 20 22 02 | 02 22 14 | 00 14"));
    const harness::Messages messages;
    plot.updateData();
    QCOMPARE(messages.all(), QStringList{"debug: \n\tSHPlot::createCellData begin plotStyle=2"});
}

void TestSHPlot::styleAdditionAlone()
{
    Plot plot;
    QVERIFY(plot.settingsRecord().setStyle(-1));
    QVERIFY(Heights(2, 2, plane).into(plot));
    QVERIFY(drawn(plot).isEmpty());
    plot.setStyleAddition(new DotAddition(2.0, false, Qt::red));
    const Primitives all = drawn(plot);
    QCOMPARE(nodes(all), QString("00 01 10 11"));
    QCOMPARE(all.at(0).vertices.at(0).color, channels(Qt::red));
    // Additions come in every style and before the data; markers of another type are not placed.
    class Elsewhere : public Dot
    {
    public:
        int type() const override { return 1; }
        Addition* clone() const override { return new Elsewhere(*this); }
    } elsewhere;
    DotAddition blue(1.0, false, Qt::blue);
    plot.addAddition(elsewhere);
    plot.addAddition(blue);
    const Primitives both = drawn(plot);
    QCOMPARE(both.size(), 2);
    QCOMPARE(both.at(0).vertices.at(0).color, channels(Qt::blue));
}

void TestSHPlot::normalArrows_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("step");
    QTest::addColumn<bool>("cells");
    QTest::addColumn<int>("count");
    QTest::newRow("every node") << 4 << 1 << false << 12;
    QTest::newRow("every second, bounds inclusive") << 4 << 2 << false << 2;
    QTest::newRow("no plot") << 0 << 1 << false << 12;
    QTest::newRow("not in a histogram") << 6 << 1 << false << 0;
    QTest::newRow("every vertex") << 4 << 1 << true << 5;
    QTest::newRow("cells, not in a histogram") << 6 << 1 << true << 0;
}

void TestSHPlot::normalArrows()
{
    QFETCH(int, style);
    QFETCH(int, step);
    QFETCH(bool, cells);
    QFETCH(int, count);
    Plot plot;
    plot.setPlotStyle(style);
    plot.setResolution(step);
    plot.setNormalsVisible(true);
    plot.settingsRecord().getNormals().setQuality(7.9);
    plot.settingsRecord().getNormals().setLength(0.5);
    QVERIFY(cells ? plot.loadFromData(roof, {{0, 1, 2, 3}, {3, 2, 4}}, 1.0, 1.0)
                  : Heights(4, 3, plane).into(plot));
    const double diagonal = cells ? std::sqrt(4.0 + 16.0 + 16.0) : std::sqrt(9.0 + 4.0 + 23.0 * 23.0);
    GLRecorder recorder;
    plot.updateNormals();
    const Primitives shafts = recorder.primitives(GL_LINES);
    QCOMPARE(shafts.size(), count);
    for (const auto& shaft : shafts)
        QVERIFY(std::abs(shaft.vertices.at(1).position[2] - 0.5 * diagonal) < 1e-4);
    if (count > 0) {
        QVERIFY(recorder.indexOf("glTranslatef(0,0,0)") >= 0);
        QVERIFY(recorder.calls().at(recorder.indexOf("gluCylinder")).endsWith(",7,1)"));
        QCOMPARE(shafts.at(0).vertices.at(0).color, colorOf(0.0, 0.0, 1.0));
        // Along (-1, -10, 1) from the first node of the plane: turned about (10, -1, 0).
        const double angle = std::acos(1.0 / std::sqrt(102.0)) * 180.0 / M_PI;
        const QString turn = recorder.calls().at(recorder.indexOf("glRotatef"));
        QVERIFY(cells || std::abs(turn.section('(', 1).section(',', 0, 0).toDouble() - angle) < 0.01);
    }
    plot.setNormalsVisible(false);
    recorder.clear();
    plot.updateNormals();
    QCOMPARE(recorder.count("glNewList"), 0);
}

void TestSHPlot::holesInGrids_data()
{
    QTest::addColumn<QPoint>("hole");
    QTest::addColumn<QString>("strips");
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QString>("border");
    QTest::newRow("inside") << QPoint(1, 1) << "20 30 21 31 22 32"
                            << "10 | 12 | 20 21 22 | 01 | 21 31 | 00 10 20 30 31 32 22 12 02 02 01 00"
                            << "";
    QTest::newRow("in a corner") << QPoint(3, 2) << "00 10 01 11 02 12 | 10 20 11 21 12 22 | 20 30 21 31"
                                 << "10 11 12 | 20 21 22 | 01 11 21 31 | 00 10 20 30 31 | 22 12 02 02 01 00"
                                 << "";
    QTest::newRow("at an edge") << QPoint(0, 1) << "10 20 11 21 12 22 | 20 30 21 31 22 32"
                                << "10 11 12 | 20 21 22 | 11 21 31 | 00 10 20 30 31 32 22 12 02 02 | 00"
                                << "";
}

void TestSHPlot::holesInGrids()
{
    QFETCH(QPoint, hole);
    for (const double missing : {notANumber, infinity}) {
        Plot plot;
        plot.setPlotStyle(5);
        QVERIFY(Heights(4, 3, [&](int i, int j) {
                    return QPoint(i, j) == hole ? missing : plane(i, j);
                }).into(plot));
        QTEST(nodes(drawn(plot, GL_TRIANGLE_STRIP)), "strips");
        QTEST(nodes(drawn(plot, GL_LINE_STRIP)), "lines");
        QTEST(nodes(drawn(plot, GL_LINE_LOOP)), "border");
        plot.setPlotStyle(1);
        QCOMPARE(drawn(plot, GL_POINTS).at(0).vertices.size(), 11);
        plot.setNormalsVisible(true);
        GLRecorder recorder;
        plot.updateNormals();
        QCOMPARE(recorder.primitives(GL_LINES).size(), 11);
    }
}

void TestSHPlot::holesInCells()
{
    Vertices vertices = roof;
    vertices[4].setZ(float(notANumber));
    Plot plot;
    plot.setPlotStyle(5);
    plot.setViewProjection(BottomProjection);
    QVERIFY(plot.loadFromData(vertices, roofCells, 1.0, 1.0));
    QCOMPARE(nodes(drawn(plot)), QString("00 20 22 02 | 00 20 22 02 | 00 20 22 02"));
    plot.setViewProjection(NoProjection);
    plot.setPlotStyle(1);
    QCOMPARE(nodes(drawn(plot)), QString("00 20 22 02"));
}

void TestSHPlot::badDataAreRefused_data()
{
    QTest::addColumn<Load>("load");
    QTest::addColumn<QString>("reason");
    static Heights good(3, 2, plane);
    static QVector3D column[2] = {{0, 0, 0}, {0, 1, 1}};
    static QVector3D* points[2] = {column, nullptr};
    static double* gap[3] = {good.data()[0], nullptr, good.data()[2]};
    const auto row = [](const char* name, const char* reason, const Load& load) {
        QTest::newRow(name) << load << QString(reason);
    };
    row("null", "array of columns is null",
        [](SHPlot& p) { return p.loadFromData(static_cast<double**>(nullptr), 3, 2, 0, 1, 0, 1); });
    row("null column", "column 1 is null", [](SHPlot& p) { return p.loadFromData(gap, 3, 2, 0, 1, 0, 1); });
    row("no columns", "0 columns by 2 rows",
        [](SHPlot& p) { return p.loadFromData(good.data(), 0, 2, 0, 1, 0, 1); });
    row("no rows", "3 columns by 0 rows",
        [](SHPlot& p) { return p.loadFromData(good.data(), 3, 0, 0, 1, 0, 1); });
    row("endless range", "xMax is inf",
        [](SHPlot& p) { return p.loadFromData(good.data(), 3, 2, 0, infinity, 0, 1); });
    row("range not a number", "yMin is nan",
        [](SHPlot& p) { return p.loadFromData(good.data(), 3, 2, 0, 1, notANumber, 1); });
    row("too large", "3 by 4000000000 nodes is too large",
        [](SHPlot& p) { return p.loadFromData(good.data(), 3, 4000000000U, 0, 1, 0, 1); });
    row("points: null column", "column 1 is null",
        [](SHPlot& p) { return p.loadFromData(points, 2, 2, 1.0, 1.0); });
    row("points: step", "stepY is nan",
        [](SHPlot& p) { return p.loadFromData(points, 1, 2, 1.0, notANumber); });
    row("no vertices", "no vertices", [](SHPlot& p) { return p.loadFromData(Vertices(), roofCells, 1, 1); });
    row("no cells", "no cells", [](SHPlot& p) { return p.loadFromData(roof, Cells(), 1, 1); });
    row("unknown vertex", "cell 1 names vertex 5, but there are only 5 vertices", [](SHPlot& p) {
        return p.loadFromData(roof, {{0, 1, 2}, {3, 5, 4}}, 1, 1);
    });
    row("cells: step", "stepX is inf",
        [](SHPlot& p) { return p.loadFromData(roof, roofCells, infinity, 1); });
}

void TestSHPlot::badDataAreRefused()
{
    QFETCH(Load, load);
    QFETCH(QString, reason);
    Plot plot;
    plot.setPlotStyle(5);
    QVERIFY(Heights(4, 3, plane).into(plot));
    QVERIFY(harness::show(plot, 80, 80));
    const QImage before = harness::grab(plot);
    const harness::Messages messages;
    QVERIFY(!load(plot));
    QCOMPARE(messages.warnings(reason), 1);
    QCOMPARE(messages.warnings("\"plot\""), 1);
    QCOMPARE(harness::grab(plot), before);
    plot.updateData();
    QCOMPARE(harness::grab(plot), before);
}

void TestSHPlot::descendingRangesAreDrawnAscending()
{
    Heights heights(4, 3, plane);
    Plot plot;
    plot.setPlotStyle(4);
    QVERIFY(plot.loadFromData(heights.data(), 4, 3, 3.0, 0.0, 2.0, 0.0));
    QCOMPARE(nodes(drawn(plot, GL_TRIANGLE_STRIP)).left(11), QString("00 10 01 11"));
    QCOMPARE(plot.getHull().minimum, QVector3D(0, 0, 0));
    QCOMPARE(plot.getHull().maximum, QVector3D(3, 2, 23));
}

void TestSHPlot::picturesDependOnTheDataAlone()
{
    Heights heights(4, 3, plane);
    Plot early;
    early.setPlotStyle(5);
    QVERIFY(heights.into(early)); // before there is a window
    QVERIFY(harness::show(early, 100, 100));
    Plot late;
    late.setPlotStyle(5);
    QVERIFY(harness::show(late, 100, 100));
    QVERIFY(late.loadFromData(roof, roofCells, 1.0, 1.0));
    const QImage cells = harness::grab(late);
    QVERIFY(Heights(7, 9, plane).into(late));
    QVERIFY(harness::grab(late) != cells);
    QVERIFY(heights.into(late));
    QCOMPARE(harness::grab(late), harness::grab(early));
    QVERIFY(late.getCellData()->isEmpty());
    QVERIFY(late.loadFromData(roof, roofCells, 1.0, 1.0));
    QCOMPARE(harness::grab(late), cells);
    QVERIFY(late.getGridData()->isEmpty());
}

void TestSHPlot::storedResolutionBelowOne()
{
    QSettings(fixture::organization, fixture::application).setValue("plot/resolution", 0);
    Plot plot;
    plot.settingsRecord().loadSettings("plot", fixture::organization, fixture::application);
    plot.setPlotStyle(4);
    QVERIFY(Heights(4, 3, plane).into(plot));
    QCOMPARE(drawn(plot, GL_TRIANGLE_STRIP).size(), 3);
    plot.setPlotStyle(1);
    QCOMPARE(nodes(drawn(plot, GL_POINTS)), QString());
    harness::clearStore();
}

void TestSHPlot::switchingTheKindOfDataEmptiesTheOther()
{
    Plot plot;
    plot.setPlotStyle(4);
    QVERIFY(Heights(4, 3, plane).into(plot));
    plot.updateDataType(0);
    plot.updateDataType(5);
    QVERIFY(!plot.getGridData()->isEmpty());
    plot.updateDataType(1);
    QVERIFY(plot.getGridData()->isEmpty());
    QCOMPARE(plot.getData()->getDataType(), 1);
    QVERIFY(drawn(plot).isEmpty());
    QVERIFY(plot.loadFromData(roof, roofCells, 1.0, 1.0));
    plot.updateDataType(0);
    QVERIFY(plot.getCellData()->isEmpty());
    QCOMPARE(plot.getData()->getDataType(), 0);
}

void TestSHPlot::clearedPlotShowsNothing()
{
    Plot plot;
    plot.setPlotStyle(5);
    plot.setNormalsVisible(true);
    QVERIFY(Heights(4, 3, plane).into(plot));
    QVERIFY(harness::show(plot, 80, 80));
    QVERIFY(pixels(harness::grab(plot), Qt::white) < 80 * 80);
    plot.clearData();
    QCOMPARE(pixels(harness::grab(plot), Qt::white), 80 * 80);
    plot.setMeshColor(Qt::red);
    QCOMPARE(pixels(harness::grab(plot), Qt::white), 80 * 80);
}

void TestSHPlot::hiddenLinesAreHidden()
{
    // Seen from the front, a hill hides the far half of the mesh.
    Plot plot;
    plot.setGradient("blue", plain(Qt::blue));
    plot.setPolygonOffset(1.0);
    QVERIFY(Heights(21, 21, [](int i, int j) {
                return 10.0 - 0.1 * ((i - 10.0) * (i - 10.0) + (j - 10.0) * (j - 10.0));
            }).into(plot));
    plot.setRotation({20.0, 0.0, 0.0});
    QVERIFY(harness::show(plot, 300, 300));
    const auto ink = [&](int style) {
        plot.slotSetPlotStyle(style);
        return 300 * 300 - pixels(harness::grab(plot), Qt::white);
    };
    const int everyLine = ink(2);
    const int visibleLines = ink(3);
    QVERIFY2(visibleLines > 0 && visibleLines < 0.8 * everyLine,
             qPrintable(QString("%1 of %2").arg(visibleLines).arg(everyLine)));
    // The filled surface has the colour of the gradient where the lines were, and no other ink.
    const int filled = ink(4);
    QVERIFY(filled > everyLine);
    QVERIFY(pixels(harness::grab(plot), Qt::blue) > 0.9 * filled);
}

int main(int argc, char* argv[])
{
    return harness::run<TestSHPlot>(argc, argv);
}

#include "tst_shplot.moc"
