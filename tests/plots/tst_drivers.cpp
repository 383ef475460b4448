// Plots where the host, the driver or the context is not as a plot wants it.

#include "export/picturewriter.h"
#include "harness/harness.h"
#include "plotfixture.h"
#include "view/contextcheck.h"

#include <GL/gl.h>

#include <QGLContext>
#include <QLabel>
#include <QOpenGLContext>
#include <QScreen>
#include <QSignalSpy>
#include <QSurfaceFormat>
#include <QTemporaryDir>
#include <QWindow>
#include <QtTest>

#include <dlfcn.h>

using namespace Zel3D;
using namespace fixture;

namespace {

/// While set, OpenGL says that the context was lost.
bool& losing()
{
    static bool lost = false;
    return lost;
}

const QString sentence = "This plot needs OpenGL with the fixed-function pipeline; ";

QSurfaceFormat formatOf(int major, int minor, QSurfaceFormat::OpenGLContextProfile profile)
{
    QSurfaceFormat format;
    format.setVersion(major, minor);
    format.setProfile(profile);
    return format;
}

QGLFormat coreFormat()
{
    QGLFormat format;
    format.setVersion(3, 3);
    format.setProfile(QGLFormat::CoreProfile);
    return format;
}

bool prepare(Plot& plot)
{
    plot.setPlotStyle(5);
    plot.setNormalsVisible(true);
    plot.setRotation({30.0, 0.0, 30.0});
    return Heights(5, 5, plane).into(plot);
}

/// The sentence in the plot's place; empty where the scene is.
QString shownNote(const QWidget& plot)
{
    const auto* note = plot.findChild<QLabel*>();
    return note && note->isVisible() && note->geometry() == plot.rect() ? note->text() : QString();
}

/// The widget as it is on the screen.
QImage onScreen(QWidget& widget)
{
    QTest::qWait(50);
    const QPoint corner = widget.mapToGlobal(QPoint(0, 0));
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, corner.x(), corner.y(), widget.width(), widget.height())
        .toImage();
}

/// What every operation that a host may call does to a plot that cannot draw.
void useEverything(Plot& plot)
{
    plot.slotSetPlotStyle(4);
    plot.setPlotStyle(6);
    plot.setSelecting(true);
    plot.slotSetSelecting(true);
    plot.setMeshColor(Qt::red);
    plot.setLighting(true);
    plot.setGradient("other", plain(Qt::red));
    plot.slotSetRotation({1.0, 2.0, 3.0});
    plot.slotSetLightsRadius(3.0);
    plot.slotTopView();
    plot.slotDefault();
    plot.fitView();
    plot.updateData();
    plot.updateNormals();
    plot.updateSelection();
    plot.findObjects(QPointF(10, 10), Qt::NoModifier);
    plot.updateGL();
    plot.clearData();
    QVERIFY(prepare(plot));
    plot.resize(150, 130);
    plot.updateGL();
}

} // namespace

extern "C" GLenum glGetError()
{
    static auto* const call = reinterpret_cast<GLenum (*)()>(dlsym(RTLD_NEXT, "glGetError"));
    return losing() ? 0x0507 : call();
}

class TestDrivers : public QObject
{
    Q_OBJECT
private slots:
    void init() { harness::clearStore(); }
    void sentences_data();
    void sentences();
    void theHostsDefaultDoesNotMatter();
    void anyNumberOfSamples_data();
    void anyNumberOfSamples();
    void coreProfileIsToldAndSurvived();
    void aLostContextIsReplaced();
    void listsOfANewContextAreNotTheOldOnes();
};

void TestDrivers::sentences_data()
{
    QTest::addColumn<bool>("created");
    QTest::addColumn<bool>("embedded");
    QTest::addColumn<QSurfaceFormat>("format");
    QTest::addColumn<QString>("rest");
    const auto row = [](const char* name, bool created, bool embedded, const QSurfaceFormat& format,
                        const char* rest) {
        QTest::newRow(name) << created << embedded << format << QString(rest);
    };
    row("nothing", false, false, formatOf(2, 0, QSurfaceFormat::NoProfile), "the driver offers no OpenGL.");
    row("embedded", true, true, formatOf(3, 2, QSurfaceFormat::NoProfile),
        "the driver offers OpenGL ES 3.2.");
    row("core", true, false, formatOf(4, 1, QSurfaceFormat::CoreProfile),
        "the driver offers the core profile of OpenGL 4.1.");
    row("compatibility", true, false, formatOf(4, 6, QSurfaceFormat::CompatibilityProfile), "");
    row("old", true, false, formatOf(1, 4, QSurfaceFormat::NoProfile), "");
}

void TestDrivers::sentences()
{
    QFETCH(bool, created);
    QFETCH(bool, embedded);
    QFETCH(QSurfaceFormat, format);
    QFETCH(QString, rest);
    QCOMPARE(ContextCheck::problemOf(created, embedded, format), rest.isEmpty() ? rest : sentence + rest);
}

// The main function asks for the core profile, without depth, for whatever names no format of its own.
void TestDrivers::theHostsDefaultDoesNotMatter()
{
    QCOMPARE(QSurfaceFormat::defaultFormat().profile(), QSurfaceFormat::CoreProfile);
    Plot plot;
    QVERIFY(prepare(plot));
    QVERIFY(harness::show(plot, 120, 120));
    QCOMPARE(plot.getContextProblem(), QString());
    QVERIFY(plot.isValid() && plot.isInitialized());
    QVERIFY2(plot.getContextDescription().contains("compatibility profile"),
             qPrintable(plot.getContextDescription()));
    QVERIFY(plot.context()->contextHandle()->format().depthBufferSize() > 0);
    QVERIFY(pixels(harness::grab(plot), Qt::white) < 120 * 120 - 1000);
    QVERIFY(shownNote(plot).isEmpty());
}

void TestDrivers::anyNumberOfSamples_data()
{
    QTest::addColumn<int>("samples");
    for (int samples : {0, 4, 16})
        QTest::addRow("%d", samples) << samples;
}

void TestDrivers::anyNumberOfSamples()
{
    QFETCH(int, samples);
    Plot plot;
    QGLFormat format = plot.format();
    format.setSampleBuffers(samples > 0);
    format.setSamples(samples);
    plot.setFormat(format);
    QVERIFY(prepare(plot));
    QVERIFY(harness::show(plot, 120, 120));
    QCOMPARE(plot.getContextProblem(), QString());
    QCOMPARE(plot.getContextDescription().contains("no multisampling"), samples == 0);
    QVERIFY(pixels(harness::grab(plot), Qt::white) < 120 * 120 - 1000);
    QTemporaryDir folder;
    QVERIFY(PictureWriter::save(plot, folder.filePath("picture.png")).done);
}

void TestDrivers::coreProfileIsToldAndSurvived()
{
    Plot plot;
    QVERIFY(prepare(plot));
    QVERIFY(harness::show(plot, 160, 140));
    const QImage before = harness::grab(plot);
    const ValueXYZ<double> scale = plot.getScale();
    QSignalSpy told(&plot, &ZelGLWidget::contextProblemChanged);
    {
        const harness::Messages messages;
        plot.setFormat(coreFormat());
        QVERIFY(harness::show(plot, 160, 140));
        if (plot.context()->contextHandle()->format().profile() != QSurfaceFormat::CoreProfile)
            QFAIL("the driver gives no core profile to try");
        plot.updateGL();
        plot.updateGL();
        QVERIFY(
            plot.getContextProblem().startsWith(sentence + "the driver offers the core profile of OpenGL "));
        QCOMPARE(messages.warnings(plot.getContextProblem()), 1);
        QCOMPARE(told.size(), 1);
        QVERIFY(!plot.isValid() && !plot.isInitialized());
        QCOMPARE(shownNote(plot), plot.getContextProblem());
        useEverything(plot);
        QCOMPARE(shownNote(plot), plot.getContextProblem());
        const PictureResult result = PictureWriter::save(plot, QDir::tempPath() + "/voran-core.png");
        QVERIFY(!result.done);
        QVERIFY2(result.message.contains(plot.getContextProblem().chopped(1)), qPrintable(result.message));
        QVERIFY2(messages.warnings("OpenGL") == 1, qPrintable(messages.all().join("\n")));
    }
    plot.setFormat(ContextCheck::wantedFormat());
    QVERIFY(harness::show(plot, 160, 140));
    plot.setPlotStyle(5);
    plot.setGradient("ramp", ramp());
    plot.setLighting(false);
    plot.slotSetRotation({30.0, 0.0, 30.0});
    plot.setMeshColor(Qt::black);
    plot.setZoom(1.0);
    plot.setScale(scale);
    QCOMPARE(told.takeLast().first().toString(), QString());
    QVERIFY(shownNote(plot).isEmpty());

    QVERIFY(qAbs(pixels(harness::grab(plot), Qt::white) - pixels(before, Qt::white)) < 50);
}

void TestDrivers::aLostContextIsReplaced()
{
    Plot plot;
    QVERIFY(prepare(plot));
    QVERIFY(harness::show(plot, 120, 120));
    const QImage before = harness::grab(plot);
    const QImage window = onScreen(plot);
    const harness::Messages messages;
    losing() = true;
    plot.updateGL();
    losing() = false;
    QCOMPARE(shownNote(plot),
             QString("This plot has lost its OpenGL context: the driver was reset or taken away."));
    QVERIFY(!plot.isValid());
    QCOMPARE(messages.warnings("lost its OpenGL context"), 1);
    QTRY_VERIFY(plot.isInitialized());
    QCOMPARE(harness::grab(plot), before);
    QVERIFY(shownNote(plot).isEmpty());
    QCOMPARE(onScreen(plot), window);
}

void TestDrivers::listsOfANewContextAreNotTheOldOnes()
{
    Plot plot;
    QVERIFY(prepare(plot));
    QVERIFY(harness::show(plot, 120, 120));
    const QImage before = harness::grab(plot);
    // Lists of somebody else that have the numbers that the plot's had.
    auto* context = new QGLContext(plot.format(), &plot);
    plot.setContext(context);
    context->makeCurrent();
    constexpr unsigned int count = 50;
    for (unsigned int id = 1; id <= count; ++id) {
        glNewList(id, GL_COMPILE);
        glEndList();
    }
    // Another context hides the widget.
    QVERIFY(harness::show(plot, 120, 120));
    QCOMPARE(harness::grab(plot), before);
    plot.setMeshColor(Qt::red);
    plot.setNormalsVisible(false);
    plot.updateGL();
    plot.makeCurrent();
    for (unsigned int id = 1; id <= count; ++id)
        QVERIFY2(glIsList(id) == GL_TRUE, qPrintable(QString::number(id)));
}

int main(int argc, char* argv[])
{
    QSurfaceFormat::setDefaultFormat(formatOf(3, 3, QSurfaceFormat::CoreProfile));
    QGLFormat format = coreFormat();
    format.setDepth(false);
    format.setDoubleBuffer(false);
    QGLFormat::setDefaultFormat(format);
    return harness::run<TestDrivers>(argc, argv);
}

#include "tst_drivers.moc"
