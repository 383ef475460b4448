#include "scene/canvas.h"
#include "scene/edgepolicy.h"
#include "scene/facepolicy.h"
#include "scene/numberthinning.h"

#include <QMatrix4x4>
#include <QtTest>

#include <limits>
#include <random>

using namespace Zel3D;

namespace {

const QSize window(400, 300);
const QVector3D first(0, 0, 0);
const QVector3D second(2, 3, 1);
constexpr double infinity = std::numeric_limits<double>::infinity();

using Axes = QVector<int>;

double side(const WindowPoint& a, const WindowPoint& b, const WindowPoint& p)
{
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    return ((b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x)) / length;
}

/// Whether the whole box lies on one side of the line through an edge.
bool isOnOutline(const WindowBox& box, AxisType type, double tolerance = 1.0)
{
    double low = 0.0;
    double high = 0.0;
    for (const WindowPoint& corner : box.corners) {
        const double distance = side(box.corners[std::size_t(startCorner(type))],
                                     box.corners[std::size_t(endCorner(type))], corner);
        low = std::min(low, distance);
        high = std::max(high, distance);
    }
    return std::min(-low, high) < tolerance;
}

} // namespace

class TestEdgePolicy : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void edgesLieOnTheirFaces_data();
    void edgesLieOnTheirFaces();
    void choice_data();
    void choice();
    void anyCameraGetsTheOutline();
    void nothingFlickersAtTurningPoints_data();
    void nothingFlickersAtTurningPoints();
    void oddBoxes_data();
    void oddBoxes();
    void numbersOfAnEdgeThroughTheMiddle_data();
    void numbersOfAnEdgeThroughTheMiddle();
    void facesWithGridLinesAreBehind_data();
    void facesWithGridLinesAreBehind();
    void thinning_data();
    void thinning();

private:
    Canvas canvas;
};

void TestEdgePolicy::initTestCase()
{
    QVERIFY(harness::show(canvas, 50, 50));
    canvas.makeCurrent();
}

void TestEdgePolicy::edgesLieOnTheirFaces_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("base");
    QTest::addColumn<QVector3D>("start"); // 0 for the first corner's coordinate, 1 for the second's
    QTest::addColumn<QVector3D>("outward");
    QTest::newRow("0 front bottom") << 0 << 0 << QVector3D(0, 0, 0) << QVector3D(0, -1, 0);
    QTest::newRow("3 front top") << 3 << 0 << QVector3D(0, 0, 1) << QVector3D(0, -1, 0);
    QTest::newRow("4 back top") << 4 << 0 << QVector3D(0, 1, 1) << QVector3D(0, 1, 0);
    QTest::newRow("5 back bottom") << 5 << 0 << QVector3D(0, 1, 0) << QVector3D(0, 1, 0);
    QTest::newRow("1 left bottom") << 1 << 1 << QVector3D(0, 0, 0) << QVector3D(-1, 0, 0);
    QTest::newRow("6 left top") << 6 << 1 << QVector3D(0, 0, 1) << QVector3D(-1, 0, 0);
    QTest::newRow("7 right top") << 7 << 1 << QVector3D(1, 0, 1) << QVector3D(1, 0, 0);
    QTest::newRow("8 right bottom") << 8 << 1 << QVector3D(1, 0, 0) << QVector3D(1, 0, 0);
    QTest::newRow("2 back left") << 2 << 2 << QVector3D(0, 1, 0) << QVector3D(-1, 0, 0);
    QTest::newRow("9 front left") << 9 << 2 << QVector3D(0, 0, 0) << QVector3D(-1, 0, 0);
    QTest::newRow("10 back right") << 10 << 2 << QVector3D(1, 1, 0) << QVector3D(1, 0, 0);
    QTest::newRow("11 front right") << 11 << 2 << QVector3D(1, 0, 0) << QVector3D(1, 0, 0);
}

void TestEdgePolicy::edgesLieOnTheirFaces()
{
    QFETCH(int, type);
    QFETCH(int, base);
    QFETCH(QVector3D, start);
    QFETCH(QVector3D, outward);
    QVector3D end = start;
    end[base] = 1.0F;
    QCOMPARE(int(baseAxisType(AxisType(type))), base);
    for (const QVector3D& size : {QVector3D(2, 3, 4), QVector3D(-2, -3, -4), QVector3D(2, -3, 4)}) {
        const QVector3D corner(10, 20, 30);
        const BoxEdge edge = boxEdge(AxisType(type), corner, corner + size);
        QCOMPARE(edge.start, corner + size * start);
        QCOMPARE(edge.end, corner + size * end);
        // The ticks leave the box, whatever the order of the corners.
        QVector3D expected = outward;
        for (int i = 0; i < 3; ++i)
            expected[i] *= size[i] < 0.0F ? -1.0F : 1.0F;
        QCOMPARE(edge.ticDirection, expected);
    }
}

void TestEdgePolicy::choice_data()
{
    QTest::addColumn<double>("rotationX");
    QTest::addColumn<double>("rotationZ");
    QTest::addColumn<Axes>("axes");
    QTest::addColumn<bool>("yEndOn");
    QTest::addColumn<bool>("xTicks");
    QTest::newRow("front") << 0.0 << 0.0 << Axes{XFrontBottom, YRightBottom, ZFrontLeft} << true << false;
    QTest::newRow("from above, right side turned to the eye")
        << 30.0 << -35.0 << Axes{XFrontBottom, YRightBottom, ZFrontLeft} << false << true;
    QTest::newRow("from above, left side turned to the eye")
        << 30.0 << 35.0 << Axes{XFrontBottom, YLeftBottom, ZBackLeft} << false << true;
    QTest::newRow("from below, left side")
        << -30.0 << 35.0 << Axes{XBackBottom, YRightBottom, ZBackLeft} << false << true;
    QTest::newRow("from behind") << 30.0 << 150.0 << Axes{XBackBottom, YLeftBottom, ZBackRight} << false
                                 << true;
    QTest::newRow("top") << 90.0 << 0.0 << Axes{XFrontBottom, YRightBottom, ZFrontLeft} << false << true;
}

void TestEdgePolicy::choice()
{
    QFETCH(double, rotationX);
    QFETCH(double, rotationZ);
    QFETCH(Axes, axes);
    QFETCH(bool, yEndOn);
    QFETCH(bool, xTicks);
    const EdgeChoice found =
        chooseEdges(Canvas::frame({rotationX, rotationZ}, first, second, window), first, second);
    for (std::size_t i = 0; i < 2; ++i)
        QCOMPARE(int(found.axes[i]), axes[int(i)]);
    if (rotationX != 90.0)
        QCOMPARE(int(found.axes[2]), axes[2]);
    QCOMPARE(found.endOn[1], yEndOn);
    QCOMPARE(found.ticDirections[0].has_value(), xTicks);
    if (xTicks)
        QCOMPARE(*found.ticDirections[0], boxEdge(found.axes[0], first, second).ticDirection);
}

void TestEdgePolicy::anyCameraGetsTheOutline()
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> angle(-180.0, 180.0);
    int checked = 0;
    for (int round = 0; round < 3000; ++round) {
        const Camera camera{angle(random) / 2.0, angle(random), round % 2 == 0,
                            round % 3 == 0 ? angle(random) : 0.0};
        // Corners in any order.
        const QVector3D a(round & 4 ? 2.0F : 0.0F, round & 8 ? 3.0F : 0.0F, round & 16 ? 1.0F : 0.0F);
        const QVector3D b = second - a;
        const ViewFrame frame = Canvas::frame(camera, a, b, window);
        const WindowBox box = projectBox(frame, a, b);
        const EdgeChoice found = chooseEdges(frame, a, b);
        for (BaseAxisType base : {XAxis, YAxis, ZAxis}) {
            const AxisType type = found.axes[std::size_t(base)];
            QCOMPARE(baseAxisType(type), base);
            const WindowPoint& start = box.corners[std::size_t(startCorner(type))];
            const WindowPoint& end = box.corners[std::size_t(endCorner(type))];
            const std::array<AxisType, 4>& edges = axesOf(base);
            // From close in front of a face no edge across it is on the outline.
            const bool any = std::any_of(edges.begin(), edges.end(),
                                         [&](AxisType edge) { return isOnOutline(box, edge, 0.2); });
            if (found.endOn[std::size_t(base)] || !any)
                continue;
            ++checked;
            QVERIFY(isOnOutline(box, type));
            // Numbers stand on the far side of the edge from every corner.
            const QVector2D outward = edgeOutward(box, type);
            for (const WindowPoint& corner : box.corners)
                QVERIFY(double(outward.x()) * (corner.x - start.x) +
                            double(outward.y()) * (corner.y - start.y) <
                        1.0);
            // No other edge of the outline is much lower, or further left.
            for (AxisType other : edges) {
                const WindowPoint& from = box.corners[std::size_t(startCorner(other))];
                const WindowPoint& to = box.corners[std::size_t(endCorner(other))];
                if (!isOnOutline(box, other, 0.2) || std::hypot(to.x - from.x, to.y - from.y) < 20.0)
                    continue;
                const double better = base == ZAxis ? (start.x + end.x - from.x - to.x) / 2.0
                                                    : (start.y + end.y - from.y - to.y) / 2.0;
                QVERIFY(better < 60.0);
            }
            // The ticks of an edge on the outline never point into the box.
            const QVector3D tic = boxEdge(type, a, b).ticDirection;
            const QVector3D middle = (boxEdge(type, a, b).start + boxEdge(type, a, b).end) * 0.5F;
            const WindowPoint p = projectToWindow(frame, middle);
            const WindowPoint q = projectToWindow(frame, middle + tic * 0.1F);
            QVERIFY(double(outward.x()) * (q.x - p.x) + double(outward.y()) * (q.y - p.y) > -0.5);
        }
    }
    QVERIFY(checked > 8000);
}

void TestEdgePolicy::nothingFlickersAtTurningPoints_data()
{
    QTest::addColumn<double>("rotationX");
    QTest::addColumn<double>("rotationZ");
    for (double x : {0.0, 30.0, -30.0, 90.0, -90.0}) {
        for (double z : {0.0, 45.0, 90.0, 180.0, -90.0})
            QTest::newRow(qPrintable(QString("%1 %2").arg(x).arg(z))) << x << z;
    }
}

void TestEdgePolicy::nothingFlickersAtTurningPoints()
{
    QFETCH(double, rotationX);
    QFETCH(double, rotationZ);
    std::mt19937 random(11);
    std::uniform_real_distribution<double> tremble(-0.4, 0.4);
    for (bool perspective : {false, true}) {
        EdgeChoice choice;
        int changes = 0;
        for (int step = 0; step < 200; ++step) {
            const Camera camera{rotationX + tremble(random), rotationZ + tremble(random), perspective};
            const EdgeChoice next =
                chooseEdges(Canvas::frame(camera, first, second, window), first, second, &choice);
            if (step > 0 && next.axes != choice.axes)
                ++changes;
            choice = next;
        }
        QVERIFY2(changes <= 1, qPrintable(QString::number(changes)));
    }
}

void TestEdgePolicy::oddBoxes_data()
{
    QTest::addColumn<QVector3D>("a");
    QTest::addColumn<QVector3D>("b");
    QTest::addColumn<bool>("keepsPrevious");
    QTest::newRow("no size") << QVector3D(1, 1, 1) << QVector3D(1, 1, 1) << true;
    QTest::newRow("not a number") << QVector3D(0, 0, 0) << QVector3D(1, float(qQNaN()), 1) << true;
    QTest::newRow("infinite") << QVector3D(0, 0, 0) << QVector3D(1, float(infinity), 1) << true;
    QTest::newRow("behind the eye") << QVector3D(-500, -500, -500) << QVector3D(500, 500, 500) << true;
    QTest::newRow("flat in z") << QVector3D(0, 0, 0) << QVector3D(2, 2, 0) << false;
    QTest::newRow("flat in x") << QVector3D(0, 0, 0) << QVector3D(0, 2, 2) << false;
    QTest::newRow("a line") << QVector3D(0, 0, 0) << QVector3D(2, 0, 0) << false;
}

void TestEdgePolicy::oddBoxes()
{
    QFETCH(QVector3D, a);
    QFETCH(QVector3D, b);
    QFETCH(bool, keepsPrevious);
    // A camera of its own, for the box gives none.
    const ViewFrame frame = Canvas::frame({30.0, 40.0, true}, first, second, window);
    EdgeChoice previous;
    previous.axes = {XBackTop, YLeftTop, ZBackRight};
    const EdgeChoice found = chooseEdges(frame, a, b, &previous);
    for (BaseAxisType base : {XAxis, YAxis, ZAxis})
        QCOMPARE(baseAxisType(found.axes[std::size_t(base)]), base);
    if (keepsPrevious) {
        QVERIFY(found.axes == previous.axes);
        QVERIFY(chooseEdges(frame, a, b).axes == EdgeChoice().axes);
    }
    const WindowBox box = projectBox(frame, a, b);
    for (int i = 0; i < 12; ++i)
        QVERIFY(std::abs(double(edgeOutward(box, AxisType(i)).length()) - 1.0) < 1e-5);
}

void TestEdgePolicy::numbersOfAnEdgeThroughTheMiddle_data()
{
    QTest::addColumn<QPointF>("along");
    QTest::addColumn<QVector2D>("outward");
    QTest::newRow("upwards") << QPointF(0, 9) << QVector2D(-1, 0);
    QTest::newRow("downwards") << QPointF(0, -9) << QVector2D(-1, 0);
    QTest::newRow("to the right") << QPointF(9, 0) << QVector2D(0, -1);
    QTest::newRow("to the left") << QPointF(-9, 0) << QVector2D(0, -1);
    QTest::newRow("rising") << QPointF(4, 3) << QVector2D(0.6F, -0.8F);
    QTest::newRow("falling") << QPointF(4, -3) << QVector2D(-0.6F, -0.8F);
    QTest::newRow("rising to the left") << QPointF(-4, 3) << QVector2D(-0.6F, -0.8F);
}

// Below the edge, or left of it where it is upright.
void TestEdgePolicy::numbersOfAnEdgeThroughTheMiddle()
{
    QFETCH(QPointF, along);
    WindowBox box;
    box.valid = true;
    box.corners.fill({100.0, 80.0, 0.5, true});
    WindowPoint& start = box.corners[std::size_t(startCorner(ZFrontLeft))];
    WindowPoint& end = box.corners[std::size_t(endCorner(ZFrontLeft))];
    start.x -= along.x();
    start.y -= along.y();
    end.x += along.x();
    end.y += along.y();
    QFETCH(QVector2D, outward);
    const QVector2D found = edgeOutward(box, ZFrontLeft);
    const QString text = QString("%1, %2").arg(double(found.x())).arg(double(found.y()));
    QVERIFY2((found - outward).length() < 1e-5F, qPrintable(text));
}

void TestEdgePolicy::facesWithGridLinesAreBehind_data()
{
    QTest::addColumn<double>("tilt");
    QTest::addColumn<double>("turn");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("behind");
    const int usual = GridBack | GridBottom;
    QTest::newRow("front, from above") << 20.0 << 0.0 << usual << (GridBack | GridBottom);
    QTest::newRow("from behind") << 20.0 << 180.0 << usual << (GridFront | GridBottom);
    QTest::newRow("from below") << -20.0 << 0.0 << usual << (GridBack | GridTop);
    QTest::newRow("left, from the side") << 20.0 << 90.0 << int(GridLeft) << int(GridRight);
    QTest::newRow("right, from the side") << 20.0 << 90.0 << int(GridRight) << int(GridRight);
    QTest::newRow("edge-on keeps its own") << 0.0 << 0.0 << usual << usual;
    QTest::newRow("both stay") << 20.0 << 180.0 << (GridFront | GridBack) << (GridFront | GridBack);
    QTest::newRow("none") << 20.0 << 180.0 << 0 << 0;
}

void TestEdgePolicy::facesWithGridLinesAreBehind()
{
    QFETCH(double, tilt);
    QFETCH(double, turn);
    QFETCH(int, wanted);
    QFETCH(int, behind);
    QMatrix4x4 camera;
    camera.ortho(-5.0F, 5.0F, -5.0F, 5.0F, -10.0F, 10.0F);
    camera.rotate(float(tilt - 90.0), 1.0F, 0.0F, 0.0F);
    camera.rotate(float(turn), 0.0F, 0.0F, 1.0F);
    ViewFrame frame;
    const QMatrix4x4 identity;
    std::copy_n(identity.constData(), 16, frame.modelview.begin());
    std::copy_n(camera.constData(), 16, frame.projection.begin());
    frame.viewport = {0, 0, 400, 300};
    QCOMPARE(facesBehind(frame, first, second, wanted), behind);
    QCOMPARE(facesBehind(frame, second, first, wanted), behind);
}

void TestEdgePolicy::thinning_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QPointF>("step"); // from one number of 30 by 10 pixels to the next
    QTest::addColumn<QVector<int>>("kept");
    QTest::newRow("all fit") << 4 << QPointF(36, 0) << QVector<int>{0, 1, 2, 3};
    QTest::newRow("one pixel short") << 4 << QPointF(35, 0) << QVector<int>{0, 2};
    QTest::newRow("upright, small gap") << 4 << QPointF(0, 11) << QVector<int>{0, 1, 2, 3};
    QTest::newRow("downwards") << 5 << QPointF(0, -6) << QVector<int>{0, 2, 4};
    QTest::newRow("oblique") << 7 << QPointF(-12, 4) << QVector<int>{0, 3, 6};
    QTest::newRow("both ends only") << 5 << QPointF(9, 0) << QVector<int>{0, 4};
    QTest::newRow("end-on") << 5 << QPointF(0, 0) << QVector<int>{};
    QTest::newRow("a single one") << 1 << QPointF(0, 0) << QVector<int>{0};
    QTest::newRow("none") << 0 << QPointF(0, 0) << QVector<int>{};
}

void TestEdgePolicy::thinning()
{
    QFETCH(int, count);
    QFETCH(QPointF, step);
    QFETCH(QVector<int>, kept);
    QVector<QRectF> rectangles;
    for (int i = 0; i < count; ++i)
        rectangles.append(QRectF(step * i, QSizeF(30, 10)));
    const QVector<bool> found = keptNumbers(rectangles, QSizeF(6.0, 1.0));
    QVector<int> indices;
    for (int i = 0; i < count; ++i) {
        if (found.at(i))
            indices.append(i);
    }
    QCOMPARE(indices, kept);
    // A number without a place is never shown and does not push the others aside.
    if (count > 1) {
        rectangles[0] = QRectF();
        QVERIFY(!keptNumbers(rectangles, QSizeF(6.0, 1.0)).at(0));
    }
}

int main(int argc, char* argv[])
{
    return harness::run<TestEdgePolicy>(argc, argv);
}

#include "tst_edgepolicy.moc"
