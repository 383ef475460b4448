#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/arrowaddition.h"
#include "plots/dotaddition.h"
#include "plots/markers.h"
#include "plots/sphereaddition.h"
#include "scene/basedraw.h"

#include <GL/gl.h>

#include <QMatrix4x4>
#include <QSettings>
#include <QtTest>

#include <memory>
#include <set>
#include <vector>

using namespace Zel3D;
using namespace fixture;

namespace {

using Point = std::array<double, 3>;
using Color = std::array<double, 4>;

Color channels(const QColor& c)
{
    return {c.redF(), c.greenF(), c.blueF(), c.alphaF()};
}

QVector<float> pointState()
{
    float size = 0.0F;
    glGetFloatv(GL_POINT_SIZE, &size);
    return {size, glIsEnabled(GL_POINT_SMOOTH) == GL_TRUE ? 1.0F : 0.0F};
}

/// The matrix that the recorded translations and rotations give at a call.
QMatrix4x4 matrixAt(const GLRecorder& recorder, int end)
{
    QMatrix4x4 matrix;
    for (int i = 0; i < end; ++i) {
        const QString call = recorder.calls().at(i);
        QVector<float> v;
        for (const QString& number : call.section('(', 1).chopped(1).split(','))
            v.append(number.toFloat());
        if (call.startsWith("glTranslatef"))
            matrix.translate(v[0], v[1], v[2]);
        else if (call.startsWith("glRotatef"))
            matrix.rotate(v[0], v[1], v[2], v[3]);
    }
    return matrix;
}

bool near(const QVector3D& a, const QVector3D& b)
{
    return (a - b).length() < 1e-4F;
}

Point rounded(const Point& p)
{
    // -0 would be another key than 0.
    return {std::round(p[0] * 1e9) + 0.0, std::round(p[1] * 1e9) + 0.0, std::round(p[2] * 1e9) + 0.0};
}

/// The faces that a recorded cylinder consists of: four corners a side, then the caps.
std::vector<std::vector<GLRecorder::Vertex>> faces(const GLRecorder& recorder)
{
    std::vector<std::vector<GLRecorder::Vertex>> all;
    for (const auto& quads : recorder.primitives(GL_QUADS)) {
        for (int i = 0; i + 3 < quads.vertices.size(); i += 4)
            all.emplace_back(quads.vertices.begin() + i, quads.vertices.begin() + i + 4);
    }
    for (const auto& cap : recorder.primitives(GL_POLYGON))
        all.emplace_back(cap.vertices.begin(), cap.vertices.end());
    return all;
}

QVector3D vector(const Point& p)
{
    return QVector3D(float(p[0]), float(p[1]), float(p[2]));
}

/// A sphere of a host's own, drawn in another colour than it says.
class Bubble : public SphereAddition
{
public:
    Bubble() : SphereAddition(0.5, Qt::red, 6, 6) {}
    Addition* clone() const override { return new Bubble(*this); }
    void draw(const QVector3D& p) override
    {
        glColor4d(1.0, 1.0, 1.0, 0.5);
        glBegin(GL_POINTS);
        glVertex3d(double(p.x()), double(p.y()), double(p.z()));
        glEnd();
    }
};

using Marker = std::shared_ptr<Addition>;

} // namespace

Q_DECLARE_METATYPE(Marker)

class TestAdditions : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void pointStateIsAppliedAndPutBack();
    void pointsAreOnePrimitiveDrawnAndOneEachPicked();
    void withoutAPlotNothingIsDrawn();
    void sphereStandsAtThePoint();
    void arrowEndsAtItsEndPoint_data();
    void arrowEndsAtItsEndPoint();
    void cylinderIsClosed_data();
    void cylinderIsClosed();
    void cylinderReachesFromTheBaseLevel_data();
    void cylinderReachesFromTheBaseLevel();
    void cylinderFillsItsCell();
    void cylinderFrameAndOpacity();
    void opaqueMarkersAreNotBlended_data();
    void opaqueMarkersAreNotBlended();
    void onlyChangedValuesAreWritten();
    void clonesAreIndependent();
    void markersComeBackFromTheirValues();

private:
    std::unique_ptr<Plot> plot;
};

void TestAdditions::initTestCase()
{
    plot = std::make_unique<Plot>();
    QVERIFY(Heights(2, 2, [](int i, int) { return 10.0 * i; }).into(*plot));
    QVERIFY(harness::show(*plot, 100, 100));
}

void TestAdditions::init()
{
    harness::clearStore();
    plot->makeCurrent();
    glMatrixMode(GL_MODELVIEW);
    glFrontFace(GL_CCW);
}

void TestAdditions::pointStateIsAppliedAndPutBack()
{
    for (int i = 0; i < 4; ++i) {
        glPointSize(2.5F);
        BaseDraw::setGLEnable(GL_POINT_SMOOTH, i >= 2);
        const QVector<float> before = pointState();
        Dot dot(6.0, i % 2);
        dot.begin();
        QCOMPARE(pointState(), (QVector<float>{6.0F, float(i % 2)}));
        dot.end();
        QCOMPARE(pointState(), before);
    }
    glDisable(GL_POINT_SMOOTH);
}

void TestAdditions::pointsAreOnePrimitiveDrawnAndOneEachPicked()
{
    Dot dot;
    DotAddition fixed(1.0, false, QColor(10, 20, 30, 40));
    dot.setPlot(*plot);
    const QVector3D p(1.0F, 2.0F, 5.0F);
    GLRecorder recorder;
    dot.drawBegin();
    dot.draw(p);
    dot.draw(p);
    dot.drawEnd();
    dot.select(p);
    dot.selectProjection(p, 9.0);
    fixed.select(p);
    const auto all = recorder.primitives(GL_POINTS);
    QCOMPARE(all.size(), 4);
    const int counts[] = {2, 1, 1, 1};
    for (int i = 0; i < all.size(); ++i) {
        QCOMPARE(all[i].vertices.size(), counts[i]);
        // The projection keeps the colour of the point that it shows.
        QCOMPARE(all[i].vertices[0].position, (Point{1.0, 2.0, i == 2 ? 9.0 : 5.0}));
        QCOMPARE(all[i].vertices[0].color, channels(i < 3 ? QColor(100, 50, 25) : QColor(10, 20, 30, 40)));
    }
}

void TestAdditions::withoutAPlotNothingIsDrawn()
{
    SphereAddition sphere(1.0, Qt::red, 8, 8);
    CylinderAddition cylinder(6, 1.0, true, 0.0);
    Dot dot;
    GLRecorder recorder;
    sphere.draw(QVector3D());
    sphere.select(QVector3D());
    QVERIFY(recorder.calls().isEmpty());
    cylinder.drawBegin();
    cylinder.draw(QVector3D(0.0F, 0.0F, 1.0F));
    QVERIFY(recorder.calls().isEmpty());
    dot.select(QVector3D());
    QVERIFY(recorder.primitives().at(0).vertices.isEmpty());
}

void TestAdditions::sphereStandsAtThePoint()
{
    SphereAddition sphere(2.0, QColor(10, 20, 30), 8, 6);
    sphere.setPlot(*plot);
    glMatrixMode(GL_PROJECTION);
    GLRecorder recorder;
    sphere.select(QVector3D(1.0F, 2.0F, 3.0F));
    int mode = 0;
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    QCOMPARE(mode, GL_PROJECTION);
    const int push = recorder.indexOf("glPushMatrix");
    QVERIFY(recorder.indexOf(QString("glMatrixMode(%1)").arg(GL_MODELVIEW)) < push);
    QVERIFY(recorder.indexOf("glTranslatef(1,2,3)") > push);
    QCOMPARE(recorder.count("glPopMatrix"), 1);
    QVERIFY(!recorder.primitives().isEmpty());
    for (const auto& primitive : recorder.primitives()) {
        for (const auto& vertex : primitive.vertices) {
            QVERIFY(qAbs(double(vector(vertex.position).length()) - 2.0) < 1e-5);
            QCOMPARE(vertex.color, channels(QColor(10, 20, 30)));
        }
    }
}

void TestAdditions::arrowEndsAtItsEndPoint_data()
{
    QTest::addColumn<QVector3D>("from");
    QTest::addColumn<QVector3D>("to");
    QTest::newRow("up") << QVector3D(1, 2, 3) << QVector3D(1, 2, 8);
    QTest::newRow("straight down") << QVector3D(1, 2, 3) << QVector3D(1, 2, -4);
    QTest::newRow("along x") << QVector3D(1, 2, 3) << QVector3D(-4, 2, 3);
    QTest::newRow("along y") << QVector3D(1, 2, 3) << QVector3D(1, 9, 3);
    QTest::newRow("askew") << QVector3D(-1, 4, 2) << QVector3D(3, -2, 7);
}

void TestAdditions::arrowEndsAtItsEndPoint()
{
    QFETCH(QVector3D, from);
    QFETCH(QVector3D, to);
    const float length = (to - from).length();
    ArrowAddition arrow;
    arrow.setEnd(to);
    arrow.setColor(QColor(10, 20, 30));
    glMatrixMode(GL_PROJECTION);
    GLRecorder recorder;
    arrow.draw(from);
    int mode = 0;
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    QCOMPARE(mode, GL_PROJECTION);
    QCOMPARE(recorder.count("glPushMatrix"), recorder.count("glPopMatrix"));

    const auto shaft = recorder.primitives(GL_LINES).at(0).vertices;
    const QMatrix4x4 atShaft = matrixAt(recorder, recorder.indexOf("glBegin"));
    QVERIFY(near(atShaft.map(vector(shaft.at(0).position)), from));
    QVERIFY(near(atShaft.map(vector(shaft.at(1).position)), to));
    QCOMPARE(shaft.at(0).color, channels(QColor(10, 20, 30)));
    QVERIFY(recorder.indexOf("glLineWidth(1)") >= 0);

    // The head: 3 sides, 0.4 of the length, a radius of 0.06 of it and its tip at the end point.
    const int head = recorder.indexOf("gluCylinder");
    QVector<float> arguments;
    for (const QString& number : recorder.calls().at(head).section('(', 1).chopped(1).split(','))
        arguments.append(number.toFloat());
    QVERIFY(qAbs(arguments[0] - 0.06F * length) < 1e-5F);
    QCOMPARE(arguments[1], 0.0F);
    QVERIFY(qAbs(arguments[2] - 0.4F * length) < 1e-5F);
    QCOMPARE(arguments.mid(3), (QVector<float>{3.0F, 1.0F}));
    QVERIFY(near(matrixAt(recorder, head).map(QVector3D(0.0F, 0.0F, arguments[2])), to));
}

void TestAdditions::cylinderIsClosed_data()
{
    QTest::addColumn<int>("ribs");
    QTest::addColumn<float>("z");
    QTest::newRow("three sides") << 3 << 5.0F;
    QTest::newRow("ten sides") << 10 << 5.0F;
    QTest::newRow("hanging") << 4 << -5.0F;
}

void TestAdditions::cylinderIsClosed()
{
    QFETCH(int, ribs);
    QFETCH(float, z);
    CylinderAddition cylinder(ribs, 0.5, false, 20.0);
    cylinder.setPlot(*plot);
    glFrontFace(GL_CW);
    GLRecorder recorder;
    cylinder.drawBegin();
    cylinder.draw(QVector3D(1.0F, 2.0F, z));
    cylinder.drawEnd();
    QVERIFY(recorder.indexOf(QString("glFrontFace(%1)").arg(GL_CCW)) < recorder.indexOf("glBegin"));
    int front = 0;
    glGetIntegerv(GL_FRONT_FACE, &front);
    QCOMPARE(front, GL_CW);
    const auto all = faces(recorder);
    QCOMPARE(int(all.size()), ribs + 2);
    // Every edge belongs to two faces that run along it in opposite directions.
    std::multiset<std::pair<Point, Point>> edges;
    const QVector3D middle(1.0F, 2.0F, z / 2.0F);
    for (const auto& face : all) {
        for (std::size_t k = 0; k < face.size(); ++k)
            edges.insert({rounded(face[k].position), rounded(face[(k + 1) % face.size()].position)});
        // The normal points away from the inside and agrees with the winding.
        const QVector3D normal = vector(face[0].normal);
        QVERIFY(qAbs(normal.length() - 1.0F) < 1e-5F);
        QVERIFY(QVector3D::dotProduct(normal, vector(face[0].position) - middle) > 0.0F);
        const QVector3D winding =
            QVector3D::normal(vector(face[0].position), vector(face[1].position), vector(face[2].position));
        QVERIFY(near(normal, winding));
    }
    QCOMPARE(int(edges.size()), 6 * ribs);
    for (const auto& edge : edges) {
        QCOMPARE(int(edges.count(edge)), 1);
        QCOMPARE(int(edges.count({edge.second, edge.first})), 1);
    }
}

void TestAdditions::cylinderReachesFromTheBaseLevel_data()
{
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("point");
    QTest::addColumn<double>("bottom");
    QTest::addColumn<double>("top");
    QTest::newRow("over zero") << -10.0 << 10.0 << 4.0 << 0.0 << 4.0;
    QTest::newRow("under zero") << -10.0 << 10.0 << -4.0 << -4.0 << 0.0;
    QTest::newRow("box above zero: from its lower end") << 5.0 << 10.0 << 7.0 << 5.0 << 7.0;
    QTest::newRow("box below zero: from its upper end") << -10.0 << -5.0 << -7.0 << -7.0 << -5.0;
}

void TestAdditions::cylinderReachesFromTheBaseLevel()
{
    QFETCH(double, low);
    QFETCH(double, high);
    QFETCH(double, point);
    QFETCH(double, bottom);
    QFETCH(double, top);
    Plot own;
    QVERIFY(Heights(2, 2, [&](int i, int) { return i == 0 ? low : high; }).into(own));
    CylinderAddition cylinder(4, 0.5, false, 45.0);
    cylinder.setPlot(own);
    GLRecorder recorder;
    cylinder.drawBegin();
    cylinder.draw(QVector3D(0.0F, 0.0F, float(point)));
    std::set<double> levels;
    for (const auto& face : faces(recorder)) {
        for (const auto& vertex : face)
            levels.insert(vertex.position[2]);
    }
    QCOMPARE(levels, (std::set<double>{bottom, top}));
}

void TestAdditions::cylinderFillsItsCell()
{
    // Columns 2 apart, rows 8 apart.
    Heights heights(3, 3, [](int i, int j) { return double(i + j); });
    Plot own;
    QVERIFY(own.loadFromData(heights.data(), 3, 3, 0.0, 4.0, 0.0, 16.0));
    CylinderAddition cylinder(4, 1.0, false, 45.0);
    cylinder.setPlot(own);
    const auto corners = [&] {
        GLRecorder recorder;
        cylinder.drawBegin();
        cylinder.draw(QVector3D(2.0F, 8.0F, 3.0F));
        std::set<std::pair<double, double>> result;
        const auto caps = recorder.primitives(GL_POLYGON);
        for (const auto& vertex : caps.at(0).vertices)
            result.insert(
                {std::round(vertex.position[0] * 1e6) / 1e6, std::round(vertex.position[1] * 1e6) / 1e6});
        return result;
    };
    using Corners = std::set<std::pair<double, double>>;
    QCOMPARE(corners(), (Corners{{1.0, 4.0}, {3.0, 4.0}, {1.0, 12.0}, {3.0, 12.0}}));
    QVERIFY(cylinder.setMultiplier(0.5));
    QCOMPARE(corners(), (Corners{{1.5, 6.0}, {2.5, 6.0}, {1.5, 10.0}, {2.5, 10.0}}));
    QVERIFY(cylinder.setMultiplier(1.0) && cylinder.setAngleZ(0.0));
    QCOMPARE(corners(), (Corners{{1.0, 8.0}, {3.0, 8.0}, {2.0, 4.0}, {2.0, 12.0}}));
}

void TestAdditions::cylinderFrameAndOpacity()
{
    CylinderAddition cylinder(5, 0.5, true, 0.0);
    cylinder.setPlot(*plot);
    QVERIFY(cylinder.setOpacity(50));
    GLRecorder recorder;
    cylinder.drawBegin();
    cylinder.draw(QVector3D(0.0F, 0.0F, 5.0F));
    QCOMPARE(recorder.primitives(GL_LINE_LOOP).size(), 2);
    const auto ribs = recorder.primitives(GL_LINES).at(0).vertices;
    QCOMPARE(ribs.size(), 10);
    for (int i = 0; i < ribs.size(); i += 2) {
        QCOMPARE(ribs[i].position[0], ribs[i + 1].position[0]);
        QCOMPARE(ribs[i + 1].position[2] - ribs[i].position[2], 5.0);
    }
    QCOMPARE(ribs[0].color, channels(plot->getSettings().getMesh().getColor()));
    QVERIFY(qAbs(recorder.primitives(GL_QUADS).at(0).vertices.at(0).color[3] - 0.5) < 0.01);
}

void TestAdditions::opaqueMarkersAreNotBlended_data()
{
    QTest::addColumn<Marker>("marker");
    QTest::addColumn<QColor>("lowest");
    QTest::addColumn<bool>("blended");
    const auto bars = [](bool frame, int opacity) {
        auto marker = std::make_shared<CylinderAddition>(6, 0.5, frame, 0.0);
        marker->setOpacity(opacity);
        return marker;
    };
    const auto sphere = [](int alpha) {
        return std::make_shared<SphereAddition>(0.5, QColor(255, 0, 0, alpha), 6, 6);
    };
    QTest::newRow("bars") << Marker(bars(false, 100)) << QColor(Qt::blue) << false;
    QTest::newRow("bars with a frame") << Marker(bars(true, 100)) << QColor(Qt::blue) << true;
    QTest::newRow("translucent bars") << Marker(bars(false, 99)) << QColor(Qt::blue) << true;
    QTest::newRow("bars of translucent colours")
        << Marker(bars(false, 100)) << QColor(0, 0, 255, 100) << true;
    QTest::newRow("sphere") << Marker(sphere(255)) << QColor(Qt::blue) << false;
    QTest::newRow("translucent sphere") << Marker(sphere(254)) << QColor(Qt::blue) << true;
    QTest::newRow("a host's") << Marker(std::make_shared<Bubble>()) << QColor(Qt::blue) << true;
    QTest::newRow("dot") << Marker(std::make_shared<DotAddition>(5.0, true, Qt::red)) << QColor(Qt::blue)
                         << true;
}

void TestAdditions::opaqueMarkersAreNotBlended()
{
    QFETCH(Marker, marker);
    QFETCH(QColor, lowest);
    QFETCH(bool, blended);
    Plot own;
    own.setGradient("tested", ramp(lowest, Qt::red));
    own.setPlotStyle(0);
    own.addAddition(*marker);
    QVERIFY(Heights(2, 2, [](int i, int) { return 10.0 * i; }).into(own));
    QVERIFY(harness::show(own, 80, 80));
    GLRecorder recorder;
    own.updateData();
    // Off before the first marker, on again for what follows.
    const int off = recorder.indexOf(QString("glDisable(%1)").arg(GL_BLEND));
    QCOMPARE(off < 0, blended);
    const int on = recorder.calls().lastIndexOf(QString("glEnable(%1)").arg(GL_BLEND));
    QCOMPARE(on < 0, blended);
    const int first = recorder.indexOf("glBegin");
    QVERIFY(first > off);
    QVERIFY(blended || on > recorder.calls().lastIndexOf("glEnd()"));
}

void TestAdditions::onlyChangedValuesAreWritten()
{
    DotAddition dot(3.0, true, Qt::red);
    CylinderAddition cylinder(6, 1.0, false, 0.0);
    dot.saveSettings("mark", organization, application);
    cylinder.saveSettings("mark", organization, application);
    QVERIFY(!dot.setSize(3.0) && !cylinder.setRibNumber(6));
    dot.saveSettings("mark", organization, application);
    cylinder.saveSettings("mark", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());

    QVERIFY(dot.setSize(4.0) && cylinder.setParameters(7, 2.0, true, 10.0));
    dot.saveSettings("mark", organization, application);
    cylinder.saveSettings("mark", organization, application);
    QCOMPARE(QSettings(organization, application).allKeys().size(), 6);
    Dot otherDot;
    CylinderAddition other(3, 0.1, false, 0.0);
    otherDot.loadSettings("mark", organization, application);
    other.loadSettings("mark", organization, application);
    QCOMPARE(otherDot.getSize(), 4.0);
    QVERIFY(otherDot.isSmooth() && !otherDot.isModified() && !other.isModified());
    QCOMPARE(other.getRibNumber(), 7);
    QCOMPARE(other.getRadius(), 2.0);
    QVERIFY(other.isFrameVisible());
    QCOMPARE(other.getAngleZ(), 10.0);
}

void TestAdditions::clonesAreIndependent()
{
    ArrowAddition arrow;
    arrow.setEnd(QVector3D(0.0F, 0.0F, 9.0F));
    const std::unique_ptr<Addition> copy(arrow.clone());
    arrow.setEnd(QVector3D(1.0F, 0.0F, 0.0F));
    QCOMPARE(dynamic_cast<ArrowAddition&>(*copy).getEnd(), QVector3D(0.0F, 0.0F, 9.0F));
    {
        // Each owns its quadric.
        const std::unique_ptr<Addition> shortLived(arrow.clone());
        arrow = dynamic_cast<ArrowAddition&>(*shortLived);
    }
    GLRecorder recorder;
    arrow.draw(QVector3D());
    copy->draw(QVector3D());
    QCOMPARE(recorder.count("gluCylinder"), 2);
    DotAddition dot(3.0, true, Qt::blue);
    const std::unique_ptr<Addition> same(dot.clone());
    dot.setSize(9.0);
    QCOMPARE(dynamic_cast<DotAddition&>(*same).getSize(), 3.0);
    QCOMPARE(dynamic_cast<DotAddition&>(*same).getColor(), QColor(Qt::blue));
}

void TestAdditions::markersComeBackFromTheirValues()
{
    const QMap<QString, QVariantMap> given{
        {"dot", {{"size", 7.5}, {"smooth", false}}},
        {"coloredDot", {{"size", 8.5}, {"smooth", false}, {"color", QColor(1, 2, 3, 4)}}},
        {"sphere", {{"radius", 0.75}, {"color", QColor(5, 6, 7, 8)}}},
        {"cylinder",
         {{"ribNumber", 7}, {"radius", 0.25}, {"frameVisible", true}, {"angleZ", 12.5}, {"opacity", 40}}},
        {"arrow",
         {{"endX", 1.5}, {"endY", 2.5}, {"endZ", 3.5}, {"color", QColor(9, 10, 11, 12)}, {"quality", 5}}}};
    QCOMPARE(given.keys().toSet(), markerKinds().toSet());
    for (const QString& kind : markerKinds()) {
        QVariantMap values = given.value(kind);
        values.insert("kind", kind);
        const std::unique_ptr<Addition> marker(makeMarker(values));
        QVERIFY2(marker, qPrintable(kind));
        QCOMPARE(describeMarker(*marker), values);
        // What is not named stays.
        const QString first = given.value(kind).firstKey();
        const std::unique_ptr<Addition> usual(makeMarker({{"kind", kind}}));
        QVariantMap expected = describeMarker(*usual);
        QVERIFY(expected.value(first) != values.value(first));
        changeMarker(*usual, {{first, values.value(first)}});
        expected.insert(first, values.value(first));
        QCOMPARE(describeMarker(*usual), expected);
    }
    QVERIFY(!makeMarker({{"kind", ownMarkerKind()}}));
    QVERIFY(!makeMarker({}));
}

int main(int argc, char* argv[])
{
    return harness::run<TestAdditions>(argc, argv);
}

#include "tst_additions.moc"
