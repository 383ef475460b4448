#include "harness/glrecorder.h"
#include "scene/arrow.h"
#include "scene/canvas.h"

#include <GL/glu.h>

#include <QMatrix4x4>
#include <QSettings>
#include <QtTest>

using namespace Zel3D;

namespace {
const QString organization = "voran-test";
const QString application = "voran-test";
} // namespace

class TestArrow : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void sizes_data();
    void sizes();
    void lineLengthIsRefusedWhenTooShort_data();
    void lineLengthIsRefusedWhenTooShort();
    void drawsAConeAlongItsDirection_data();
    void drawsAConeAlongItsDirection();
    void persistence();

private:
    Canvas canvas;
};

void TestArrow::init()
{
    harness::clearStore();
    QVERIFY(harness::show(canvas, 200, 100));
    canvas.makeCurrent();
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

void TestArrow::sizes_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<double>("factor");
    QTest::newRow("small, the default") << 0 << 0.6;
    QTest::newRow("normal") << 1 << 1.0;
    QTest::newRow("large") << 2 << 1.4;
    QTest::newRow("unknown") << 7 << 1.0;
}

void TestArrow::sizes()
{
    QFETCH(int, style);
    QFETCH(double, factor);
    Arrow arrow;
    arrow.setParameters(2.0, 10.0);
    QCOMPARE(arrow.setSizeStyle(ArrowSizeStyle(style)), style != 0);
    QCOMPARE(arrow.getRadius(), 2.0 * factor);
    QCOMPARE(arrow.getLength(), 10.0 * factor);
    arrow.setParameters(1.0, 5.0);
    QCOMPARE(arrow.getLength(), 5.0 * factor);
}

void TestArrow::lineLengthIsRefusedWhenTooShort_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("too short") << 0.0005 << false;
    QTest::newRow("not a number") << qQNaN() << false;
    QTest::newRow("negative") << -1.0 << false;
    QTest::newRow("the current one") << 0.001 << false;
    QTest::newRow("longer") << 0.5 << true;
}

void TestArrow::lineLengthIsRefusedWhenTooShort()
{
    QFETCH(double, value);
    QFETCH(bool, accepted);
    Arrow arrow;
    QCOMPARE(arrow.getSettings().setLineLength(value), accepted);
    QCOMPARE(arrow.getSettings().getLineLength(), accepted ? value : 0.001);
    QCOMPARE(arrow.getSettings().isSaveNeeded(), accepted);
}

void TestArrow::drawsAConeAlongItsDirection_data()
{
    QTest::addColumn<QVector3D>("direction");
    QTest::addColumn<QVector3D>("tip"); // of a cone of length 0.25 whose base lies 0.5 directions off
    QTest::newRow("x") << QVector3D(0.5F, 0, 0) << QVector3D(0.5F, 0, 0);
    QTest::newRow("y, not normalised") << QVector3D(0, -1.0F, 0) << QVector3D(0, -0.75F, 0);
    QTest::newRow("z") << QVector3D(0, 0, 0.5F) << QVector3D(0, 0, 0.5F);
    QTest::newRow("down z") << QVector3D(0, 0, -0.5F) << QVector3D(0, 0, -0.5F);
}

void TestArrow::drawsAConeAlongItsDirection()
{
    QFETCH(QVector3D, direction);
    QFETCH(QVector3D, tip);
    Arrow arrow;
    arrow.setParameters(0.1, 0.25);
    arrow.setSizeStyle(ArrowNormal);
    arrow.setDirection(direction);
    arrow.getSettings().setLineLength(0.5);
    arrow.getSettings().setColor(QColor(255, 0, 0, 51));
    arrow.getSettings().setStyle(3);
    {
        GLRecorder recorder;
        arrow.draw();
        QVERIFY(recorder.calls().isEmpty());
    }
    arrow.setVisible(true);
    glMatrixMode(GL_PROJECTION);
    GLRecorder recorder;
    arrow.draw();
    QVERIFY(recorder.calls().contains("glColor4d(1,0,0,0.2)"));
    QVERIFY(recorder.calls().contains(QString("gluQuadricDrawStyle(%1)").arg(GLU_LINE)));
    QVERIFY(recorder.calls().contains("gluCylinder(0.1,0,0.25,10,10)"));
    QVERIFY(recorder.calls().contains("gluDisk(0,0.1,10,10)"));
    QCOMPARE(recorder.count("glPushMatrix"), recorder.count("glPopMatrix"));
    int mode = 0;
    glGetIntegerv(GL_MATRIX_MODE, &mode);
    QCOMPARE(mode, GL_PROJECTION);
    // The tip, through the matrix that the recorded calls make.
    QMatrix4x4 matrix;
    for (const QString& call : recorder.calls()) {
        const int bracket = call.indexOf('(');
        const QStringList v = call.mid(bracket + 1).chopped(1).split(',');
        if (call.startsWith("glTranslatef"))
            matrix.translate(v[0].toFloat(), v[1].toFloat(), v[2].toFloat());
        else if (call.startsWith("glRotatef"))
            matrix.rotate(v[0].toFloat(), v[1].toFloat(), v[2].toFloat(), v[3].toFloat());
    }
    QVERIFY((matrix * QVector3D(0, 0, 0.25F) - tip).length() < 1e-5F);
}

void TestArrow::persistence()
{
    Arrow arrow;
    arrow.saveSettings("plot", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
    arrow.getSettings().setColor(Qt::blue);
    arrow.getSettings().setQuality(20);
    arrow.getSettings().setLineLength(2.0);
    arrow.getSettings().setStyle(2);
    arrow.setSizeStyle(ArrowLarge);
    arrow.setVisible(true);
    arrow.saveSettings("plot", organization, application);
    QStringList keys = QSettings(organization, application).allKeys();
    keys.sort();
    QCOMPARE(keys, (QStringList{"plot/arrow/color", "plot/arrow/lineLength", "plot/arrow/quality",
                                "plot/arrow/sizeStyle", "plot/arrow/style", "plot/arrow/visible"}));
    QCOMPARE(QSettings(organization, application).value("plot/arrow/sizeStyle").toInt(), 2);
    Arrow read;
    read.setParameters(1.0, 1.0);
    read.loadSettings("plot", organization, application);
    QCOMPARE(read.getSettings().getColor(), QColor(Qt::blue));
    QCOMPARE(read.getSettings().getQuality(), 20U);
    QCOMPARE(read.getSettings().getLineLength(), 2.0);
    QCOMPARE(read.getSettings().getStyle(), 2);
    QCOMPARE(read.getLength(), 1.4);
    QVERIFY(read.isVisible());
    harness::clearStore();
    arrow.resetNeedSave();
    arrow.saveSettings("plot", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
}

int main(int argc, char* argv[])
{
    return harness::run<TestArrow>(argc, argv);
}

#include "tst_arrow.moc"
