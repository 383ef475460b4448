#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/autoscaling.h"
#include "plots/dotaddition.h"
#include "scene/coordinatesystem.h"
#include "view/light.h"

#include <GL/gl.h>

#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

#include <limits>
#include <memory>
#include <vector>

using namespace Zel3D;
using namespace fixture;

using Change = std::function<bool(Plot&)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Parallelepiped)

namespace {

/// Counts what a plot emits of the signals that plots add to the view's.
class Signals
{
public:
    explicit Signals(Plot& plot)
    {
        const QMetaObject& meta = BasePlot::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                spies.push_back(std::make_unique<QSignalSpy>(&plot, "2" + meta.method(i).methodSignature()));
        }
    }
    /// As "name(value)" each.
    QStringList take()
    {
        QStringList all;
        for (const auto& spy : spies) {
            for (const QList<QVariant>& values : *spy)
                all.append(QString("%1(%2)").arg(QString(spy->signal()).section('(', 0, 0),
                                                 values.at(0).toString().isEmpty()
                                                     ? QString::number(values.at(0).toInt())
                                                     : values.at(0).toString()));
            spy->clear();
        }
        return all;
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> spies;
};

QVector<double> stateNow()
{
    QVector<double> values;
    for (int name :
         {GL_LINE_SMOOTH, GL_POINT_SMOOTH, GL_POINT_SIZE, GL_LINE_WIDTH, GL_BLEND, GL_BLEND_SRC, GL_BLEND_DST,
          GL_DEPTH_TEST, GL_LIGHTING, GL_NORMALIZE, GL_FRONT_FACE, GL_POLYGON_OFFSET_FILL, GL_MATRIX_MODE,
          GL_POLYGON_OFFSET_FACTOR, GL_CULL_FACE, GL_POLYGON_OFFSET_UNITS, GL_ATTRIB_STACK_DEPTH,
          GL_MODELVIEW_STACK_DEPTH, GL_PROJECTION_STACK_DEPTH}) {
        double value = 0.0;
        glGetDoublev(GLenum(name), &value);
        values.append(value);
    }
    double color[4] = {};
    glGetDoublev(GL_CURRENT_COLOR, color);
    for (double channel : color)
        values.append(channel);
    return values;
}

} // namespace

class TestBasePlot : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void changesEmitOnceAndRebuildAtTheNextPaint_data();
    void changesEmitOnceAndRebuildAtTheNextPaint();
    void slotsRepaintOnceAndWaitForTheContext_data();
    void slotsRepaintOnceAndWaitForTheContext();
    void styleAdditionGoesWithTheStyle();
    void additionsAreCopies();
    void automaticScaleOfBoxes_data();
    void automaticScaleOfBoxes();
    void inverseScale_data();
    void inverseScale();
    void switchingAutomaticScaling();
    void fixedBox_data();
    void fixedBox();
    void cornersPlaceTheLights();
    void hotKeys_data();
    void hotKeys();
    void shadingReachesItsOwnContextAlone();
    void framesCallTheListsOnly();
    void framesLeaveTheStateAsItWas_data();
    void framesLeaveTheStateAsItWas();
    void startViewShowsTheWholeBox_data();
    void startViewShowsTheWholeBox();
    void newContextShowsTheSamePicture();
    void deletingOneOfTwoPlots();
    void missingGradientIsToldOnce();
    void gradientsOfTheStoreAreSetByName();
};

void TestBasePlot::changesEmitOnceAndRebuildAtTheNextPaint_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("signal");
    QTest::addColumn<int>("lists");  // compiled at the next paint, that of the additions among them
    QTest::addColumn<bool>("again"); // what the change says when repeated
    const auto row = [](const char* name, const char* signal, int lists, const Change& change,
                        bool again = false) {
        QTest::newRow(name) << change << QString(signal) << lists << again;
    };
    row("resolution", "resolutionChanged(3)", 3, [](Plot& p) { return p.setResolution(3); });
    row("offset", "polygonOffsetChanged(1.5)", 2, [](Plot& p) { return p.setPolygonOffset(1.5); });
    row("shading", "shadingStyleChanged(0)", 0, [](Plot& p) { return p.setShadingStyle(FlatShading); });
    row("projection", "viewProjectionChanged(2)", 2,
        [](Plot& p) { return p.setViewProjection(BottomProjection); });
    row("normals off", "normalsChanged(false)", 0, [](Plot& p) { return p.setNormalsVisible(false); });
    row("mesh smooth", "meshSmoothChanged(true)", 2, [](Plot& p) { return p.setMeshSmooth(true); });
    row("mesh color", "meshColorChanged(#ff0000)", 1, [](Plot& p) { return p.setMeshColor(Qt::red); });
    row("mesh width", "meshLineWidthChanged(2.5)", 1, [](Plot& p) { return p.setMeshLineWidth(2.5); });
    row("ribs", "cylinderRibNumberChanged(5)", 1, [](Plot& p) { return p.setCylinderRibNumber(5); });
    row("radius, truncated", "cylinderRadiusChanged(2)", 1, [](Plot& p) { return p.setCylinderRadius(2.7); });
    row("frame", "cylinderFrameVisibleChanged(true)", 1,
        [](Plot& p) { return p.setCylinderFrameVisible(true); });
    row("angle", "cylinderAngleZChanged(10)", 1, [](Plot& p) { return p.setCylinderAngleZ(10.0); });
    row("multiplier", "cylinderMultiplier(0.5)", 1, [](Plot& p) { return p.setCylinderMultiplier(0.5); });
    row("dot size", "dotSizeChanged(3)", 1, [](Plot& p) { return p.setDotSize(3.0); });
    row("dot smooth", "dotSmoothChanged(true)", 1, [](Plot& p) { return p.setDotSmooth(true); });
    row("scale type", "axesScaleChanged(1)", 0,
        [](Plot& p) { return p.setAxesScaleType(ZAxis, Logarithmic); });
    row("minor", "minorIntervalChanged(4)", 0, [](Plot& p) { return p.setMinorInterval(XAxis, Linear, 4); });
    row("no minor", "minorIntervalChanged(0)", 0,
        [](Plot& p) { return p.setMinorInterval(XAxis, Linear, 0); });
    row("major", "majorIntervalChanged(4)", 0, [](Plot& p) { return p.setMajorInterval(XAxis, Linear, 4); });
    row("style", "plotStyleChanged(2)", 4, [](Plot& p) { return p.setPlotStyle(2); }); // its mesh apart
    row("background", "", 1, [](Plot& p) { return p.setBackgroundColor(Qt::gray); });
    row("automatic scaling", "boxScalingChanged(2)", 0, [](Plot& p) { return p.setAutoScaling(false); });
    row("equal units", "boxScalingChanged(1)", 0, [](Plot& p) { return p.setBoxScaling(EqualUnits); });
    row("grid", "gridStyleChanged(40)", 0, [](Plot& p) { return p.setGridStyle(GridBack | GridBottom); });
    row("edges", "automaticEdgesChanged(false)", 0, [](Plot& p) { return p.setAutomaticEdges(false); });
    row("faces", "automaticFacesChanged(true)", 0, [](Plot& p) { return p.setAutomaticFaces(true); });
    row("plain values", "", 0, [](Plot& p) { return p.setLogarithmicData(XAxis, true); });
    row(
        "gradient", "", 3, [](Plot& p) { return p.setGradient("x", plain(Qt::red)); }, true);
    row(
        "gradient range", "", 3,
        [](Plot& p) {
            return p.setGradientRange({1.0, 2.0}), true;
        },
        true);
    row(
        "fixed box", "", 3,
        [](Plot& p) {
            return p.setFixedHull({{1, 1, 1}, {2, 2, 2}}), true;
        },
        true);
    row(
        "kind of data", "", 3, [](Plot& p) { return p.updateDataType(1), p.getData()->getDataType() == 1; },
        true);
    row(
        "addition", "", 1, [](Plot& p) { return p.addAddition(*std::make_unique<Dot>()) != nullptr; }, true);
    row("addition gone", "", 1,
        [](Plot& p) { return !p.getAdditions().isEmpty() && p.removeAddition(p.getAdditions().first()); });
    row(
        "style addition", "", 2, [](Plot& p) { return p.setStyleAddition(new Dot), true; }, true);
}

void TestBasePlot::changesEmitOnceAndRebuildAtTheNextPaint()
{
    QFETCH(Change, change);
    QFETCH(QString, signal);
    QFETCH(int, lists);
    QFETCH(bool, again);
    Plot plot;
    Dot dot;
    plot.addAddition(dot);
    plot.setPlotStyle(4);
    plot.setNormalsVisible(true);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 80, 80));
    plot.updateGL();
    QGLWidget bystander;
    QVERIFY(harness::show(bystander, 50, 50));
    bystander.makeCurrent();
    Signals emitted(plot);
    GLRecorder recorder;
    QVERIFY(change(plot));
    QCOMPARE(emitted.take().join(' '), signal);
    QCOMPARE(change(plot), again);
    QVERIFY(emitted.take().isEmpty());
    QVERIFY2(recorder.calls().isEmpty(), qPrintable(recorder.calls().join(' ')));
    plot.updateGL();
    QCOMPARE(recorder.count("glNewList"), lists);
    plot.updateGL();
    QCOMPARE(recorder.count("glNewList"), lists);
}

void TestBasePlot::slotsRepaintOnceAndWaitForTheContext_data()
{
    QTest::addColumn<Change>("call"); // says whether the value is the new one
    QTest::addColumn<int>("lists");
    QTest::addColumn<bool>("early"); // whether the value is stored before there is a context
    const auto row = [](const char* name, int lists, bool early, const Change& call) {
        QTest::newRow(name) << call << lists << early;
    };
    row("resolution", 3, true,
        [](Plot& p) { return p.slotSetResolution(2), p.getSettings().getResolution() == 2; });
    row("style", 3, false, [](Plot& p) { return p.slotSetPlotStyle(4), p.getSettings().getStyle() == 4; });
    row("shading", 0, false, [](Plot& p) {
        return p.slotSetShadingStyle(FlatShading), p.getSettings().getShadingStyle() == FlatShading;
    });
    row("normals off", 0, false,
        [](Plot& p) { return p.slotShowNormals(false), !p.getSettings().getNormals().isVisible(); });
    row("automatic scaling", 0, false,
        [](Plot& p) { return p.slotSetAutoScaling(false), !p.isAutoScaling(); });
}

void TestBasePlot::slotsRepaintOnceAndWaitForTheContext()
{
    QFETCH(Change, call);
    QFETCH(int, lists);
    QFETCH(bool, early);
    Plot fresh;
    fresh.setNormalsVisible(true);
    QCOMPARE(call(fresh), early);
    Plot plot;
    plot.setNormalsVisible(true);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 80, 80));
    plot.updateGL();
    GLRecorder recorder;
    QVERIFY(call(plot));
    QCOMPARE(recorder.count("glNewList"), lists);
    QCOMPARE(recorder.count("glClear"), 1);
    QVERIFY(call(plot));
    QCOMPARE(recorder.count("glClear"), 1);
}

void TestBasePlot::styleAdditionGoesWithTheStyle()
{
    Plot plot;
    plot.setStyleAddition(new Dot);
    QVERIFY(!plot.setPlotStyle(-1));
    QVERIFY(plot.getStyleAddition());
    QVERIFY(!plot.setPlotStyle(0));
    QVERIFY(!plot.getStyleAddition());
}

void TestBasePlot::additionsAreCopies()
{
    Plot plot;
    DotAddition dot(2.0, false, Qt::red);
    Addition* copy = plot.addAddition(dot);
    QVERIFY(copy != &dot);
    Addition* second = plot.addAddition(dot);
    // A held one is not added again; what comes back is the last one all the same.
    QCOMPARE(plot.addAddition(*copy), second);
    QCOMPARE(plot.getAdditions(), (QList<Addition*>{copy, second}));
    QVERIFY(!plot.removeAddition(&dot));
    QVERIFY(plot.removeAddition(copy));
    QCOMPARE(plot.getAdditions(), QList<Addition*>{second});
}

void TestBasePlot::automaticScaleOfBoxes_data()
{
    QTest::addColumn<Parallelepiped>("box");
    QTest::addColumn<QVector<double>>("scale");
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const QVector<double> none{1.0, 1.0, 1.0};
    QTest::newRow("a cube") << Parallelepiped{{0, 0, 0}, {4, 2, 1}} << QVector<double>{1.0, 2.0, 4.0};
    QTest::newRow("away from zero") << Parallelepiped{{-1, 9, 5}, {1, 10, 9}}
                                    << QVector<double>{2.0, 4.0, 1.0};
    QTest::newRow("corners reversed")
        << Parallelepiped{{4, 0, 0}, {0, 2, -1}} << QVector<double>{1.0, 2.0, 4.0};
    QTest::newRow("no height") << Parallelepiped{{0, 0, 3}, {4, 2, 3}} << none;
    QTest::newRow("no width") << Parallelepiped{{1, 0, 0}, {1, 2, 3}} << none;
    QTest::newRow("infinite") << Parallelepiped{{0, 0, 0}, {1, 2, infinity}} << none;
}

void TestBasePlot::automaticScaleOfBoxes()
{
    QFETCH(Parallelepiped, box);
    QFETCH(QVector<double>, scale);
    Plot plot;
    plot.setScale({7.0, 7.0, 7.0});
    QVERIFY(plot.setHull(box));
    QVERIFY(!plot.setHull(box));
    const ValueXYZ<double> now = plot.getScale();
    QCOMPARE((QVector<double>{now.x, now.y, now.z}), scale);
}

void TestBasePlot::inverseScale_data()
{
    QTest::addColumn<QVector<double>>("scale");
    QTest::addColumn<QVector<double>>("inverse");
    QTest::newRow("plain") << QVector<double>{1.0, 2.0, 4.0} << QVector<double>{4.0, 2.0, 1.0};
    QTest::newRow("z competes without its sign")
        << QVector<double>{1.0, 2.0, -8.0} << QVector<double>{8.0, 4.0, 1.0};
    QTest::newRow("x competes with it") << QVector<double>{-8.0, 2.0, 1.0} << QVector<double>{0.25, 1.0, 2.0};
    QTest::newRow("y competes with it") << QVector<double>{1.0, -8.0, 2.0} << QVector<double>{2.0, 0.25, 1.0};
    QTest::newRow("zero stays 1") << QVector<double>{0.0, 2.0, 1e-310} << QVector<double>{1.0, 1.0, 1.0};
}

void TestBasePlot::inverseScale()
{
    QFETCH(QVector<double>, scale);
    QFETCH(QVector<double>, inverse);
    const ValueXYZ<double> result = AutoScaling::inverseOf({scale[0], scale[1], scale[2]});
    QCOMPARE((QVector<double>{result.x, result.y, result.z}), inverse);
}

void TestBasePlot::switchingAutomaticScaling()
{
    Plot plot;
    QVERIFY(harness::show(plot, 60, 60));
    plot.setHull({{0, 0, 0}, {4, 2, 1}});
    plot.slotSetScale({5.0, 5.0, 5.0});
    QCOMPARE(plot.getScale().z, 4.0);
    QCOMPARE(plot.getAutoScaleInverse().x, 4.0);
    plot.slotSetAutoScaling(false);
    QCOMPARE(plot.getScale().z, 1.0);
    plot.slotSetScale({2.0, 3.0, 0.5});
    QCOMPARE(plot.getScale().z, 0.5);
    plot.slotSetAutoScaling(true);
    QCOMPARE(plot.getScale().z, 4.0);
    plot.setHull({{0, 0, 0}, {4, 2, 2}});
    QCOMPARE(plot.getScale().z, 2.0);
    plot.slotSetAutoScaling(false);
    QCOMPARE(plot.getScale().x, 2.0);
    QCOMPARE(plot.getScale().z, 0.5);
}

void TestBasePlot::fixedBox_data()
{
    QTest::addColumn<Parallelepiped>("box");
    QTest::addColumn<bool>("usable");
    QTest::newRow("usable") << Parallelepiped{{1, 2, 3}, {4, 5, 6}} << true;
    QTest::newRow("flat, but no point") << Parallelepiped{{1, 2, 3}, {4, 5, 3}} << true;
    QTest::newRow("a point") << Parallelepiped{{1, 2, 3}, {1, 2, 3}} << false;
    QTest::newRow("first corner at the origin") << Parallelepiped{{0, 0, 0}, {4, 5, 6}} << false;
    QTest::newRow("second corner at the origin") << Parallelepiped{{-4, -5, -6}, {0, 0, 0}} << false;
}

void TestBasePlot::fixedBox()
{
    QFETCH(Parallelepiped, box);
    QFETCH(bool, usable);
    const Parallelepiped ofData{{0, 0, 0}, {3, 2, 23}};
    Plot plot;
    QVERIFY(Heights(4, 3, plane).into(plot));
    QCOMPARE(plot.getHull(), ofData);
    plot.setFixedHull(box);
    const Parallelepiped expected = usable ? box : ofData;
    QCOMPARE(plot.getHull(), expected);
    QCOMPARE(plot.first(), expected.minimum);
    QCOMPARE(plot.second(), expected.maximum);
    QCOMPARE(plot.getLegendRange().second, double(expected.maximum.z()));
    QVERIFY(Heights(4, 3, plane).into(plot));
    QCOMPARE(plot.getHull(), expected);
    plot.setFixedHull({});
    QCOMPARE(plot.getHull(), ofData);
}

void TestBasePlot::cornersPlaceTheLights()
{
    Plot plot;
    plot.createCoordinateSystem({0, 0, 0}, {0, 0, 20});
    for (const Light* light : plot.getLights()) {
        QCOMPARE(light->getCenter(), QVector3D(0, 0, 10));
        QCOMPARE(light->getMarkerHeight(), 1.0);
    }
}

void TestBasePlot::hotKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<unsigned>("mask");
    QTest::addColumn<QString>("toggled");
    QTest::newRow("A") << int(Qt::Key_A) << 31U << "scaling";
    QTest::newRow("A masked") << int(Qt::Key_A) << 15U << "";
    QTest::newRow("N") << int(Qt::Key_N) << 31U << "normals";
    QTest::newRow("N masked") << int(Qt::Key_N) << 23U << "";
    QTest::newRow("the view's keys are passed on") << int(Qt::Key_L) << 31U << "lighting";
}

void TestBasePlot::hotKeys()
{
    QFETCH(int, key);
    QFETCH(unsigned, mask);
    QFETCH(QString, toggled);
    Plot plot;
    QVERIFY(harness::show(plot, 60, 60));
    plot.setHotKeyMask(mask);
    QTest::keyClick(&plot, Qt::Key(key));
    QCOMPARE(!plot.isAutoScaling(), toggled == "scaling");
    QCOMPARE(plot.getSettings().getNormals().isVisible(), toggled == "normals");
    QCOMPARE(plot.isLighting(), toggled == "lighting");
    QTest::keyClick(&plot, Qt::Key(key));
    QVERIFY(plot.isAutoScaling() && !plot.getSettings().getNormals().isVisible() && !plot.isLighting());
}

void TestBasePlot::shadingReachesItsOwnContextAlone()
{
    Plot flat("flat");
    Plot smooth("smooth");
    QVERIFY(harness::show(flat, 60, 60) && harness::show(smooth, 60, 60));
    const auto shading = [](Plot& plot) {
        plot.makeCurrent();
        int model = 0;
        glGetIntegerv(GL_SHADE_MODEL, &model);
        return model;
    };
    smooth.makeCurrent();
    QVERIFY(flat.setShadingStyle(FlatShading));
    QCOMPARE(shading(smooth), GL_SMOOTH);
    flat.updateGL();
    QCOMPARE(shading(flat), GL_FLAT);
    QVERIFY(flat.setShadingStyle(SmoothShading));
    QCOMPARE(shading(flat), GL_SMOOTH);
    // A style that is none of the two sends nothing, then and at a paint.
    QVERIFY(flat.setShadingStyle(ShadingStyle(7)));
    GLRecorder recorder;
    flat.updateGL();
    QCOMPARE(recorder.count("glShadeModel"), 0);
}

void TestBasePlot::framesCallTheListsOnly()
{
    Plot plot;
    plot.setPlotStyle(5);
    plot.setNormalsVisible(true);
    plot.setLighting(true);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 60, 60));
    plot.updateGL();
    GLRecorder recorder;
    for (int i = 0; i < 5; ++i)
        plot.updateGL();
    QCOMPARE(recorder.count("glNewList"), 0);
    QCOMPARE(recorder.count("glCallList"), 15); // normals, additions, data
    QVERIFY(recorder.primitives().isEmpty());
    // Unit normals under the scale of the axes.
    const int normalize = recorder.indexOf(QString("glEnable(%1)").arg(GL_NORMALIZE));
    QVERIFY(normalize >= 0 && normalize < recorder.indexOf("glCallList"));
    plot.setLighting(false);
    recorder.clear();
    plot.updateGL();
    QCOMPARE(recorder.indexOf(QString("glEnable(%1)").arg(GL_NORMALIZE)), -1);
}

void TestBasePlot::framesLeaveTheStateAsItWas_data()
{
    QTest::addColumn<int>("style");
    for (int style : {1, 3, 5, 6})
        QTest::addRow("style %d", style) << style;
}

void TestBasePlot::framesLeaveTheStateAsItWas()
{
    QFETCH(int, style);
    Plot plot;
    plot.setPlotStyle(style);
    plot.setNormalsVisible(true);
    plot.setLighting(true);
    plot.setMeshLineWidth(3.0);
    plot.setMeshSmooth(true);
    plot.setPolygonOffset(1.0);
    plot.setDotSize(5.0);
    plot.setCylinderFrameVisible(true);
    plot.setViewProjection(TopProjection);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 60, 60));
    for (bool line : {false, true}) {
        plot.updateGL();
        line ? glEnable(GL_LINE_SMOOTH) : glDisable(GL_LINE_SMOOTH);
        glPointSize(2.0F);
        glColor4d(0.25, 0.5, 0.75, 1.0);
        const QVector<double> before = stateNow();
        plot.setPolygonOffset(line ? 2.0 : 3.0);
        GLRecorder recorder;
        plot.updateGL();
        QCOMPARE(recorder.count("glNewList"), style == 3 || style == 5 ? 3 : 2);
        QCOMPARE(stateNow(), before);
        plot.updateGL();
        QCOMPARE(stateNow(), before);
    }
}

void TestBasePlot::startViewShowsTheWholeBox_data()
{
    QTest::addColumn<double>("height");
    QTest::addColumn<bool>("keep");
    QTest::newRow("like the sides") << 3.0 << false;
    QTest::newRow("a thousand times the sides") << 3000.0 << false;
    QTest::newRow("proportions kept") << 3000.0 << true;
}

void TestBasePlot::startViewShowsTheWholeBox()
{
    QFETCH(double, height);
    QFETCH(bool, keep);
    Plot plot;
    plot.setPlotStyle(4);
    plot.setGradient("plain", plain(Qt::blue));
    plot.setKeepProportions(keep);
    QVERIFY(Heights(4, 4, [&](int i, int j) { return height * ((i + j) % 2); }).into(plot));
    QVERIFY(harness::show(plot, 200, 100));
    plot.fitView(0.8);
    const QImage image = harness::grab(plot);
    int left = image.width();
    int right = 0;
    int top = image.height();
    int bottom = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::white))
                continue;
            left = qMin(left, x);
            right = qMax(right, x);
            top = qMin(top, y);
            bottom = qMax(bottom, y);
        }
    }
    // Inside the window, and most of its smaller or of its larger side.
    QVERIFY2(left > 0 && right < 199 && top > 0 && bottom < 99, qPrintable(QString::number(left)));
    QVERIFY(right - left > 100 || bottom - top > 60);
}

void TestBasePlot::newContextShowsTheSamePicture()
{
    Plot plot;
    plot.setPlotStyle(5);
    plot.setNormalsVisible(true);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 100, 100));
    const QImage before = harness::grab(plot);
    QVERIFY(pixels(before, Qt::white) < 9000);
    {
        GLRecorder recorder;
        plot.setFormat(QGLFormat(QGL::DoubleBuffer | QGL::SampleBuffers));
        QCOMPARE(harness::grab(plot), before);
        QCOMPARE(recorder.count("glNewList"), 4);
    }
    plot.hide();
    QVERIFY(harness::show(plot, 100, 100));
    QCOMPARE(harness::grab(plot), before);
}

void TestBasePlot::deletingOneOfTwoPlots()
{
    auto first = std::make_unique<Plot>("first");
    Plot second("second", first.get());
    for (Plot* plot : {first.get(), &second}) {
        plot->setPlotStyle(5);
        QVERIFY(Heights(4, 4, plane).into(*plot));
        QVERIFY(harness::show(*plot, 100, 100));
    }
    QVERIFY(second.isSharing());
    const QImage before = harness::grab(second);
    QVERIFY(pixels(before, Qt::white) < 9000);
    second.makeCurrent();
    first.reset();
    GLRecorder recorder;
    QCOMPARE(harness::grab(second), before);
    QCOMPARE(recorder.count("glNewList"), 0);
}

void TestBasePlot::missingGradientIsToldOnce()
{
    SHPlot plot("bare", fixture::organization, fixture::application);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 60, 60));
    const harness::Messages messages;
    plot.updateGL();
    QCOMPARE(messages.warnings(""), 0);
    plot.setPlotStyle(4);
    plot.updateGL();
    plot.updateGL();
    QCOMPARE(messages.warnings("setGradient"), 1);
    QCOMPARE(messages.warnings("bare"), 1);
}

void TestBasePlot::gradientsOfTheStoreAreSetByName()
{
    Plot plot;
    const auto color = [&plot] { return (*plot.getDataColor())(0.0, 0.0, 0.5); };
    plot.setGradients("red", {{"red", plain(Qt::red)}, {"Magma", plain(Qt::blue)}});
    QCOMPARE(color(), QColor(Qt::red));
    // The plot's own before a preset of the same name.
    QVERIFY(plot.setProperty("gradient", "Magma"));
    QCOMPARE(plot.property("gradient").toString(), QString("Magma"));
    QCOMPARE(color(), QColor(Qt::blue));
    QVERIFY(plot.setProperty("gradient", "Viridis"));
    QCOMPARE(plot.property("gradient").toString(), QString("Viridis"));
    const harness::Messages messages;
    QVERIFY(plot.setProperty("gradient", "nowhere"));
    QCOMPARE(plot.property("gradient").toString(), QString("Viridis"));
    QCOMPARE(messages.warnings("there is no gradient \"nowhere\""), 1);
}

int main(int argc, char* argv[])
{
    return harness::run<TestBasePlot>(argc, argv);
}

#include "tst_baseplot.moc"
