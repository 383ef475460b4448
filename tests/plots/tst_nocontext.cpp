// Plots where there is no OpenGL at all.

#include "export/picturewriter.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "plots/spectrum.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>
#include <QtTest>

using namespace Zel3D;
using namespace fixture;

namespace {
const QString problem =
    "This plot needs OpenGL with the fixed-function pipeline; the driver offers no OpenGL.";
}

class TestNoContext : public QObject
{
    Q_OBJECT
private slots:
    void theSentenceStandsInThePlotsPlace();
    void everythingElseWorks();
};

void TestNoContext::theSentenceStandsInThePlotsPlace()
{
    const harness::Messages messages;
    Plot plot;
    QCOMPARE(plot.getContextProblem(), problem);
    QVERIFY(plot.getContextDescription().isEmpty());
    QVERIFY(harness::show(plot, 300, 200));
    plot.updateGL();
    auto* note = plot.findChild<QLabel*>();
    QVERIFY(note && note->isVisible());
    QCOMPARE(note->text(), problem);
    QCOMPARE(messages.warnings(problem), 1);
    plot.resize(260, 180);
    QTRY_COMPARE(note->geometry(), plot.rect());
    // On the screen: text on the window's colour, in the middle.
    QTest::qWait(100);
    const QPoint corner = plot.mapToGlobal(QPoint(0, 0));
    const QImage image =
        QGuiApplication::primaryScreen()->grabWindow(0, corner.x(), corner.y(), 260, 180).toImage();
    const QRgb paper = image.pixel(3, 3);
    QVERIFY(qGray(paper) > 200);
    int ink = 0;
    for (int y = 50; y < 130; ++y) {
        for (int x = 20; x < 240; ++x)
            ink += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
    }
    QVERIFY2(ink > 200, qPrintable(QString::number(ink)));
}

void TestNoContext::everythingElseWorks()
{
    const harness::Messages messages;
    Plot plot;
    plot.setPlotStyle(5);
    plot.setNormalsVisible(true);
    QVERIFY(Heights(4, 4, plane).into(plot));
    QVERIFY(harness::show(plot, 200, 200));
    plot.setSelecting(true);
    plot.setMeshColor(Qt::red);
    plot.slotSetResolution(2);
    plot.slotTopView();
    plot.updateSelection();
    plot.findObjects(QPointF(100, 100), Qt::NoModifier);
    QTest::mouseClick(&plot, Qt::LeftButton);
    QTest::keyClick(&plot, Qt::Key_N);
    QCOMPARE(plot.getHull().maximum, QVector3D(3, 3, 33));
    QTemporaryDir folder;
    for (const char* name : {"picture.png", "picture.pdf"}) {
        const PictureResult result = PictureWriter::save(plot, folder.filePath(name));
        QVERIFY(!result.done);
        QVERIFY2(result.message.contains(problem.chopped(1)), qPrintable(result.message));
    }
    Spectrum spectrum("plot", organization, application);
    QVERIFY(spectrum.loadFromData({{1.0, {{0.0, 1.0}, {1.0, 3.0}}}}, YAxis));
    QVERIFY(harness::show(spectrum, 200, 200));
    plot.hide();
    plot.show();
    plot.clearData();
}

int main(int argc, char* argv[])
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QApplication app(argc, argv);
    TestNoContext test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_nocontext.moc"
