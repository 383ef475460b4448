#include "harness/glrecorder.h"
#include "scene/axis.h"
#include "scene/canvas.h"

#include <QtTest>

using namespace Zel3D;

namespace {

QVector<QVector3D> points(const QVector<GLRecorder::Primitive>& primitives)
{
    QVector<QVector3D> result;
    for (const GLRecorder::Primitive& primitive : primitives) {
        for (const GLRecorder::Vertex& vertex : primitive.vertices)
            result.append(
                QVector3D(float(vertex.position[0]), float(vertex.position[1]), float(vertex.position[2])));
    }
    return result;
}

} // namespace

class TestAxisHighlight : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void highlightBox_data();
    void highlightBox();
    void coincidingCornersDrawNoBox();

private:
    Canvas canvas;
};

void TestAxisHighlight::initTestCase()
{
    QVERIFY(harness::show(canvas, 50, 50));
    canvas.makeCurrent();
}

void TestAxisHighlight::highlightBox_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QVector<QVector3D>>("corners"); // of the box (0,0,0) to (1,2,3)
    using V = QVector<QVector3D>;
    const V x{{0, 2, 3}, {0, 2, 0}, {0, 0, 0}, {0, 0, 3}, {1, 2, 3}, {1, 2, 0}, {1, 0, 0}, {1, 0, 3}};
    const V y{{1, 0, 3}, {1, 0, 0}, {0, 0, 0}, {0, 0, 3}, {1, 2, 3}, {1, 2, 0}, {0, 2, 0}, {0, 2, 3}};
    const V z{{1, 2, 0}, {0, 2, 0}, {0, 0, 0}, {1, 0, 0}, {1, 2, 3}, {0, 2, 3}, {0, 0, 3}, {1, 0, 3}};
    for (int type : {0, 3, 4, 5})
        QTest::newRow(qPrintable(QString("x %1").arg(type))) << type << x;
    for (int type : {1, 6, 7, 8})
        QTest::newRow(qPrintable(QString("y %1").arg(type))) << type << y;
    for (int type : {2, 9, 10, 11})
        QTest::newRow(qPrintable(QString("z %1").arg(type))) << type << z;
}

void TestAxisHighlight::highlightBox()
{
    QFETCH(int, type);
    QFETCH(QVector<QVector3D>, corners);
    Axis axis;
    axis.setHighlightBox({QVector3D(0, 0, 0), QVector3D(1, 2, 3)}, AxisType(type));
    GLRecorder recorder;
    axis.drawHighlight();
    QVERIFY(recorder.calls().isEmpty());
    axis.setHighlighted(true);
    axis.drawHighlight();
    QCOMPARE(recorder.calls().first(), QString("glColor4d(1,0,0,1)"));
    QVERIFY(recorder.calls().contains("glLineWidth(1)"));
    QVector<QVector3D> lines;
    for (int i = 0; i < 4; ++i)
        lines << corners.at(i) << corners.at(i + 4);
    QCOMPARE(points(recorder.primitives(GL_LINES)), lines);
    QVector<QVector3D> quads;
    for (int face : {0, 4}) {
        for (int i : {0, 1, 1, 2, 2, 3, 3, 0})
            quads << corners.at(face + i);
    }
    QCOMPARE(points(recorder.primitives(GL_QUADS)), quads);
    QCOMPARE(recorder.primitives(GL_QUADS).size(), 2);
}

void TestAxisHighlight::coincidingCornersDrawNoBox()
{
    Axis axis;
    axis.setHighlighted(true);
    GLRecorder recorder;
    axis.drawHighlight();
    axis.setHighlightBox({QVector3D(0, 0, 0), QVector3D(1, 2, 0)}, XFrontBottom);
    axis.drawHighlight();
    QVERIFY(recorder.primitives().isEmpty());
    // Another type stores the two corners and nothing else.
    axis.setHighlightBox({QVector3D(5, 5, 5), QVector3D(6, 6, 6)}, AxisType(12));
    QCOMPARE(axis.getHighlightBox()[2], QVector3D(5, 5, 5));
    QCOMPARE(axis.getHighlightBox()[4], QVector3D(6, 6, 6));
    QCOMPARE(axis.getHighlightBox()[0], QVector3D(0, 2, 0));
}

int main(int argc, char* argv[])
{
    return harness::run<TestAxisHighlight>(argc, argv);
}

#include "tst_axishighlight.moc"
