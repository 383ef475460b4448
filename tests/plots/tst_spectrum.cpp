#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/cylinderaddition.h"
#include "plots/dotaddition.h"
#include "plots/spectrum.h"
#include "plots/styleaction.h"

#include <GL/gl.h>

#include <QMenu>
#include <QToolBar>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace Zel3D;
using namespace fixture;

using Map = SpectrumData::Map;
using Values = std::map<double, double>;
using Primitives = QVector<GLRecorder::Primitive>;
Q_DECLARE_METATYPE(Map)
Q_DECLARE_METATYPE(Values)

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

class SpectrumPlot : public Spectrum
{
public:
    SpectrumPlot() : Spectrum("plot", fixture::organization, fixture::application)
    {
        setGradient("ramp", ramp());
        getLegend().setVisible(false);
    }
    using Spectrum::calculateHull;
    using Spectrum::drawPolygon;
    using Spectrum::settingsRecord;
    using Spectrum::visitPoints;
};

/// One spectrum at 0, with a point at each of 0, 1, 2 and so on.
Map one(const QVector<double>& heights)
{
    Map map;
    for (int i = 0; i < heights.size(); ++i)
        map[0.0][i] = heights[i];
    return map;
}

QLinearGradient threeStops()
{
    QLinearGradient gradient;
    gradient.setColorAt(0.0, QColor(0, 0, 0));
    gradient.setColorAt(0.5, QColor(0, 200, 0));
    gradient.setColorAt(1.0, QColor(200, 0, 0));
    return gradient;
}

Primitives drawn(SpectrumPlot& plot)
{
    GLRecorder recorder;
    plot.updateData();
    return recorder.primitives();
}

QString number(double value)
{
    return QString::number(value, 'g', 4);
}

/// What a plot sends, in order: "mode: position,height ..." of each primitive and "CW" or "CCW" in front of
/// what is drawn with culling. Of spectra that stand along x the position is y. With \a outer the spectrum's
/// place stands before the mode.
QString sent(SpectrumPlot& plot, bool outer = false)
{
    const QMap<unsigned int, QString> modes{{GL_POINTS, "points"},
                                            {GL_LINES, "lines"},
                                            {GL_LINE_STRIP, "strip"},
                                            {GL_TRIANGLES, "triangles"},
                                            {GL_POLYGON, "polygon"}};
    GLRecorder recorder;
    plot.updateData();
    const std::size_t along = plot.getSpectrumData()->getAxis() == XAxis ? 0 : 1;
    QStringList all;
    int next = 0;
    bool culling = false;
    for (const QString& call : recorder.calls()) {
        if (call == QString("glEnable(%1)").arg(GL_CULL_FACE) ||
            call == QString("glDisable(%1)").arg(GL_CULL_FACE))
            culling = call.startsWith("glEnable");
        if (culling && call.startsWith("glFrontFace"))
            all.append(call == QString("glFrontFace(%1)").arg(GL_CW) ? "CW" : "CCW");
        if (!call.startsWith("glBegin"))
            continue;
        const GLRecorder::Primitive& primitive = recorder.primitives().at(next++);
        QStringList vertices;
        for (const auto& v : primitive.vertices)
            vertices.append(number(v.position[1 - along]) + ',' + number(v.position[2]));
        const QString place =
            outer ? '@' + number(primitive.vertices.at(0).position[along]) + ' ' : QString();
        all.append(place + modes.value(primitive.mode) + ": " + vertices.join(' '));
    }
    return all.join("; ");
}

/// The part of the text behind the second front face: one of the two passes.
QString secondPass(const QString& text)
{
    return text.section(QRegularExpression("C?CW(; |$)"), -1);
}

} // namespace

class TestSpectrum : public QObject
{
    Q_OBJECT
private slots:
    void whatTheStylesDraw_data();
    void whatTheStylesDraw();
    void bothSidesInOppositeOrders_data();
    void bothSidesInOppositeOrders();
    void pieces_data();
    void pieces();
    void bandsFollowTheStops_data();
    void bandsFollowTheStops();
    void everyVertexHasItsDataColor_data();
    void everyVertexHasItsDataColor();
    void coincidentStopsKeepTheirSides();
    void polygonOfThePoints();
    void resolutionThinsThePoints_data();
    void resolutionThinsThePoints();
    void holesInterruptTheCurve();
    void stateInTheList();
    void badDataAreRefused_data();
    void badDataAreRefused();
    void ownDataCanBeLoadedAgain();
    void emptyingThePlot_data();
    void emptyingThePlot();
    void fixedBoxReplacesTheBox();
    void logarithmicDirections_data();
    void logarithmicDirections();
    void styleActions();
    void barsWithoutASpacing();
    void everySheetIsSeenOnceFromBothSides_data();
    void everySheetIsSeenOnceFromBothSides();
};

void TestSpectrum::whatTheStylesDraw_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no plot") << 0 << "";
    QTest::newRow("points") << 1 << "points: 0,1 1,2";
    QTest::newRow("lines") << 2 << "strip: 0,1 1,2";
    QTest::newRow("filled") << 3 << "CCW; polygon: 0,0 0,1 1,2 1,0; CW; polygon: 0,0 0,1 1,2 1,0";
    QTest::newRow("filled and frame") << 4
                                      << "CCW; polygon: 0,0 0,1 1,2 1,0; lines: 0,1 1,2; "
                                         "CW; polygon: 0,0 0,1 1,2 1,0; lines: 0,1 1,2";
    QTest::newRow("unknown") << 5 << "";
    QTest::newRow("the marker of the style") << -1 << "points: 0,1 1,2";
    QTest::newRow("no marker of the style") << -2 << "";
}

void TestSpectrum::whatTheStylesDraw()
{
    QFETCH(int, style);
    SpectrumPlot plot;
    plot.setGradient("plain", plain(Qt::red));
    QVERIFY(plot.loadFromData(one({1, 2}), XAxis));
    if (style >= 0)
        plot.setPlotStyle(style);
    else
        plot.settingsRecord().setStyle(-1);
    if (style == -1)
        plot.setStyleAddition(new DotAddition(2.0, false, Qt::green));
    QTEST(sent(plot), "expected");
    for (const auto& primitive : drawn(plot)) {
        const bool frame = style == 4 && primitive.mode == GL_LINES;
        const QColor color(frame ? Qt::black : style == -1 ? Qt::green : Qt::red);
        for (const auto& v : primitive.vertices)
            QCOMPARE(v.color, (std::array<double, 4>{color.redF(), color.greenF(), color.blueF(), 1.0}));
    }
    // Without stops nothing is drawn but the markers that the host added.
    plot.setGradient("none", QLinearGradient());
    QCOMPARE(sent(plot), QString());
    DotAddition marker(1.0, false, Qt::blue);
    plot.addAddition(marker);
    QCOMPARE(sent(plot), QString("points: 0,1 1,2"));
}

void TestSpectrum::bothSidesInOppositeOrders_data()
{
    QTest::addColumn<bool>("oneStop");
    QTest::addColumn<int>("axis");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one stop, along x") << true << 0 << "CCW 2 5 9 CW 9 5 2";
    QTest::newRow("one stop, along y") << true << 1 << "CW 2 5 9 CCW 9 5 2";
    QTest::newRow("several stops, along x") << false << 0 << "CW 2 5 9 CCW 9 5 2";
    QTest::newRow("several stops, along y") << false << 1 << "CCW 2 5 9 CW 9 5 2";
}

void TestSpectrum::bothSidesInOppositeOrders()
{
    QFETCH(bool, oneStop);
    QFETCH(int, axis);
    SpectrumPlot plot;
    if (oneStop)
        plot.setGradient("plain", plain(Qt::red));
    plot.setPlotStyle(4);
    const Values values{{0, 1}, {1, 2}};
    QVERIFY(plot.loadFromData({{2, values}, {5, values}, {9, values}}, BaseAxisType(axis)));
    QStringList order;
    bool framed = true; // each spectrum has its frame before the next one comes
    for (const QString& part : sent(plot, true).split("; ")) {
        if (!part.startsWith('@')) {
            order.append(part);
            continue;
        }
        const QString place = part.section(' ', 0, 0).mid(1);
        const bool frame = part.contains("lines");
        QVERIFY(!frame || order.last() == place);
        if (!frame && order.last() != place) {
            QVERIFY(framed);
            order.append(place);
        }
        framed = frame;
    }
    QVERIFY(framed);
    QTEST(order.join(' '), "expected");
}

void TestSpectrum::pieces_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, double from, double to, const char* expected) {
        QTest::newRow(name) << from << to << QString(expected);
    };
    row("over the base line", 1, 3, "polygon: 0,0 0,1 2,3 2,0");
    row("under the base line", -1, -3, "polygon: 0,0 0,-1 2,-3 2,0");
    row("from the base line", 0, -3, "polygon: 0,0 0,0 2,-3 2,0");
    row("on the base line", 0, 0, "polygon: 0,0 0,0 2,0 2,0");
    row("upwards through it", -1, 1, "triangles: 0,0 0,-1 1,0 1,0 2,1 2,0");
    row("downwards through it", 3, -1, "triangles: 0,0 0,3 1.5,0 1.5,0 2,-1 2,0");
    row("through it by nothing", -1e-308, 1e-308, "");
    row("a hole", notANumber, 1, "");
}

void TestSpectrum::pieces()
{
    QFETCH(double, from);
    QFETCH(double, to);
    SpectrumPlot plot;
    plot.setGradient("plain", plain(Qt::red));
    plot.setPlotStyle(3);
    for (const BaseAxisType axis : {XAxis, YAxis}) {
        QVERIFY(plot.loadFromData({{4, {{0, from}, {2, to}}}}, axis));
        QTEST(secondPass(sent(plot)), "expected");
    }
}

void TestSpectrum::bandsFollowTheStops_data()
{
    QTest::addColumn<QVector<double>>("heights");
    QTest::addColumn<QString>("expected");
    QTest::newRow("between the ends of the data")
        << QVector<double>{0, 4} << "polygon: 0,0 0.5,2 1,2 1,0; polygon: 0.5,2 1,4 1,2";
    QTest::newRow("through the base line")
        << QVector<double>{-2, 2} << "polygon: 0,0 0,-2 0.5,0; polygon: 0.5,0 1,2 1,0";
    QTest::newRow("data far from the base line")
        << QVector<double>{10, 20}
        << "polygon: 0,0 0,10 1,10 1,0; polygon: 0,10 0.5,15 1,15 1,10; polygon: 0.5,15 1,20 1,15";
    QTest::newRow("all heights equal") << QVector<double>{3, 3} << "polygon: 0,0 0,3 1,3 1,0";
    QTest::newRow("a line without area")
        << QVector<double>{0, 0, 4} << "lines: 0,0 1,0; polygon: 1,0 1.5,2 2,2 2,0; polygon: 1.5,2 2,4 2,2";
    QTest::newRow("heights that no float meets")
        << QVector<double>{0.1, 0.7}
        << "polygon: 0,0 0,0.1 1,0.1 1,0; polygon: 0,0.1 0.5,0.4 1,0.4 1,0.1; polygon: 0.5,0.4 1,0.7 1,0.4";
}

void TestSpectrum::bandsFollowTheStops()
{
    QFETCH(QVector<double>, heights);
    SpectrumPlot plot;
    plot.setGradient("three", threeStops());
    plot.setPlotStyle(3);
    QVERIFY(plot.loadFromData(one(heights), YAxis));
    QTEST(secondPass(sent(plot)), "expected");
}

void TestSpectrum::everyVertexHasItsDataColor_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("vertices");
    QTest::newRow("lines") << 2 << 5;
    QTest::newRow("filled") << 3 << 64;
}

void TestSpectrum::everyVertexHasItsDataColor()
{
    QFETCH(int, style);
    SpectrumPlot plot;
    plot.setGradient("three", threeStops());
    plot.setPlotStyle(style);
    QVERIFY(plot.loadFromData(one({-1.3, 0.1, 2.7, 2.7, -0.2}), XAxis));
    int count = 0;
    for (const auto& primitive : drawn(plot)) {
        for (const auto& v : primitive.vertices) {
            const QColor color = (*plot.getDataColor())(v.position[0], v.position[1], v.position[2]);
            // As OpenGL keeps it.
            const std::array<float, 4> held{float(v.color[0]), float(v.color[1]), float(v.color[2]),
                                            float(v.color[3])};
            QCOMPARE(held, (std::array<float, 4>{float(color.redF()), float(color.greenF()),
                                                 float(color.blueF()), 1.0F}));
            ++count;
        }
    }
    QTEST(count, "vertices");
}

void TestSpectrum::coincidentStopsKeepTheirSides()
{
    // Two stops at neighbouring numbers, as close as a gradient takes them.
    QLinearGradient gradient;
    gradient.setColorAt(0.0, Qt::red);
    gradient.setColorAt(0.3, Qt::red);
    gradient.setColorAt(std::nextafter(0.3, 1.0), Qt::blue);
    gradient.setColorAt(1.0, Qt::blue);
    SpectrumPlot plot;
    plot.setGradient("jump", gradient);
    plot.setPlotStyle(3);
    for (const double side : {1.0, -1.0}) {
        QVERIFY(plot.loadFromData(one({0, 10 * side, 7 * side}), XAxis));
        const double jump = side > 0.0 ? 3.0 : -7.0;
        int bands = 0;
        for (const auto& primitive : drawn(plot)) {
            double middle = 0.0;
            for (const auto& v : primitive.vertices)
                middle += v.position[2] / primitive.vertices.size();
            for (const auto& v : primitive.vertices) {
                QVERIFY((v.position[2] - jump) * (middle - jump) > -1e-6);
                QCOMPARE(v.color[middle < jump ? 0U : 2U], 1.0);
                QCOMPARE(v.color[middle < jump ? 2U : 0U], 0.0);
            }
            ++bands;
        }
        QCOMPARE(bands, 8);
    }
}

void TestSpectrum::polygonOfThePoints()
{
    SpectrumPlot plot;
    QVERIFY(plot.loadFromData(one({0, 10}), XAxis));
    plot.makeCurrent();
    GLRecorder recorder;
    plot.drawPolygon({{0, 0, 0}, {0, 1, 5}, {2, 1, 10}});
    QCOMPARE(recorder.primitives().size(), 1);
    const GLRecorder::Primitive& polygon = recorder.primitives().at(0);
    QCOMPARE(polygon.mode, unsigned(GL_POLYGON));
    QCOMPARE(polygon.vertices.at(2).position, (std::array<double, 3>{2, 1, 10}));
    QCOMPARE(polygon.vertices.at(1).color[0], 100.0 / 255.0);
}

void TestSpectrum::resolutionThinsThePoints_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("markers");
    QTest::newRow("every point") << 1 << "0 1 2 3 4"
                                 << "0 1 2 3 4";
    QTest::newRow("every second") << 2 << "0 2 4"
                                  << "0 2 4";
    QTest::newRow("every third: the last step is not drawn") << 3 << "0 3"
                                                             << "0 3";
    QTest::newRow("longer than the spectrum") << 9 << "0"
                                              << "0";
    QTest::newRow("stored below 1") << 0 << "0 1 2 3 4"
                                    << "";
}

void TestSpectrum::resolutionThinsThePoints()
{
    QFETCH(int, step);
    QFETCH(QString, line);
    QFETCH(QString, markers);
    SpectrumPlot plot;
    // Stored, because a setter refuses what is below 1.
    QSettings(fixture::organization, fixture::application).setValue("plot/resolution", step);
    plot.settingsRecord().loadSettings("plot", fixture::organization, fixture::application);
    harness::clearStore();
    // A second spectrum: spectra are never thinned, and each one starts at its first point.
    QVERIFY(plot.loadFromData({{0, {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}}}, {7, {{5, 1}}}}, YAxis));
    const auto positions = [](const Primitives& primitives) {
        QStringList found;
        for (const auto& primitive : primitives) {
            for (const auto& v : primitive.vertices)
                found.append(number(v.position[0]));
        }
        return found;
    };
    plot.setPlotStyle(2);
    QCOMPARE(positions(drawn(plot)).join(' '), line + " 5");
    plot.setPlotStyle(1);
    QCOMPARE(positions(drawn(plot)).join(' '), markers.isEmpty() ? QString() : markers + " 5");
    plot.setPlotStyle(4);
    plot.setGradient("plain", plain(Qt::red));
    QStringList ends;
    for (const auto& primitive : drawn(plot)) {
        if (primitive.mode == GL_LINES)
            ends = positions({primitive});
    }
    ends.removeDuplicates();
    QCOMPARE(ends.join(' '), line.size() > 1 ? line : QString());
}

void TestSpectrum::holesInterruptTheCurve()
{
    SpectrumPlot plot;
    plot.setGradient("plain", plain(Qt::red));
    QVERIFY(plot.loadFromData(one({1, 2, notANumber, 3, infinity, 4, 5}), XAxis));
    QCOMPARE(plot.getHull(), (Parallelepiped{{0, 0, 1}, {0, 6, 5}}));
    plot.setPlotStyle(1);
    QCOMPARE(sent(plot), QString("points: 0,1 1,2 3,3 5,4 6,5"));
    plot.setPlotStyle(2);
    QCOMPARE(sent(plot), QString("strip: 0,1 1,2; strip: 3,3; strip: 5,4 6,5"));
    const QString sheet = "polygon: 0,0 0,1 1,2 1,0; polygon: 5,0 5,4 6,5 6,0; lines: 0,1 1,2 5,4 6,5";
    plot.setPlotStyle(4);
    QCOMPARE(secondPass(sent(plot)), sheet);
    QString visited;
    plot.visitPoints([&](const QVector3D& p) { visited += number(double(p.y())); });
    QCOMPARE(visited, QString("01356"));
}

void TestSpectrum::stateInTheList()
{
    SpectrumPlot plot;
    plot.setPlotStyle(3);
    plot.setPolygonOffset(1.5);
    plot.setMeshLineWidth(2.0);
    plot.setMeshSmooth(false);
    QVERIFY(plot.loadFromData(one({1, 2}), XAxis));
    plot.makeCurrent();
    glBlendFunc(GL_ONE, GL_DST_ALPHA);
    glLineWidth(4.0F);
    GLRecorder recorder;
    plot.updateData();
    const QStringList& all = recorder.calls();
    const int additionsEnd = all.indexOf("glEndList()");
    const int start = all.indexOf(QRegularExpression("glNewList.*"), additionsEnd);
    const QStringList list = all.mid(start, all.indexOf("glEndList()", start) - start);
    const auto first = [&](const QString& call) { return list.indexOf(call); };
    const auto call = [](const char* name, int a, int b = -1) {
        return QString("%1(%2%3)").arg(name).arg(a).arg(b < 0 ? QString() : QString(",%1").arg(b));
    };
    const int begin = list.indexOf(QRegularExpression("glBegin.*"));
    const int end = list.lastIndexOf(QRegularExpression("glBegin.*"));
    for (const QString& before :
         {call("glEnable", GL_POLYGON_OFFSET_FILL), QString("glPolygonOffset(1.5,1)"),
          QString("glLineWidth(2)"), call("glDisable", GL_LINE_SMOOTH),
          call("glBlendFunc", GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA), call("glEnable", GL_CULL_FACE)})
        QVERIFY2(first(before) >= 0 && first(before) < begin, qPrintable(before));
    const int culled = list.lastIndexOf(call("glDisable", GL_CULL_FACE));
    const int blended = first(call("glBlendFunc", GL_ONE, GL_DST_ALPHA));
    QVERIFY(end < culled && culled < blended && blended < first("glLineWidth(4)"));
    QVERIFY(first("glLineWidth(4)") < list.lastIndexOf(call("glEnable", GL_LINE_SMOOTH)));
    QVERIFY(first("glLineWidth(4)") < first(call("glDisable", GL_POLYGON_OFFSET_FILL)));
}

void TestSpectrum::badDataAreRefused_data()
{
    QTest::addColumn<Map>("map");
    QTest::addColumn<int>("axis");
    QTest::addColumn<QString>("reason");
    const Values values{{0, 1}, {1, 2}};
    QTest::newRow("upright") << Map{{0, values}} << 2 << "not along axis 2";
    QTest::newRow("no axis") << Map{{0, values}} << -1 << "not along axis -1";
    QTest::newRow("endless place") << Map{{0, values}, {infinity, values}} << 0 << "spectrum is inf";
    QTest::newRow("place not a number") << Map{{notANumber, values}} << 0 << "spectrum is nan";
    QTest::newRow("endless point") << Map{{3, {{-infinity, 1}, {0, 1}}}} << 1 << "3 has a point at -inf";
    QTest::newRow("point not a number") << Map{{3, {{notANumber, 1}}}} << 1 << "3 has a point at nan";
}

void TestSpectrum::badDataAreRefused()
{
    QFETCH(Map, map);
    QFETCH(int, axis);
    QFETCH(QString, reason);
    SpectrumPlot plot;
    plot.setPlotStyle(2);
    QVERIFY(plot.loadFromData(one({1, 2}), XAxis));
    const harness::Messages messages;
    QVERIFY(!plot.loadFromData(map, BaseAxisType(axis)));
    QCOMPARE(messages.warnings(reason), 1);
    QCOMPARE(messages.warnings("\"plot\""), 1);
    QCOMPARE(sent(plot), QString("strip: 0,1 1,2"));
    QCOMPARE(plot.getHull(), (Parallelepiped{{0, 0, 1}, {0, 1, 2}}));
}

void TestSpectrum::ownDataCanBeLoadedAgain()
{
    SpectrumPlot plot;
    plot.setPlotStyle(2);
    QVERIFY(plot.loadFromData({{3, {{0, 1}, {1, 2}}}}, XAxis));
    QVERIFY(plot.loadFromData(plot.getSpectrumData()->getSpectrum(), YAxis));
    QCOMPARE(sent(plot), QString("strip: 0,1 1,2"));
    QCOMPARE(plot.getHull(), (Parallelepiped{{0, 3, 1}, {3, 3, 2}}));
}

using Step = std::function<void(SpectrumPlot&)>;
Q_DECLARE_METATYPE(Step)

void TestSpectrum::emptyingThePlot_data()
{
    QTest::addColumn<Step>("empty");
    QTest::addColumn<bool>("keepsContainer");
    QTest::addColumn<bool>("keepsBox");
    QTest::newRow("an empty map") << Step([](SpectrumPlot& p) { p.loadFromData({}, XAxis); }) << true
                                  << false;
    QTest::newRow("cleared") << Step([](SpectrumPlot& p) { p.clearData(); }) << false << true;
    QTest::newRow("another kind of data")
        << Step([](SpectrumPlot& p) { p.updateDataType(0); }) << true << true;
}

void TestSpectrum::emptyingThePlot()
{
    QFETCH(Step, empty);
    QFETCH(bool, keepsContainer);
    QFETCH(bool, keepsBox);
    SpectrumPlot plot;
    QVERIFY(!plot.getData());
    empty(plot); // nothing to empty
    plot.setGradient("plain", plain(Qt::red));
    plot.setPlotStyle(2);
    plot.setMeshLineWidth(5.0);
    QVERIFY(harness::show(plot, 100, 100));
    const Map map{{0, {{0, 1}, {1, 2}}}, {1, {{0, 2}, {1, 1}}}};
    for (int round = 0; round < 2; ++round) {
        QVERIFY(plot.loadFromData(map, XAxis));
        plot.updateDataType(2); // which it is
        QVERIFY(pixels(harness::grab(plot), Qt::red) > 50);
        empty(plot);
        QVERIFY(plot.getSpectrumData()->isEmpty());
        QCOMPARE(plot.getData() == plot.getSpectrumData(), keepsContainer);
        QCOMPARE(plot.getHull(), keepsBox ? (Parallelepiped{{0, 0, 1}, {1, 1, 2}}) : Parallelepiped());
        QCOMPARE(pixels(harness::grab(plot), Qt::red), 0);
        plot.updateData();
        plot.updateNormals();
        plot.createCoordinateSystem();
        QCOMPARE(pixels(harness::grab(plot), Qt::red), 0);
    }
}

void TestSpectrum::fixedBoxReplacesTheBox()
{
    SpectrumPlot plot;
    plot.setGradient("three", threeStops());
    plot.setPlotStyle(3);
    QVERIFY(plot.loadFromData(one({0, 4}), XAxis));
    const Parallelepiped data{{0, 0, 0}, {0, 1, 4}};
    plot.setFixedHull({{0, 0, 0}, {1, 1, 2}});
    QCOMPARE(plot.getHull(), data);
    plot.setFixedHull({{1, 1, 1}, {1, 1, 1}});
    QCOMPARE(plot.getHull(), data);
    const Parallelepiped fixed{{-1, 0, 0}, {1, 2, 2}};
    plot.setFixedHull(fixed);
    QCOMPARE(plot.getHull(), fixed);
    // The stops follow it.
    QCOMPARE(secondPass(sent(plot)),
             QString("polygon: 0,0 0.25,1 1,1 1,0; polygon: 0.25,1 0.5,2 1,2 1,1; polygon: 0.5,2 1,4 1,2"));
}

void TestSpectrum::logarithmicDirections_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("warning");
    const QString half = number(std::log10(50.0));
    QTest::newRow("along the axis") << 0 << "@1 strip: -5,1 1,-2 100,100; @2 strip: 1,0 100,50"
                                    << "2 points";
    QTest::newRow("along the curve") << 1 << "@0 strip: 0,1; @10 strip: 0,-2 2,100; @100 strip: 0,0 2,50"
                                     << "2 points";
    QTest::newRow("height") << 2
                            << "@0 strip: -5,0; @0 strip: 1,0; @10 strip: -5,0; @10 strip: 100,2; "
                               "@100 strip: 100," +
                                   half
                            << "2 points";
}

void TestSpectrum::logarithmicDirections()
{
    QFETCH(int, direction);
    QFETCH(QString, warning);
    SpectrumPlot plot;
    plot.setPlotStyle(2);
    plot.setLogarithmicData(BaseAxisType(direction), true);
    const harness::Messages messages;
    QVERIFY(plot.loadFromData({{0, {{-5, 1}, {0, notANumber}, {1, 1}}},
                               {10, {{-5, 1}, {1, -2}, {100, 100}}},
                               {100, {{1, 0}, {100, 50}}}},
                              XAxis));
    QTEST(sent(plot, true), "expected");
    QCOMPARE(messages.warnings(warning), 1);
}

void TestSpectrum::styleActions()
{
    SpectrumPlot plot;
    QStringList found;
    for (const StyleAction* action : plot.getStyleActions())
        found.append(QString("%1 %2").arg(action->getStyle()).arg(action->text()));
    QCOMPARE(found.join("; "), QString("0 No plot; 1 Points; 2 Lines; 3 Filled; 4 Filled and frame"));
    QCOMPARE(plot.getToolBar(PlotStyleToolBar)->actions().size(), 5);
    QVERIFY(plot.getContextMenu());
    QVERIFY(harness::show(plot, 50, 50));
    plot.getStyleActions().at(3)->trigger();
    QCOMPARE(plot.getSettings().getStyle(), 3);
}

void TestSpectrum::barsWithoutASpacing()
{
    // Spectra have no spacing: a bar falls back to that of one unit.
    SpectrumPlot plot;
    CylinderAddition bar(4, 0.5, true, 45.0);
    plot.addAddition(bar);
    QVERIFY(plot.loadFromData(one({1, 2}), XAxis));
    int vertices = 0;
    for (const auto& primitive : drawn(plot)) {
        for (const auto& v : primitive.vertices) {
            QVERIFY(std::abs(std::abs(v.position[0]) - 0.5) < 1e-6);
            QVERIFY(std::isfinite(v.position[1]) && std::isfinite(v.normal[0]) && std::isfinite(v.normal[1]));
            ++vertices;
        }
    }
    QVERIFY(vertices > 0);
}

void TestSpectrum::everySheetIsSeenOnceFromBothSides_data()
{
    QTest::addColumn<int>("stops");
    QTest::addColumn<int>("axis");
    QTest::addColumn<double>("turn");
    for (const int stops : {1, 5}) {
        for (const int axis : {0, 1}) {
            for (const double turn : {0.0, 180.0})
                QTest::addRow("%d stops, along %c, turned by %g", stops, axis ? 'y' : 'x', turn)
                    << stops << axis << turn + (axis ? 0.0 : 90.0);
        }
    }
}

void TestSpectrum::everySheetIsSeenOnceFromBothSides()
{
    QFETCH(int, stops);
    QFETCH(int, axis);
    QFETCH(double, turn);
    // A translucent sheet of one colour: a gap would stay white, what is drawn twice would be darker.
    QLinearGradient gradient;
    for (int i = 0; i < stops; ++i)
        gradient.setColorAt(i / std::max(stops - 1.0, 1.0), QColor(255, 0, 0, 128));
    SpectrumPlot plot;
    plot.setGradient("translucent", gradient);
    plot.setPlotStyle(3);
    Map map;
    for (int i = 0; i <= 24; ++i)
        map[0.0][i - 12.0] = (i < 12 ? -1.0 : 1.0) * (1.0 + std::abs(std::sin(0.5 * i)));
    QVERIFY(plot.loadFromData(map, BaseAxisType(axis)));
    plot.setRotation({0.0, 0.0, turn});
    plot.setScale({1.0, 1.0, 6.0});
    QVERIFY(harness::show(plot, 300, 300));
    const QImage image = harness::grab(plot);
    const int once = pixels(image, QColor(255, 127, 127));
    const int ink = 300 * 300 - pixels(image, Qt::white);
    QVERIFY2(once > 10000, qPrintable(QString::number(once)));
    QCOMPARE(ink, once);
}

int main(int argc, char* argv[])
{
    return harness::run<TestSpectrum>(argc, argv);
}

#include "tst_spectrum.moc"
