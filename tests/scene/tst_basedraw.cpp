#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "scene/basedraw.h"
#include "view/glmode.h"

#include <GL/gl.h>

#include <QGLWidget>
#include <QSettings>
#include <QtTest>

using namespace Zel3D;

namespace {

const QString organization = "voran-test";
const QString application = "voran-test";

/// A drawable that spoils everything that the guard covers.
class Spoiler : public BaseDraw
{
public:
    void draw() override
    {
        ++drawn;
        glEnable(GL_LINE_SMOOTH);
        glEnable(GL_POLYGON_SMOOTH);
        setGLLineWidth(3.0F);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
        glColor4d(0.25, 0.5, 0.75, 0.125);
        glLineStipple(4, 0x0F0F);
        glEnable(GL_LINE_STIPPLE);
        glEnable(GL_TEXTURE_2D);
        glMatrixMode(GL_PROJECTION);
        glPolygonOffset(2.0F, 3.0F);
        glEnable(GL_POLYGON_OFFSET_FILL);
    }
    void drawHighlight() override { ++highlighted; }
    int drawn = 0;
    int highlighted = 0;
};

/// The saved items that can be compared as numbers, and the current colour.
QVector<double> stateNow()
{
    QVector<double> values;
    for (int name :
         {GL_LINE_SMOOTH, GL_POLYGON_SMOOTH, GL_LINE_WIDTH, GL_BLEND_SRC, GL_BLEND_DST,
          GL_LINE_STIPPLE_PATTERN, GL_LINE_STIPPLE_REPEAT, GL_LINE_STIPPLE, GL_TEXTURE_2D, GL_MATRIX_MODE,
          GL_POLYGON_OFFSET_FACTOR, GL_POLYGON_OFFSET_UNITS, GL_POLYGON_OFFSET_FILL}) {
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

class TestBaseDraw : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void childrenAreDrawnOnceAndInOrder();
    void drawPutsTheStateBack();
    void polygonModeIsRestoredWithTheFrontModeAsFace();
    void widthsAreClampedToTheDriver_data();
    void widthsAreClampedToTheDriver();
    void visibilityPersistsOnlyWhenMarked();
    void projectionHelpers();
    void guardRestoresOrKeeps_data();
    void guardRestoresOrKeeps();

private:
    QGLWidget widget;
};

void TestBaseDraw::init()
{
    harness::clearStore();
    QVERIFY(harness::show(widget, 200, 100));
    widget.makeCurrent();
    glViewport(0, 0, 200, 100);
}

void TestBaseDraw::childrenAreDrawnOnceAndInOrder()
{
    BaseDraw parent;
    Spoiler first;
    Spoiler second;
    Spoiler stranger;
    parent.append(&first);
    parent.append(nullptr);
    parent.append(&second);
    parent.append(&first);
    parent.remove(&stranger);
    QCOMPARE(parent.getChildren(), (QList<BaseDraw*>{&first, nullptr, &second}));
    parent.draw();
    parent.drawHighlight();
    QCOMPARE(first.drawn, 1);
    QCOMPARE(second.drawn, 1);
    QCOMPARE(first.highlighted, 1);
    parent.remove(&first);
    parent.draw();
    QCOMPARE(first.drawn, 1);
    QCOMPARE(second.drawn, 2);
}

void TestBaseDraw::drawPutsTheStateBack()
{
    glLineStipple(2, 0x00FF);
    glColor4d(1.0, 0.0, 0.0, 0.5);
    glMatrixMode(GL_MODELVIEW);
    BaseDraw parent;
    Spoiler spoiler;
    parent.append(&spoiler);
    const QVector<double> before = stateNow();
    parent.draw();
    QCOMPARE(stateNow(), before);
    spoiler.draw();
    QVERIFY(stateNow() != before);
    while (glGetError() != GL_NO_ERROR) {
    }
}

void TestBaseDraw::polygonModeIsRestoredWithTheFrontModeAsFace()
{
    GLRecorder recorder;
    BaseDraw parent;
    parent.draw();
    QVERIFY(recorder.calls().contains(QString("glPolygonMode(%1,%1)").arg(GL_FILL)));
    QCOMPARE(glGetError(), GLenum(GL_INVALID_ENUM));
}

void TestBaseDraw::widthsAreClampedToTheDriver_data()
{
    QTest::addColumn<float>("wanted");
    QTest::addColumn<bool>("atMinimum");
    QTest::addColumn<bool>("atMaximum");
    QTest::newRow("negative") << -3.0F << true << false;
    QTest::newRow("zero") << 0.0F << true << false;
    QTest::newRow("inside") << 2.0F << false << false;
    QTest::newRow("huge") << 1e30F << false << true;
    QTest::newRow("not a number") << float(qQNaN()) << true << false;
}

void TestBaseDraw::widthsAreClampedToTheDriver()
{
    QFETCH(float, wanted);
    QFETCH(bool, atMinimum);
    QFETCH(bool, atMaximum);
    const auto expected = [&](GLenum rangeName) {
        float range[2] = {};
        glGetFloatv(rangeName, range);
        return atMinimum ? range[0] : atMaximum ? range[1] : wanted;
    };
    float value = 0.0F;
    BaseDraw::setGLLineWidth(wanted);
    glGetFloatv(GL_LINE_WIDTH, &value);
    QCOMPARE(value, expected(GL_LINE_WIDTH_RANGE));
    BaseDraw::setGLPointSize(wanted);
    glGetFloatv(GL_POINT_SIZE, &value);
    QCOMPARE(value, expected(GL_POINT_SIZE_RANGE));
}

void TestBaseDraw::visibilityPersistsOnlyWhenMarked()
{
    BaseDraw fresh;
    fresh.saveSettings("plot/thing", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
    QSettings(organization, application).setValue("plot/thing/visible", true);
    fresh.loadSettings("plot/thing", organization, application);
    QVERIFY(fresh.isVisible());
    QSettings(organization, application).clear();
    fresh.saveSettings("plot/thing", organization, application);
    QCOMPARE(QSettings(organization, application).value("plot/thing/visible").toBool(), true);
    QSettings(organization, application).clear();
    fresh.resetNeedSave();
    fresh.saveSettings("plot/thing", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
}

void TestBaseDraw::projectionHelpers()
{
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    BaseDraw drawable;
    bool failed = true;
    QCOMPARE(drawable.World2ViewPort(QVector3D(0.5F, -0.5F, 0.0F), &failed), QVector3D(150.0F, 25.0F, 0.5F));
    QVERIFY(!failed);
    QCOMPARE(drawable.ViewPort2World(QVector3D(150.0F, 25.0F, 0.5F), nullptr), QVector3D(0.5F, -0.5F, 0.0F));
    glViewport(10, 20, 100, 50);
    drawable.World2ViewPort(QVector3D(), nullptr);
    // The viewport's corner is subtracted from the fraction before the scaling: far outside the window.
    const QVector3D outside = drawable.relativePosition(QVector3D(0.5F, 0.5F, 0.5F));
    QCOMPARE(outside.x(), ((0.5F - 10.0F) * 100.0F - 10.0F) / 100.0F * 2.0F - 1.0F);
    QCOMPARE(outside.y(), ((0.5F - 20.0F) * 50.0F - 20.0F) / 50.0F * 2.0F - 1.0F);
    glScalef(0.0F, 1.0F, 1.0F);
    drawable.ViewPort2World(QVector3D(), &failed);
    QVERIFY(failed);
    glLoadIdentity();
}

void TestBaseDraw::guardRestoresOrKeeps_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("enable");
    QTest::addColumn<bool>("keep");
    QTest::addColumn<bool>("after");
    QTest::newRow("on, back to off") << false << true << false << false;
    QTest::newRow("off, back to on") << true << false << false << true;
    QTest::newRow("on is kept") << false << true << true << true;
    QTest::newRow("off is kept") << true << false << true << false;
}

void TestBaseDraw::guardRestoresOrKeeps()
{
    QFETCH(bool, before);
    QFETCH(bool, enable);
    QFETCH(bool, keep);
    QFETCH(bool, after);
    BaseDraw::setGLEnable(GL_LIGHTING, before);
    {
        const GLMode guard(GL_LIGHTING, enable, keep);
        QCOMPARE(glIsEnabled(GL_LIGHTING) == GL_TRUE, enable);
        glDisable(GL_LIGHTING);
    }
    QCOMPARE(glIsEnabled(GL_LIGHTING) == GL_TRUE, after);
    glDisable(GL_LIGHTING);
}

int main(int argc, char* argv[])
{
    return harness::run<TestBaseDraw>(argc, argv);
}

#include "tst_basedraw.moc"
