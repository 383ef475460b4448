#include "core/linearscale.h"
#include "harness/glrecorder.h"
#include "scene/canvas.h"
#include "scene/legend.h"
#include "scene/title.h"

#include <QSettings>
#include <QtTest>

using namespace Zel3D;

namespace {

const QString organization = "voran-test";
const QString application = "voran-test";

class CountingScale : public LinearScale
{
public:
    explicit CountingScale(int& calculations) : count(calculations) {}
    void calculate() override
    {
        ++count;
        LinearScale::calculate();
    }

private:
    int& count;
};

void prepare(Legend& legend, int position = Legend::Right, int fontSize = 8)
{
    QLinearGradient gradient;
    gradient.setColorAt(0.0, QColor(0, 0, 255));
    gradient.setColorAt(0.25, QColor(0, 255, 0));
    gradient.setColorAt(1.0, QColor(255, 0, 0));
    legend.setGradient(gradient);
    legend.setPosition(Legend::Position(position));
    legend.getAxis().getSettings().getNumbers().setFont(QFont("DejaVu Sans", fontSize));
    legend.setLimits(0.0, 10.0);
    legend.setMajorInterval(5);
    legend.setMinorInterval(2);
}

/// The place in the window of 400 by 300 pixels of a vertex that was sent under the legend's matrices.
QPointF windowPoint(const GLRecorder::Vertex& vertex)
{
    return QPointF((vertex.position[0] + 1.0) * 200.0, (vertex.position[2] + 1.0) * 150.0);
}

QRectF bounds(const GLRecorder::Primitive& primitive)
{
    QPolygonF polygon;
    for (const GLRecorder::Vertex& vertex : primitive.vertices)
        polygon.append(windowPoint(vertex));
    return polygon.boundingRect();
}

bool near(double a, double b, double tolerance = 0.1)
{
    return std::abs(a - b) <= tolerance;
}

} // namespace

namespace {

/// The scale is invisible until switched on.
void showNumbers(Legend& legend)
{
    legend.getAxis().getSettings().getTics().setVisible(true);
    legend.getAxis().getSettings().getNumbers().setVisible(true);
    legend.getAxis().getSettings().resetNeedSave();
}

} // namespace

class TestLegend : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void barAndBands_data();
    void barAndBands();
    void pointer_data();
    void pointer();
    void numbersStandBesideTheirColours_data();
    void numbersStandBesideTheirColours();
    void nothingIsDrawn_data();
    void nothingIsDrawn();
    void positionSetsOrientationAndAlignment_data();
    void positionSetsOrientationAndAlignment();
    void settersMarkDirtyOnlyOnChange();
    void followsTheWindowAndIsCheapWhenWarm();
    void flatShadingDoesNotFlattenTheBar();
    void leavesTheTitleItsRoom();
    void oddLimits_data();
    void oddLimits();
    void persistence();

private:
    void draw(Legend& legend);
    Canvas canvas;
};

void TestLegend::init()
{
    harness::clearStore();
    QVERIFY(harness::show(canvas, 400, 300));
    canvas.makeCurrent();
}

void TestLegend::cleanup()
{
    canvas.paint = [] {};
}

/// Draws as the pass before the camera does.
void TestLegend::draw(Legend& legend)
{
    canvas.paint = [&legend] {
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
        glRotatef(-90.0F, 1.0F, 0.0F, 0.0F);
        legend.draw();
        glMatrixMode(GL_MODELVIEW);
        glPopMatrix();
    };
    canvas.updateGL();
}

void TestLegend::barAndBands_data()
{
    QTest::addColumn<int>("position");
    for (int position = 0; position < 4; ++position)
        QTest::newRow(qPrintable(QString::number(position))) << position;
}

void TestLegend::barAndBands()
{
    QFETCH(int, position);
    const bool lying = position < 2;
    Legend legend;
    showNumbers(legend);
    prepare(legend, position);
    GLRecorder recorder;
    draw(legend);
    const QRectF bar = legend.getLayout().bar;
    // The frame, black, through the corners of the bar.
    const GLRecorder::Primitive frame = recorder.primitives(GL_LINE_LOOP).first();
    QCOMPARE(frame.vertices.size(), 4);
    QCOMPARE(frame.vertices.first().color, (std::array<double, 4>{0, 0, 0, 1}));
    QVERIFY(near(bounds(frame).left(), bar.left()) && near(bounds(frame).right(), bar.right()));
    QVERIFY(near(bounds(frame).top(), bar.top()) && near(bounds(frame).bottom(), bar.bottom()));
    // A band between neighbouring stops, from the left or the bottom.
    const QVector<GLRecorder::Primitive> bands = recorder.primitives(GL_POLYGON);
    QCOMPARE(bands.size(), 2);
    const QVector<double> stops{0.0, 0.25, 1.0};
    for (int i = 0; i < 2; ++i) {
        const QRectF band = bounds(bands.at(i));
        QCOMPARE(bands.at(i).vertices.size(), 4);
        const double from =
            lying ? (band.left() - bar.left()) / bar.width() : (band.top() - bar.top()) / bar.height();
        const double to =
            lying ? (band.right() - bar.left()) / bar.width() : (band.bottom() - bar.top()) / bar.height();
        QVERIFY(near(from, stops.at(i), 0.001) && near(to, stops.at(i + 1), 0.001));
        QVERIFY(near(lying ? band.height() : band.width(), lying ? bar.height() : bar.width()));
    }
    const auto coloured = [&](int band, int edge) { return bands.at(band).vertices.at(edge).color; };
    QCOMPARE(coloured(0, 0), (std::array<double, 4>{0, 0, 1, 1}));
    QCOMPARE(coloured(0, 1), coloured(0, 0));
    QCOMPARE(coloured(0, 2), (std::array<double, 4>{0, 1, 0, 1}));
    QCOMPARE(coloured(0, 3), coloured(0, 2));
    QCOMPARE(coloured(1, 0), coloured(0, 2));
    QCOMPARE(coloured(1, 3), (std::array<double, 4>{1, 0, 0, 1}));
    QVERIFY(recorder.calls().contains(QString("glPolygonMode(%1,%2)").arg(GL_FRONT_AND_BACK).arg(GL_FILL)));
    const int offset = recorder.indexOf(QString("glEnable(%1)").arg(GL_POLYGON_OFFSET_FILL));
    QVERIFY(offset >= 0 && offset < recorder.indexOf(QString("glBegin(%1)").arg(GL_LINE_LOOP)));
    // On the screen: the end of the bar is red.
    const QImage picture = harness::grab(canvas);
    const QPointF end =
        lying ? QPointF(bar.right() - 3, bar.center().y()) : QPointF(bar.center().x(), bar.bottom() - 3);
    const QRgb pixel = picture.pixel(int(end.x()), 299 - int(end.y()));
    QVERIFY(qRed(pixel) > 230 && qGreen(pixel) < 30);
}

void TestLegend::pointer_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("t");
    QTest::addColumn<QColor>("color");
    for (int position = 0; position < 4; ++position) {
        const QByteArray name = QByteArray::number(position);
        QTest::newRow(name + " inside") << position << 2.5 << 0.25 << QColor(0, 255, 0);
        QTest::newRow(name + " between stops") << position << 6.25 << 0.625 << QColor(128, 128, 0);
        QTest::newRow(name + " below") << position << -7.0 << 0.0 << QColor(0, 0, 255);
        QTest::newRow(name + " above") << position << 1e300 << 1.0 << QColor(255, 0, 0);
    }
}

void TestLegend::pointer()
{
    QFETCH(int, position);
    QFETCH(double, value);
    QFETCH(double, t);
    QFETCH(QColor, color);
    const bool lying = position < 2;
    Legend legend;
    showNumbers(legend);
    prepare(legend, position);
    legend.getAxis().getSettings().getTics().setVisible(false);
    glLineWidth(1.5F);
    GLRecorder recorder;
    draw(legend);
    QCOMPARE(recorder.primitives(GL_TRIANGLES).size(), 0);
    QCOMPARE(recorder.primitives(GL_LINE_LOOP).size(), 1);
    recorder.clear();
    legend.showValue(value);
    draw(legend);
    QCOMPARE(recorder.primitives(GL_TRIANGLES).size(), 1);
    QCOMPARE(recorder.primitives(GL_LINE_LOOP).size(), 2);
    const QRectF bar = legend.getLayout().bar;
    const QRectF triangle = bounds(recorder.primitives(GL_TRIANGLES).first());
    QVERIFY(near(bounds(recorder.primitives(GL_LINE_LOOP).last()).center().x(), triangle.center().x()));
    QVERIFY(!triangle.intersects(bar));
    QVERIFY(QRectF(0, 0, 400, 300).contains(triangle));
    // On the side of the window's edge, where no numbers are.
    switch (position) {
    case Legend::Top:
        QVERIFY(triangle.top() > bar.bottom());
        break;
    case Legend::Bottom:
        QVERIFY(triangle.bottom() < bar.top());
        break;
    case Legend::Left:
        QVERIFY(triangle.right() < bar.left());
        break;
    default:
        QVERIFY(triangle.left() > bar.right());
    }
    const double place = lying ? bar.left() + t * bar.width() : bar.top() + t * bar.height();
    QVERIFY(near(lying ? triangle.center().x() : triangle.center().y(), place));
    const std::array<double, 4> found = recorder.primitives(GL_TRIANGLES).first().vertices.first().color;
    QVERIFY(near(found[0], color.redF(), 0.005) && near(found[1], color.greenF(), 0.005) &&
            near(found[2], color.blueF(), 0.005));
    // The mark across the bar, 0.001 nearer to the eye than the fill.
    const GLRecorder::Primitive mark = recorder.primitives(GL_LINES).last();
    const QRectF across = bounds(mark);
    QVERIFY(near(lying ? across.center().x() : across.center().y(), place));
    QVERIFY(near(lying ? across.height() : across.width(), lying ? bar.height() : bar.width()));
    const double fill = recorder.primitives(GL_POLYGON).first().vertices.first().position[1];
    QVERIFY(near(mark.vertices.first().position[1] - fill, 0.001, 1e-5));
    QVERIFY(recorder.calls().contains("glLineWidth(2)"));
    legend.hideValue();
    recorder.clear();
    draw(legend);
    QCOMPARE(recorder.primitives(GL_TRIANGLES).size(), 0);
}

void TestLegend::numbersStandBesideTheirColours_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QSize>("window");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("fontSize");
    for (int position = 0; position < 4; ++position) {
        const QByteArray name = QByteArray::number(position);
        QTest::newRow(name + " usual") << position << QSize(400, 300) << 10.0 << 8;
        QTest::newRow(name + " small") << position << QSize(160, 120) << 10.0 << 8;
        QTest::newRow(name + " long numbers") << position << QSize(300, 200) << -123456.7 << 8;
        QTest::newRow(name + " large font") << position << QSize(300, 200) << 100.0 << 24;
    }
}

void TestLegend::numbersStandBesideTheirColours()
{
    QFETCH(int, position);
    QFETCH(QSize, window);
    QFETCH(double, maximum);
    QFETCH(int, fontSize);
    QVERIFY(harness::show(canvas, window.width(), window.height()));
    Legend legend;
    showNumbers(legend);
    prepare(legend, position, fontSize);
    legend.setLimits(0.0, maximum);
    legend.showValue(maximum);
    draw(legend);
    draw(legend);
    const QRectF bar = legend.getLayout().bar;
    int shown = 0;
    QVector<QRectF> rectangles;
    for (const Axis::Major& major : legend.getAxis().getMajors()) {
        if (!major.label.isVisible())
            continue;
        const QRectF text = major.label.getRectangle();
        QVERIFY(QRectF(QPointF(), window).contains(text));
        QVERIFY(!text.intersects(bar));
        QVERIFY(legend.getRectangle().contains(text));
        for (const QRectF& other : qAsConst(rectangles))
            QVERIFY(!text.intersects(other));
        rectangles.append(text);
        // Beside the place of the value that it states.
        const double t = major.label.getSettings().getText().toDouble() / maximum;
        const double place = position < 2 ? (text.center().x() - bar.left()) / bar.width()
                                          : (text.center().y() - bar.top()) / bar.height();
        QVERIFY2(near(t, place, 0.02), qPrintable(QString("%1 %2").arg(t).arg(place)));
        ++shown;
    }
    QVERIFY(shown >= 2);
    QVERIFY(legend.getRectangle().contains(bar));
    QVERIFY(QRectF(QPointF(), window).contains(legend.getRectangle()));
}

void TestLegend::nothingIsDrawn_data()
{
    QTest::addColumn<int>("cause");
    QTest::newRow("invisible") << 0;
    QTest::newRow("no stops") << 1;
    QTest::newRow("no rectangle for the position") << 2;
    QTest::newRow("unknown position") << 3;
}

void TestLegend::nothingIsDrawn()
{
    QFETCH(int, cause);
    Legend legend;
    showNumbers(legend);
    prepare(legend);
    legend.showValue(1.0);
    if (cause == 0)
        legend.setVisible(false);
    if (cause == 1)
        legend.setGradient(QLinearGradient());
    if (cause == 2)
        legend.setRelativePositions({{Legend::Left, QRectF(0, 0, 1, 1)}});
    if (cause == 3)
        legend.setPosition(Legend::Position(9));
    GLRecorder recorder;
    draw(legend);
    QVERIFY(recorder.primitives().isEmpty());
    QCOMPARE(recorder.count("glDrawPixels"), 0);
    QVERIFY(inkRect(harness::grab(canvas)).isNull());
    QVERIFY(legend.getRectangle().isNull());
    QCOMPARE(legend.getRelative(), cause < 2 ? QRectF(0.94, 0.95, 0.05, -0.9) : QRectF());
}

void TestLegend::positionSetsOrientationAndAlignment_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QRectF>("relative");
    QTest::newRow("top") << 0 << 1 << 0 << QRectF(0.05, 0.94, 0.9, -0.05);
    QTest::newRow("bottom") << 1 << 1 << 1 << QRectF(0.05, 0.06, 0.9, -0.05);
    QTest::newRow("left") << 2 << 0 << 2 << QRectF(0.01, 0.95, 0.05, -0.9);
    QTest::newRow("right, the default") << 3 << 0 << 3 << QRectF(0.94, 0.95, 0.05, -0.9);
    QTest::newRow("unknown changes neither") << 4 << 0 << 3 << QRectF();
}

void TestLegend::positionSetsOrientationAndAlignment()
{
    QFETCH(int, position);
    QFETCH(int, orientation);
    QFETCH(int, alignment);
    QFETCH(QRectF, relative);
    Legend legend;
    showNumbers(legend);
    prepare(legend);
    draw(legend);
    QVERIFY(!legend.isDirty());
    QCOMPARE(legend.setPosition(Legend::Position(position)), position != 3);
    QCOMPARE(legend.isDirty(), position != 3);
    QCOMPARE(legend.getSettings().getOrientation(), orientation);
    QCOMPARE(legend.getSettings().getAxis().getAlignment(), alignment);
    QCOMPARE(legend.getRelative(), relative);
    // Moving the legend is not saved by itself.
    QVERIFY(!legend.getSettings().isSaveNeeded());
    QVERIFY(legend.setManualRectangle(QRectF(0.2, 0.2, 0.1, 0.5)));
    QCOMPARE(legend.getRelative(), relative);
    QVERIFY(legend.setAutoPositioning(false));
    QCOMPARE(legend.getRelative(), QRectF(0.2, 0.2, 0.1, 0.5));
}

void TestLegend::settersMarkDirtyOnlyOnChange()
{
    Legend legend;
    showNumbers(legend);
    prepare(legend);
    const QVector<std::function<bool()>> changes{
        [&] { return legend.setPosition(Legend::Top); },
        [&] {
            return legend.setRelativePositions({{Legend::Top, QRectF(0.1, 0.9, 0.8, -0.1)}});
        },
        [&] { return legend.setAutoPositioning(false); },
        [&] { return legend.setManualRectangle(QRectF(0.1, 0.1, 0.8, 0.1)); },
    };
    for (const std::function<bool()>& change : changes) {
        draw(legend);
        QVERIFY(!legend.isDirty());
        QVERIFY(change());
        QVERIFY(legend.isDirty());
        draw(legend);
        QVERIFY(!change());
        QVERIFY(!legend.isDirty());
    }
}

void TestLegend::followsTheWindowAndIsCheapWhenWarm()
{
    Legend legend;
    showNumbers(legend);
    prepare(legend);
    int calculations = 0;
    legend.setScale(new CountingScale(calculations));
    draw(legend);
    QVector<qint64> images;
    for (const Axis::Major& major : legend.getAxis().getMajors())
        images.append(major.label.getImage().cacheKey());
    QCOMPARE(images.size(), 6);
    const int once = calculations;
    for (int frame = 0; frame < 5; ++frame)
        draw(legend);
    QCOMPARE(calculations, once);
    const QRectF before = legend.getLayout().bar;
    QVERIFY(harness::show(canvas, 500, 260));
    draw(legend);
    QVERIFY(legend.getLayout().bar.height() < before.height());
    QVERIFY(legend.getLayout().bar.left() > before.left());
    for (int i = 0; i < images.size(); ++i)
        QCOMPARE(legend.getAxis().getMajors().at(i).label.getImage().cacheKey(), images.at(i));
    // Long numbers push the ends of a lying bar inwards without any setter of the legend.
    legend.setPosition(Legend::Bottom);
    draw(legend);
    const double width = legend.getLayout().bar.width();
    legend.getAxis().getSettings().getNumbers().setFont(QFont("DejaVu Sans", 40));
    draw(legend);
    QVERIFY(legend.getLayout().bar.width() < width - 5.0);
    legend.getAxis().getSettings().getNumbers().setVisible(false);
    draw(legend);
    QVERIFY(legend.getLayout().bar.width() >= width);
    // The computed ticks are nobody's settings.
    legend.resetNeedSave();
    legend.setPosition(Legend::Left);
    draw(legend);
    QVERIFY(!legend.getAxis().getSettings().getTics().isSaveNeeded());
}

void TestLegend::flatShadingDoesNotFlattenTheBar()
{
    Legend legend;
    showNumbers(legend);
    prepare(legend);
    glShadeModel(GL_FLAT);
    draw(legend);
    const QImage picture = harness::grab(canvas);
    int model = 0;
    glGetIntegerv(GL_SHADE_MODEL, &model);
    glShadeModel(GL_SMOOTH);
    QCOMPARE(model, GL_FLAT);
    const QRectF bar = legend.getLayout().bar;
    const QRgb middle = picture.pixel(int(bar.center().x()), 299 - int(bar.top() + 0.625 * bar.height()));
    QVERIFY(near(qRed(middle), 128, 6) && near(qGreen(middle), 128, 6));
}

void TestLegend::leavesTheTitleItsRoom()
{
    for (const QSize& window : {QSize(400, 300), QSize(1000, 700), QSize(300, 150)}) {
        QVERIFY(harness::show(canvas, window.width(), window.height()));
        Title title;
        title.getSettings().setFont(QFont("DejaVu Sans", 14));
        QCOMPARE(title.getReservedTop(window), 0.0);
        title.getSettings().setText("Title");
        Legend legend;
        prepare(legend, Legend::Top);
        // Its own height and its distance from the edge, no more.
        QVERIFY(title.getReservedTop(window) < 0.06 * window.height() + 30.0);
        legend.setReservedTop(title.getReservedTop(window));
        draw(legend);
        canvas.paint = [&] { title.draw(); };
        canvas.updateGL();
        canvas.paint = [] {};
        QVERIFY(!title.getRectangle().isNull());
        QVERIFY(!legend.getRectangle().intersects(title.getRectangle()));
        title.setRelativePosition(QPointF(0.5, 0.1));
        QCOMPARE(title.getReservedTop(window), 0.0);
    }
}

void TestLegend::oddLimits_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::newRow("equal") << 5.0 << 5.0 << 5.0;
    QTest::newRow("not a number") << qQNaN() << 1.0 << 0.5;
    QTest::newRow("infinite") << 0.0 << qInf() << 0.5;
    QTest::newRow("value not a number") << 0.0 << 1.0 << qQNaN();
    QTest::newRow("decreasing") << 10.0 << 0.0 << 3.0;
}

void TestLegend::oddLimits()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    Legend legend;
    showNumbers(legend);
    prepare(legend);
    draw(legend);
    legend.setLimits(minimum, maximum);
    legend.showValue(value);
    GLRecorder recorder;
    draw(legend);
    // The bar stays; numbers of earlier limits do not.
    QCOMPARE(recorder.primitives(GL_POLYGON).size(), 2);
    const bool usable = minimum > maximum || maximum == 1.0;
    if (!usable || std::isnan(minimum)) {
        QVERIFY(recorder.count("glDrawPixels") <= 1);
    }
    for (const GLRecorder::Primitive& primitive : recorder.primitives()) {
        for (const GLRecorder::Vertex& vertex : primitive.vertices)
            QVERIFY(std::abs(vertex.position[0]) <= 1.0 && std::abs(vertex.position[2]) <= 1.0);
    }
}

void TestLegend::persistence()
{
    Legend legend;
    showNumbers(legend);
    legend.saveSettings("plot", organization, application);
    // A new legend writes its visibility, and the label and arrow of its axis.
    QStringList keys = QSettings(organization, application).allKeys();
    QVERIFY(keys.contains("plot/legend/visible"));
    QVERIFY(keys.contains("plot/legend/axis/label/text"));
    QVERIFY(keys.filter("position").filter(QRegularExpression("^plot/legend/position")).isEmpty());
    harness::clearStore();
    legend.resetNeedSave();
    legend.setPosition(Legend::Top);
    legend.saveSettings("plot", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
    legend.markSettingsForSaving();
    legend.saveSettings("plot", organization, application);
    keys = QSettings(organization, application).allKeys();
    keys.sort();
    QCOMPARE(keys,
             (QStringList{"plot/legend/axis/alignment", "plot/legend/orientation", "plot/legend/position"}));
    QCOMPARE(QSettings(organization, application).value("plot/legend/orientation").toInt(), 1);
    QSettings(organization, application).setValue("plot/legend/visible", false);
    Legend read;
    prepare(read);
    draw(read);
    read.loadSettings("plot", organization, application);
    QVERIFY(read.isDirty());
    QVERIFY(!read.isVisible());
    QCOMPARE(read.getSettings().getPosition(), Legend::Top);
    QCOMPARE(read.getSettings().getOrientation(), 1);
    QCOMPARE(read.getSettings().getAxis().getAlignment(), 0);
}

int main(int argc, char* argv[])
{
    return harness::run<TestLegend>(argc, argv);
}

#include "tst_legend.moc"
