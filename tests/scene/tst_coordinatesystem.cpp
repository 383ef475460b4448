#include "harness/glrecorder.h"
#include "scene/canvas.h"
#include "scene/coordinatesystem.h"
#include "scene/linestyle.h"

#include <QSettings>
#include <QtTest>

using namespace Zel3D;

namespace {

const QString organization = "voran-test";
const QString application = "voran-test";

/// Numbers and titles in the test font and intervals of 5.
void prepare(CoordinateSystem& box)
{
    const char* titles[] = {"x title", "y title", "z title"};
    for (int i = 0; i < 12; ++i) {
        Axis& axis = box.getAxis(AxisType(i));
        axis.getSettings().getNumbers().setFont(QFont("DejaVu Sans", 9));
        axis.getLabel().getSettings().setFont(QFont("DejaVu Sans", 10));
        axis.getLabel().getSettings().setText(titles[baseAxisType(AxisType(i))]);
        axis.getLabel().getSettings().setAngle(0);
    }
    for (BaseAxisType base : {XAxis, YAxis, ZAxis}) {
        box.setMajorInterval(base, 5);
        box.setMinorInterval(base, 2);
    }
}

QRectF rectangle(const Label& label)
{
    return QRectF(label.getPlacement().corner, label.getImage().size());
}

/// The rectangles of the texts that were drawn last.
QVector<QRectF> texts(CoordinateSystem& box)
{
    QVector<QRectF> result;
    for (int i = 0; i < 12; ++i) {
        if (!box.isAxisVisible(AxisType(i)))
            continue;
        for (const Axis::Major& major : box.getAxis(AxisType(i)).getMajors()) {
            if (major.label.isVisible() && major.label.getPlacement().visible)
                result.append(rectangle(major.label));
        }
    }
    return result;
}

double along(const QVector2D& direction, const QPointF& point)
{
    return double(direction.x()) * point.x() + double(direction.y()) * point.y();
}

/// Whether a line separates a rectangle from the box in the window.
bool isOutside(const WindowBox& box, const QRectF& rectangle)
{
    for (const WindowPoint& a : box.corners) {
        for (const WindowPoint& b : box.corners) {
            const QVector2D normal(float(b.y - a.y), float(a.x - b.x));
            double boxEnd = -1e9;
            for (const WindowPoint& corner : box.corners)
                boxEnd = std::max(boxEnd, along(normal.normalized(), QPointF(corner.x, corner.y)));
            double textStart = 1e9;
            for (const QPointF& corner :
                 {rectangle.topLeft(), rectangle.topRight(), rectangle.bottomLeft(), rectangle.bottomRight()})
                textStart = std::min(textStart, along(normal.normalized(), corner));
            if (textStart > boxEnd)
                return true;
        }
    }
    return false;
}

} // namespace

namespace {

/// Lines, ticks and numbers are invisible until switched on.
void showAxes(CoordinateSystem& box)
{
    for (int i = 0; i < 12; ++i) {
        Axis::Settings& axis = box.getAxis(AxisType(i)).getSettings();
        axis.getLine().setVisible(true);
        axis.getTics().setVisible(true);
        axis.getNumbers().setVisible(true);
        axis.resetNeedSave();
    }
}

} // namespace

class TestCoordinateSystem : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void limitsIncreaseAndNumbersAreTrue_data();
    void limitsIncreaseAndNumbersAreTrue();
    void childrenAreTheVisibleAxes();
    void operationsReachTheAxesOfTheirDirection();
    void namesStandOnAllEdgesOfTheirDirection();
    void gridLines_data();
    void gridLines();
    void gridLinesFollowTheirSettings();
    void gridLinesLeaveTheAxesWhole();
    void gridTicksAndAxesStayInAFlatBox();
    void lineWidthsStayInOrder();
    void lineStyles_data();
    void lineStyles();
    void smoothingAndLightingArePutBack_data();
    void smoothingAndLightingArePutBack();
    void highlightsOnlyVisibleAxes();
    void ticksFollowTheViewScale();
    void textsAreReadableAtEveryCamera_data();
    void textsAreReadableAtEveryCamera();
    void textsGiveWayToOthers();
    void warmFramesRenderNothing();
    void persistence();

private:
    void paintBox(CoordinateSystem& box, const Camera& camera, bool choose);
    Canvas canvas;
};

void TestCoordinateSystem::init()
{
    harness::clearStore();
    QVERIFY(harness::show(canvas, 400, 300));
    canvas.makeCurrent();
}

void TestCoordinateSystem::cleanup()
{
    canvas.paint = [] {};
}

/// Paints the box with a camera, with the axes that are easiest to read or those that are visible.
void TestCoordinateSystem::paintBox(CoordinateSystem& box, const Camera& camera, bool choose)
{
    canvas.paint = [&box, camera, choose] {
        glMatrixMode(GL_PROJECTION);
        Canvas::applyCamera(camera, box.getFirst(), box.getSecond());
        glMatrixMode(GL_MODELVIEW);
        if (choose)
            box.setVisibleEdges(chooseEdges(currentViewFrame(), box.getFirst(), box.getSecond()));
        box.draw();
    };
}

void TestCoordinateSystem::limitsIncreaseAndNumbersAreTrue_data()
{
    QTest::addColumn<QVector3D>("first");
    QTest::addColumn<QVector3D>("second");
    QTest::newRow("increasing") << QVector3D(0, -10, 100) << QVector3D(5, 10, 200);
    QTest::newRow("all reversed") << QVector3D(5, 10, 200) << QVector3D(0, -10, 100);
    QTest::newRow("one reversed") << QVector3D(0, 10, 100) << QVector3D(5, -10, 200);
}

void TestCoordinateSystem::limitsIncreaseAndNumbersAreTrue()
{
    QFETCH(QVector3D, first);
    QFETCH(QVector3D, second);
    CoordinateSystem box(first, second);
    showAxes(box);
    prepare(box);
    const float size = (second - first).length() / 100.0F;
    for (int i = 0; i < 12; ++i) {
        Axis& axis = box.getAxis(AxisType(i));
        const int base = int(baseAxisType(AxisType(i)));
        const BoxEdge edge = boxEdge(AxisType(i), first, second);
        QCOMPARE(axis.getName(), QString("axis%1").arg(i));
        QCOMPARE(axis.getStart(), edge.start);
        QCOMPARE(axis.getEnd(), edge.end);
        QCOMPARE(axis.getStart()[base], first[base]);
        QCOMPARE(axis.getEnd()[base], second[base]);
        QCOMPARE(axis.getRange().minimum, double(std::min(first[base], second[base])));
        QCOMPARE(axis.getRange().maximum, double(std::max(first[base], second[base])));
        QCOMPARE(axis.getSettings().getTics().getOrientation(), edge.ticDirection);
        QVERIFY(std::abs(float(axis.getArrow().getLength()) - 4.0F * 0.6F * size) < 1e-4F);
        axis.updateTics();
        QCOMPARE(axis.getMajors().size(), 6);
        for (const Axis::Major& major : axis.getMajors())
            QVERIFY(std::abs(major.label.getSettings().getText().toFloat() - major.position[base]) < 1e-3F);
    }
}

void TestCoordinateSystem::childrenAreTheVisibleAxes()
{
    CoordinateSystem box(QVector3D(), QVector3D(1, 1, 1));
    showAxes(box);
    QCOMPARE(box.getChildren().size(), 12);
    box.setAxisVisible(false);
    QVERIFY(box.getChildren().isEmpty());
    box.setAxesVisible(ZBackRight, true);
    box.setAxesVisible(ZBackRight, true);
    int unknown = 12;
    box.setAxesVisible(AxisType(unknown), true);
    QCOMPARE(box.getChildren(), (QList<BaseDraw*>{&box.getAxis(ZBackRight)}));
    QVERIFY(box.isAxisVisible(ZBackRight));
    QVERIFY(!box.isAxisVisible(XFrontBottom));
    EdgeChoice choice;
    choice.axes = {XBackTop, YLeftTop, ZFrontRight};
    choice.endOn = {false, true, false};
    box.setVisibleEdges(choice);
    QVERIFY(box.isAxisVisible(XBackTop));
    QVERIFY(box.isAxisVisible(ZFrontRight));
    QCOMPARE(box.getChildren().size(), 2);
}

void TestCoordinateSystem::operationsReachTheAxesOfTheirDirection()
{
    CoordinateSystem box(QVector3D(), QVector3D(1, 1, 1));
    showAxes(box);
    box.setMajorInterval(XAxis, 2);
    box.setMajorInterval(YAxis, 3);
    box.setMajorInterval(ZAxis, 4);
    box.setMinorInterval(YAxis, 7);
    box.setScale(ZAxis, Logarithmic);
    const QVector<int> directions{0, 1, 2, 0, 0, 0, 1, 1, 1, 2, 2, 2};
    for (int i = 0; i < 12; ++i) {
        const Axis::Settings& settings = box.getAxis(AxisType(i)).getSettings();
        QCOMPARE(settings.getMajor().getInterval(), directions.at(i) + 2);
        QCOMPARE(settings.getMinor().getInterval(), (QVector<int>{1, 7, 9}).at(directions.at(i)));
    }
}

void TestCoordinateSystem::namesStandOnAllEdgesOfTheirDirection()
{
    CoordinateSystem box(QVector3D(0, 0, 0), QVector3D(1, 1, 1));
    box.setAxisNames("East", "North", "Height");
    const QString names[] = {"East", "North", "Height"};
    for (int i = 0; i < 12; ++i)
        QCOMPARE(box.getAxis(AxisType(i)).getLabel().getSettings().getText(),
                 names[baseAxisType(AxisType(i))]);
}

void TestCoordinateSystem::gridLines_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("across"); // the coordinate that is constant on the face
    QTest::addColumn<float>("value");
    QTest::newRow("left") << int(GridLeft) << 0 << 10.0F;
    QTest::newRow("right") << int(GridRight) << 0 << 11.0F;
    QTest::newRow("front") << int(GridFront) << 1 << 20.0F;
    QTest::newRow("back") << int(GridBack) << 1 << 22.0F;
    QTest::newRow("top") << int(GridTop) << 2 << 33.0F;
    QTest::newRow("bottom") << int(GridBottom) << 2 << 30.0F;
}

void TestCoordinateSystem::gridLines()
{
    QFETCH(int, style);
    QFETCH(int, across);
    QFETCH(float, value);
    const QVector3D first(10, 20, 30);
    const QVector3D second(11, 22, 33);
    CoordinateSystem box(first, second);
    showAxes(box);
    prepare(box);
    box.setAxisVisible(false);
    box.getSettings().setGridStyle(style);
    GLRecorder recorder;
    box.draw();
    const QVector<GLRecorder::Primitive> blocks = recorder.primitives(GL_LINES);
    QCOMPARE(blocks.size(), 2);
    // 6 majors, and 10 minors of which all but the first also stand on majors, in both directions of the
    // face.
    QCOMPARE(blocks.at(0).vertices.size(), 2 * 2 * 6);
    QCOMPARE(blocks.at(1).vertices.size(), 2 * 2 * 10);
    int spanning = 0;
    for (const GLRecorder::Primitive& block : blocks) {
        for (int i = 0; i < block.vertices.size(); i += 2) {
            for (int j = 0; j < 3; ++j) {
                const double a = block.vertices.at(i).position[std::size_t(j)];
                const double b = block.vertices.at(i + 1).position[std::size_t(j)];
                if (j == across)
                    QVERIFY(std::abs(a - double(value)) < 1e-4 && std::abs(b - double(value)) < 1e-4);
                else if (std::abs(a - b) > 1e-4)
                    spanning += int(std::abs(std::abs(a - b) - double(second[j] - first[j])) < 1e-4);
            }
        }
    }
    // Every line runs across the whole face.
    QCOMPARE(spanning, 2 * 6 + 2 * 10);
}

void TestCoordinateSystem::gridLinesFollowTheirSettings()
{
    CoordinateSystem box(QVector3D(), QVector3D(1, 1, 1));
    showAxes(box);
    prepare(box);
    box.setAxisVisible(false);
    {
        GLRecorder recorder;
        box.draw();
        for (const GLRecorder::Primitive& block : recorder.primitives())
            QVERIFY(block.vertices.isEmpty());
    }
    box.getSettings().setGridStyle(63);
    box.getSettings().setGridColor(QColor(255, 0, 0));
    box.getSettings().setMajorLineStyle(0x0303);
    box.setMajorLineWidth(2.0);
    box.setMinorLineWidth(1.5);
    GLRecorder recorder;
    box.draw();
    QVERIFY(recorder.indexOf("glColor4d(1,0,0,1)") >= 0);
    const int major = recorder.indexOf("glLineStipple(1,771)");
    QVERIFY(major > recorder.indexOf("glLineWidth(2)"));
    const int minor = recorder.indexOf("glLineStipple(1,65535)", major);
    QVERIFY(minor > recorder.indexOf("glLineWidth(1.5)", major));
    QVERIFY(recorder.indexOf("glLineWidth(1.5)", major) > major);
    // Bottom, top, left, right, front, back.
    const QVector<GLRecorder::Vertex> lines = recorder.primitives(GL_LINES).first().vertices;
    QCOMPARE(lines.size(), 6 * 2 * 2 * 6);
    QCOMPARE(lines.at(0).position[2], 0.0);
    QCOMPARE(lines.at(24).position[2], 1.0);
    QCOMPARE(lines.at(48).position[0], 0.0);
    QCOMPARE(lines.at(72).position[0], 1.0);
    QCOMPARE(lines.at(96).position[1], 0.0);
    QCOMPARE(lines.at(120).position[1], 1.0);
    recorder.clear();
    box.getSettings().setMajorVisible(false);
    box.draw();
    QCOMPARE(recorder.primitives(GL_LINES).size(), 1);
    box.getSettings().setMinorVisible(false);
    recorder.clear();
    box.draw();
    QCOMPARE(recorder.primitives(GL_LINES).size(), 0);
}

void TestCoordinateSystem::gridTicksAndAxesStayInAFlatBox()
{
    CoordinateSystem box(QVector3D(0, 0, 0), QVector3D(1, 1, 9));
    showAxes(box);
    prepare(box);
    box.getSettings().setGridStyle(63);
    paintBox(box, {30.0, 40.0}, true);
    harness::grab(canvas);
    for (const QVector3D& second : {QVector3D(1, 1, 0), QVector3D(1, 0, 0), QVector3D(0, 0, 0)}) {
        box.init(QVector3D(0, 0, 0), second);
        GLRecorder recorder;
        harness::grab(canvas);
        for (const GLRecorder::Primitive& block : recorder.primitives(GL_LINES)) {
            for (const GLRecorder::Vertex& vertex : block.vertices)
                QVERIFY(std::abs(vertex.position[2]) < 1e-6);
        }
    }
    box.init(QVector3D(0, 0, float(qQNaN())), QVector3D(1, 1, 1));
    harness::grab(canvas);
}

void TestCoordinateSystem::gridLinesLeaveTheAxesWhole()
{
    CoordinateSystem box(QVector3D(-1.7F, 0.3F, -2.1F), QVector3D(3.1F, 5.9F, 4.3F));
    for (int i = 0; i < 12; ++i) {
        Axis& axis = box.getAxis(AxisType(i));
        axis.getSettings().getLine().setVisible(true);
        axis.getSettings().getLine().setColor(Qt::black);
        axis.getLabel().setVisible(false);
    }
    prepare(box);
    box.getSettings().setLineSmooth(false);
    box.getSettings().setGridColor(Qt::red);
    const auto blackPixels = [&](double turn, int grid) {
        box.getSettings().setGridStyle(grid);
        paintBox(box, {25.0, turn}, false);
        const QImage picture = harness::grab(canvas).convertToFormat(QImage::Format_RGB32);
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                count += qGray(picture.pixel(x, y)) < 20 ? 1 : 0;
        }
        return count;
    };
    int all = 0;
    int seen = 0;
    for (double turn = 5.0; turn < 360.0; turn += 37.0) {
        all += blackPixels(turn, 0);
        // Seen from above, the bottom covers no edge.
        seen += blackPixels(turn, GridBottom);
    }
    QVERIFY(all > 5000);
    QVERIFY2((all - seen) * 200 < all, qPrintable(QString("%1 of %2").arg(seen).arg(all)));
}

void TestCoordinateSystem::lineWidthsStayInOrder()
{
    CoordinateSystem box(QVector3D(), QVector3D(1, 1, 1));
    showAxes(box);
    box.resetNeedSave();
    box.setMajorLineWidth(0.2);
    QCOMPARE(box.getSettings().getMajorLineWidth(), 0.6);
    QVERIFY(box.getSettings().isSaveNeeded());
    QVERIFY(box.isSaveNeeded());
    box.setMinorLineWidth(5.0);
    QCOMPARE(box.getSettings().getMinorLineWidth(), 0.6);
    box.setMajorLineWidth(3.0);
    box.setMinorLineWidth(2.0);
    box.setMajorLineWidth(qQNaN());
    for (int i = 0; i < 12; ++i) {
        const Axis::Settings& settings = box.getAxis(AxisType(i)).getSettings();
        QCOMPARE(settings.getMajor().getLineWidth(), 3.0);
        QCOMPARE(settings.getMinor().getLineWidth(), 2.0);
        QVERIFY(settings.getMajor().isSaveNeeded());
        QVERIFY(settings.getMinor().isSaveNeeded());
    }
}

void TestCoordinateSystem::lineStyles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("pattern");
    QTest::newRow("solid") << "SolidLine" << 0 << 0xFFFF;
    QTest::newRow("dash") << "DashLine" << 1 << 0x00FF;
    QTest::newRow("dot") << "DotLine" << 2 << 0x0303;
    QTest::newRow("dash dot") << "DashDotLine" << 3 << 0xF18F;
    QTest::newRow("dash dot dot") << "DashDotDotLine" << 4 << 0xF330;
    QTest::newRow("unknown") << "dashline" << 5 << 0xFFFF;
    QTest::newRow("negative") << "" << -1 << 0xFFFF;
}

void TestCoordinateSystem::lineStyles()
{
    QFETCH(QString, name);
    QFETCH(int, index);
    QFETCH(int, pattern);
    QCOMPARE(lineStylePattern(name), pattern);
    QCOMPARE(lineStylePattern(index), pattern);
    QCOMPARE(lineStyleIndex(pattern), index >= 0 && index <= 4 ? index : 0);
}

void TestCoordinateSystem::smoothingAndLightingArePutBack_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("smooth");
    QTest::newRow("off, drawn smooth") << false << true;
    QTest::newRow("on, drawn smooth") << true << true;
    QTest::newRow("on, drawn jagged") << true << false;
}

void TestCoordinateSystem::smoothingAndLightingArePutBack()
{
    QFETCH(bool, before);
    QFETCH(bool, smooth);
    CoordinateSystem box(QVector3D(), QVector3D(1, 1, 1));
    showAxes(box);
    prepare(box);
    box.getSettings().setLineSmooth(smooth);
    box.getSettings().setGridStyle(63);
    BaseDraw::setGLEnable(GL_LINE_SMOOTH, before);
    glEnable(GL_LIGHTING);
    glLineStipple(3, 0x1234);
    glDisable(GL_LINE_STIPPLE);
    glLineWidth(2.0F);
    GLRecorder recorder;
    box.draw();
    // The first switch after those of the guards is that of the axes.
    const int axes = recorder.indexOf("glBlendFunc");
    const QString on = QString("glEnable(%1)").arg(GL_LINE_SMOOTH);
    const QString off = QString("glDisable(%1)").arg(GL_LINE_SMOOTH);
    const QStringList first = recorder.calls().mid(0, axes);
    QVERIFY(first.lastIndexOf(smooth ? on : off) > first.lastIndexOf(smooth ? off : on));
    QCOMPARE(glIsEnabled(GL_LINE_SMOOTH) == GL_TRUE, before);
    QVERIFY(glIsEnabled(GL_LIGHTING));
    QVERIFY(!glIsEnabled(GL_LINE_STIPPLE));
    int pattern = 0;
    glGetIntegerv(GL_LINE_STIPPLE_PATTERN, &pattern);
    QCOMPARE(pattern, 0x1234);
    float width = 0.0F;
    glGetFloatv(GL_LINE_WIDTH, &width);
    QCOMPARE(width, 2.0F);
    glDisable(GL_LIGHTING);
    glDisable(GL_LINE_SMOOTH);
    glLineWidth(1.0F);
}

void TestCoordinateSystem::highlightsOnlyVisibleAxes()
{
    CoordinateSystem box(QVector3D(), QVector3D(1, 1, 1));
    showAxes(box);
    box.getAxis(XFrontBottom).setHighlighted(true);
    box.getAxis(ZFrontRight).setHighlighted(true);
    box.setAxesVisible(ZFrontRight, false);
    GLRecorder recorder;
    box.draw();
    QCOMPARE(recorder.primitives(GL_QUADS).size(), 0);
    box.setHighlight(true);
    box.draw();
    QCOMPARE(recorder.primitives(GL_QUADS).size(), 2);
}

void TestCoordinateSystem::ticksFollowTheViewScale()
{
    CoordinateSystem box(QVector3D(), QVector3D(1000, 10, 1));
    showAxes(box);
    const ValueXYZ<double> scale{1.0, 100.0, 1000.0};
    box.setViewScale(scale);
    box.setViewScale(scale);
    const auto lengthInView = [&](AxisType type) {
        const Axis::TicsSettings& tics = box.getAxis(type).getSettings().getTics();
        return tics.getMajorLength() * (baseAxisType(type) == XAxis ? scale.y : scale.x);
    };
    // The same for every axis, and small against the scaled box of 1000 a side.
    for (int i = 0; i < 12; ++i)
        QVERIFY(std::abs(lengthInView(AxisType(i)) - lengthInView(XFrontBottom)) < 1e-6);
    QVERIFY(lengthInView(XFrontBottom) > 10.0 && lengthInView(XFrontBottom) < 40.0);
    QVERIFY(!box.getAxis(XFrontBottom).getSettings().getTics().isSaveNeeded());
    // Lengths that the host chose stay.
    box.getAxis(XFrontBottom).setTicsLength(7.0, 3.0);
    box.init(QVector3D(), QVector3D(1, 1, 1));
    QCOMPARE(box.getAxis(XFrontBottom).getSettings().getTics().getMajorLength(), 7.0);
    box.setViewScale({0.0, -1.0, qQNaN()});
    QVERIFY(box.getAxis(XBackTop).getSettings().getTics().getMajorLength() < 0.1);
}

void TestCoordinateSystem::textsAreReadableAtEveryCamera_data()
{
    QTest::addColumn<bool>("perspective");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::newRow("orthogonal") << false << QSize(400, 300) << 1.0;
    QTest::newRow("perspective") << true << QSize(400, 300) << 1.0;
    QTest::newRow("small") << false << QSize(240, 160) << 1.0;
    QTest::newRow("doubled pixels") << true << QSize(800, 600) << 2.0;
}

void TestCoordinateSystem::textsAreReadableAtEveryCamera()
{
    QFETCH(bool, perspective);
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QVERIFY(harness::show(canvas, size.width(), size.height()));
    CoordinateSystem box(QVector3D(0, 0, -50), QVector3D(10, 20, 50));
    showAxes(box);
    prepare(box);
    box.setPixelRatio(ratio);
    const QVector3D scale(10, 5, 1);
    box.setViewScale({double(scale.x()), double(scale.y()), double(scale.z())});
    int shown = 0;
    int cameras = 0;
    for (double x = -80.0; x <= 90.0; x += 17.0) {
        for (double z = 0.0; z < 360.0; z += 23.0) {
            Camera camera{x, z, perspective};
            camera.scale = scale;
            paintBox(box, camera, true);
            canvas.updateGL();
            const QVector<QRectF> found = texts(box);
            const WindowBox window = projectBox(Canvas::frame(camera, box.getFirst(), box.getSecond(), size),
                                                box.getFirst(), box.getSecond());
            for (int i = 0; i < found.size(); ++i) {
                QVERIFY(isOutside(window, found.at(i)));
                for (int j = 0; j < i; ++j)
                    QVERIFY(!found.at(i).intersects(found.at(j)));
            }
            shown += found.size();
            ++cameras;
        }
    }
    QVERIFY2(shown > 8 * cameras, qPrintable(QString("%1 numbers at %2 cameras").arg(shown).arg(cameras)));
}

void TestCoordinateSystem::textsGiveWayToOthers()
{
    CoordinateSystem box(QVector3D(), QVector3D(1, 1, 1));
    showAxes(box);
    prepare(box);
    paintBox(box, {25.0, -35.0}, true);
    canvas.updateGL();
    const int all = texts(box).size();
    const QRectF left(0, 0, 90, 300);
    const auto meets = [&](const QVector<QRectF>& found) {
        return std::count_if(found.begin(), found.end(),
                             [&](const QRectF& text) { return text.intersects(left); });
    };
    QVERIFY(meets(texts(box)) > 3);
    box.setOccupied({left});
    canvas.updateGL();
    QCOMPARE(int(meets(texts(box))), 0);
    QVERIFY(texts(box).size() > 3 && texts(box).size() < all);
    const Axis& upright = box.getAxis(ZFrontLeft);
    QVERIFY(!upright.isLabelShown() || !upright.getLabel().getRectangle().intersects(left));
    box.setOccupied({});
    canvas.updateGL();
    QCOMPARE(texts(box).size(), all);
}

void TestCoordinateSystem::warmFramesRenderNothing()
{
    CoordinateSystem box(QVector3D(), QVector3D(1, 1, 1));
    showAxes(box);
    prepare(box);
    for (BaseAxisType base : {XAxis, YAxis, ZAxis})
        box.setMajorInterval(base, 10);
    box.getSettings().setGridStyle(63);
    const auto images = [&] {
        QHash<QString, qint64> keys;
        for (int i = 0; i < 12; ++i) {
            const Axis& axis = box.getAxis(AxisType(i));
            keys.insert(QString("%1 title").arg(i), axis.getLabel().getImage().cacheKey());
            for (const Axis::Major& major : axis.getMajors())
                keys.insert(QString("%1 %2").arg(i).arg(major.label.getSettings().getText()),
                            major.label.getImage().cacheKey());
        }
        return keys;
    };
    paintBox(box, {25.0, 35.0}, true);
    harness::grab(canvas);
    const QHash<QString, qint64> before = images();
    GLRecorder recorder;
    for (double turn : {35.0, 36.0, 37.0}) {
        paintBox(box, {25.0, turn}, true);
        harness::grab(canvas);
    }
    QVERIFY(images() == before);
    QCOMPARE(recorder.count("glNewList"), 0);
    QVERIFY(recorder.count("glDrawPixels") > 30);
}

void TestCoordinateSystem::persistence()
{
    CoordinateSystem box(QVector3D(), QVector3D(1, 1, 1));
    showAxes(box);
    box.resetNeedSave();
    box.saveSettings("plot", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
    CoordinateSystem::CoordinateSystemSettings& settings = box.getSettings();
    QVERIFY(settings.setGridStyle(33));
    QVERIFY(!settings.setGridStyle(33));
    settings.setLineSmooth(false);
    settings.setGridColor(Qt::red);
    settings.setMajorVisible(false);
    settings.setMajorLineWidth(0.5);
    settings.setMajorLineStyle(0x00FF);
    settings.setMinorVisible(false);
    settings.setMinorLineWidth(0.4);
    settings.setMinorLineStyle(0x0303);
    box.setMajorInterval(ZAxis, 6);
    box.saveSettings("plot", organization, application);
    QStringList keys = QSettings(organization, application).allKeys();
    keys.sort();
    const QString group = "plot/coordsystem/";
    QStringList expected{
        "plot/axis2/major/interval",  "plot/axis2/major/lineWidth",  "plot/axis9/major/interval",
        "plot/axis9/major/lineWidth", "plot/axis10/major/interval",  "plot/axis10/major/lineWidth",
        "plot/axis11/major/interval", "plot/axis11/major/lineWidth", group + "gridColor",
        group + "gridStyle",          group + "lineSmooth",          group + "majorLineStyle",
        group + "majorLineWidth",     group + "majorVisible",        group + "minorLineStyle",
        group + "minorLineWidth",     group + "minorVisible"};
    expected.sort();
    QCOMPARE(keys, expected);
    CoordinateSystem read(QVector3D(), QVector3D(1, 1, 1));
    read.loadSettings("plot", organization, application);
    const CoordinateSystem::CoordinateSystemSettings& found = read.getSettings();
    QCOMPARE(found.getGridStyle(), 33);
    QVERIFY(!found.isLineSmooth());
    QCOMPARE(found.getGridColor(), QColor(Qt::red));
    QVERIFY(!found.isMajorVisible());
    QCOMPARE(found.getMajorLineWidth(), 0.6);
    QCOMPARE(found.getMajorLineStyle(), 0x00FF);
    QVERIFY(!found.isMinorVisible());
    QCOMPARE(found.getMinorLineWidth(), 0.4);
    QCOMPARE(found.getMinorLineStyle(), 0x0303);
    // The axes read their own groups elsewhere: what was saved above does not come back.
    QCOMPARE(read.getAxis(ZBackLeft).getSettings().getMajor().getInterval(), 1);
}

int main(int argc, char* argv[])
{
    return harness::run<TestCoordinateSystem>(argc, argv);
}

#include "tst_coordinatesystem.moc"
