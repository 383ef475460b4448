#include "harness/glrecorder.h"
#include "scene/canvas.h"
#include "scene/label.h"
#include "scene/title.h"

#include <QPainter>
#include <QSettings>
#include <QtTest>

using namespace Zel3D;

namespace {

const QString organization = "voran-test";
const QString application = "voran-test";

/// A label in the test font, at a point of the window of the identity matrices (-1 to 1).
void prepare(Label& label, const QString& text, const QVector3D& position = QVector3D())
{
    label.setVisible(true);
    label.getSettings().setFont(QFont("DejaVu Sans", 12));
    label.getSettings().setText(text);
    label.getSettings().setPosition(position);
}

} // namespace

class TestLabel : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void alignmentPutsThePointAtTheNamedPlace_data();
    void alignmentPutsThePointAtTheNamedPlace();
    void outwardClearsTheLine_data();
    void outwardClearsTheLine();
    void cutAtEdges_data();
    void cutAtEdges();
    void hiddenAndDroppedByDepth();
    void perspectiveBehindTheEyeShowsNothing();
    void keepsItsPlaceWhileTheCameraTurns();
    void pixelsAreThoseOfQt_data();
    void pixelsAreThoseOfQt();
    void edgesBlendOntoTheBackground();
    void imageIsRenderedOnlyWhenItShowsSomethingElse();
    void emptyTextIsABlank();
    void whatIsLargerThanAWindowTakesNoMemory();
    void quarterTurnSwapsTheSides();
    void stateIsPutBack();
    void persistence();
    void titleStandsAtItsFraction_data();
    void titleStandsAtItsFraction();
    void titleNormalisesItsPosition();
    void titlePersistence();

private:
    QRect drawn(Label& label);
    Canvas canvas;
};

void TestLabel::init()
{
    harness::clearStore();
    QVERIFY(harness::show(canvas, 300, 200));
    canvas.makeCurrent();
}

void TestLabel::cleanup()
{
    canvas.paint = [] {};
}

/// The pixels of a label drawn alone.
QRect TestLabel::drawn(Label& label)
{
    canvas.paint = [&] { label.draw(); };
    return inkRect(harness::grab(canvas));
}

void TestLabel::alignmentPutsThePointAtTheNamedPlace_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("horizontal"); // 1: the box lies to the right of the point
    QTest::addColumn<int>("vertical");   // 1: the box lies above the point
    const char* names[] = {"TopLeft",     "TopCenter",  "TopRight",     "CenterLeft", "Center",
                           "CenterRight", "BottomLeft", "BottomCenter", "BottomRight"};
    for (int i = 0; i < 9; ++i)
        QTest::newRow(names[i]) << i << 1 - i % 3 << i / 3 - 1;
}

void TestLabel::alignmentPutsThePointAtTheNamedPlace()
{
    QFETCH(int, alignment);
    QFETCH(int, horizontal);
    QFETCH(int, vertical);
    Label label;
    prepare(label, "HHHH", QVector3D(0.2F, -0.1F, 0.0F)); // (180, 90) in the window
    label.getSettings().setAlignment(Alignment(alignment));
    const QRect ink = drawn(label);
    QVERIFY(ink.width() > 30 && ink.height() > 8);
    const QRect box(label.getPlacement().corner, label.getImage().size());
    QVERIFY(box.contains(ink));
    const double w = label.width();
    const double h = label.height();
    QVERIFY(std::abs(box.x() - (180 + (horizontal - 1) * w / 2)) <= 0.5);
    QVERIFY(std::abs(box.y() - (90 + (vertical - 1) * h / 2)) <= 0.5);
    // Letters reach near both ends of the box but leave room for accents and descenders.
    QVERIFY(ink.left() - box.left() <= 2 && box.right() - ink.right() <= 2);
    QVERIFY(ink.top() - box.top() <= 5 && box.bottom() - ink.bottom() <= 5);
    // The gap moves the text off the point to the side on which it lies.
    label.getSettings().setAdjust(7);
    QCOMPARE(drawn(label), ink.translated(7 * horizontal, 7 * vertical));
    // In logical pixels.
    label.setPixelRatio(2.0);
    drawn(label);
    const QRect doubled(label.getPlacement().corner, label.getImage().size());
    QCOMPARE(doubled.size(), box.size() * 2);
    QVERIFY(std::abs(doubled.x() - (180 + horizontal * 14 + (horizontal - 1) * w)) <= 0.5);
    QVERIFY(std::abs(doubled.y() - (90 + vertical * 14 + (vertical - 1) * h)) <= 0.5);
}

void TestLabel::outwardClearsTheLine_data()
{
    QTest::addColumn<QVector2D>("direction");
    for (int degrees = 0; degrees < 360; degrees += 30) {
        const double angle = degrees * M_PI / 180.0;
        QTest::newRow(qPrintable(QString::number(degrees)))
            << QVector2D(float(3.0 * std::cos(angle)), float(3.0 * std::sin(angle)));
    }
}

void TestLabel::outwardClearsTheLine()
{
    QFETCH(QVector2D, direction);
    LabelBox box;
    box.size = QSize(40, 12);
    box.alignment = TopLeft;
    box.adjust = 50.0;
    box.outward = direction;
    box.gap = 5.0;
    const QPointF corner = labelOffset(box);
    const QVector2D unit = direction.normalized();
    double nearest = 1e9;
    for (const QPointF& point :
         {corner, corner + QPointF(40, 0), corner + QPointF(0, 12), corner + QPointF(40, 12)})
        nearest = std::min(nearest, double(unit.x()) * point.x() + double(unit.y()) * point.y());
    QVERIFY(std::abs(nearest - 5.0) < 1e-4);
    const QPointF centre = corner + QPointF(20, 6);
    QVERIFY(std::abs(double(unit.x()) * centre.y() - double(unit.y()) * centre.x()) < 1e-4);
}

void TestLabel::cutAtEdges_data()
{
    QTest::addColumn<QPoint>("point"); // of the window; the text is centred there
    QTest::addColumn<QPoint>("shift"); // from the picture in the middle
    QTest::newRow("left") << QPoint(0, 100) << QPoint(-150, 0);
    QTest::newRow("bottom") << QPoint(150, 0) << QPoint(0, -100);
    QTest::newRow("left bottom corner") << QPoint(-4, -3) << QPoint(-154, -103);
    QTest::newRow("right") << QPoint(300, 100) << QPoint(150, 0);
    QTest::newRow("top") << QPoint(150, 200) << QPoint(0, 100);
    QTest::newRow("outside") << QPoint(-60, 100) << QPoint(-210, 0);
}

void TestLabel::cutAtEdges()
{
    QFETCH(QPoint, point);
    QFETCH(QPoint, shift);
    Label label;
    prepare(label, QString(QChar(0x2588)).repeated(6)); // full blocks fill their rectangle
    const QRect whole = drawn(label);
    QVERIFY(whole.width() > 50);
    label.getSettings().setPosition(
        QVector3D(float(point.x()) / 150.0F - 1.0F, float(point.y()) / 100.0F - 1.0F, 0.0F));
    QCOMPARE(drawn(label), whole.translated(shift) & QRect(0, 0, 300, 200));
}

void TestLabel::hiddenAndDroppedByDepth()
{
    Label label;
    prepare(label, QString(QChar(0x2588)).repeated(4), QVector3D(0.0F, 0.0F, 0.5F));
    canvas.paint = [&] {
        glColor3d(1.0, 1.0, 1.0);
        glBegin(GL_QUADS);
        for (const QPointF& corner : {QPointF(0, -1), QPointF(1, -1), QPointF(1, 1), QPointF(0, 1)})
            glVertex3d(corner.x(), corner.y(), 0.0);
        glEnd();
        label.draw();
    };
    // The right half of the text lies behind the white quad.
    QCOMPARE(inkRect(harness::grab(canvas)).right(), 149);
    label.getSettings().setPosition(QVector3D(0.0F, 0.0F, -0.5F));
    QVERIFY(inkRect(harness::grab(canvas)).right() > 165);
    for (float depth : {-1.01F, 1.01F}) {
        label.getSettings().setPosition(QVector3D(0.0F, 0.0F, depth));
        QVERIFY(drawn(label).isNull());
    }
    label.getSettings().setPosition(QVector3D(float(qQNaN()), 0.0F, 0.0F));
    QVERIFY(drawn(label).isNull());
}

void TestLabel::perspectiveBehindTheEyeShowsNothing()
{
    Label label;
    prepare(label, "MMMM");
    canvas.paint = [&] {
        glMatrixMode(GL_PROJECTION);
        glFrustum(-1.0, 1.0, -1.0, 1.0, 1.0, 100.0);
        glMatrixMode(GL_MODELVIEW);
        label.draw();
    };
    label.getSettings().setPosition(QVector3D(0.0F, 0.0F, -5.0F));
    QVERIFY(!inkRect(harness::grab(canvas)).isNull());
    label.getSettings().setPosition(QVector3D(0.0F, 0.0F, 5.0F));
    QVERIFY(inkRect(harness::grab(canvas)).isNull());
}

void TestLabel::keepsItsPlaceWhileTheCameraTurns()
{
    Label label;
    prepare(label, "HHHH", QVector3D(10.0F, 0.0F, 7.0F));
    label.getSettings().setAlignment(BottomLeft);
    for (int turn = 0; turn < 360; turn += 15) {
        WindowPoint anchor;
        canvas.paint = [&] {
            glMatrixMode(GL_PROJECTION);
            Canvas::applyCamera({30.0, double(turn), turn % 2 == 1}, QVector3D(), QVector3D(10, 10, 10));
            anchor = projectToWindow(currentViewFrame(), QVector3D(10.0F, 0.0F, 7.0F));
            label.draw();
        };
        const QRect ink = inkRect(harness::grab(canvas));
        QVERIFY(anchor.valid);
        QVERIFY(std::abs(label.getPlacement().corner.x() - anchor.x) <= 0.5);
        QVERIFY(std::abs(label.getPlacement().corner.y() - anchor.y) <= 0.5);
        QVERIFY(QRect(label.getPlacement().corner, label.getImage().size()).contains(ink));
    }
}

void TestLabel::pixelsAreThoseOfQt_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("angle");
    QTest::newRow("plain") << 1.0 << 0;
    QTest::newRow("turned") << 1.0 << 30;
    QTest::newRow("doubled, not scaled") << 2.0 << 0;
    QTest::newRow("one and a half") << 1.5 << 0;
}

void TestLabel::pixelsAreThoseOfQt()
{
    QFETCH(double, ratio);
    QFETCH(int, angle);
    Label label;
    prepare(label, "Agj 12.5");
    label.getSettings().setAngle(angle);
    label.setPixelRatio(ratio);
    QVERIFY(!drawn(label).isNull());
    // The same text painted by Qt onto a white image of the window's pixels.
    QImage expected(300, 200, QImage::Format_RGB32);
    expected.setDevicePixelRatio(ratio);
    expected.fill(Qt::white);
    const QRect bound = label.getBoundRect();
    QImage text(label.getImage().size(), QImage::Format_ARGB32);
    text.setDevicePixelRatio(ratio);
    text.fill(Qt::transparent);
    {
        QPainter painter(&text);
        label.drawTextInRect(painter, -bound.topLeft());
    }
    const QPoint corner = label.getPlacement().corner;
    {
        QPainter painter(&expected);
        painter.drawImage(QPointF(corner.x() / ratio, (200 - corner.y() - text.height()) / ratio), text);
    }
    const QImage picture = harness::grab(canvas);
    int worst = 0;
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 300; ++x)
            worst = std::max(worst, std::abs(qGray(picture.pixel(x, y)) - qGray(expected.pixel(x, y))));
    }
    // Two ways to round a blended channel.
    QVERIFY2(worst <= 3, qPrintable(QString::number(worst)));
}

void TestLabel::edgesBlendOntoTheBackground()
{
    Label label;
    prepare(label, "O");
    label.getSettings().setColor(Qt::red);
    glBlendFunc(GL_ONE, GL_ZERO);
    drawn(label);
    const QImage picture = harness::grab(canvas);
    int soft = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            QVERIFY(qRed(pixel) >= 253); // red on white is never dark
            soft += qGreen(pixel) > 20 && qGreen(pixel) < 235;
        }
    }
    QVERIFY(soft > 5);
}

void TestLabel::imageIsRenderedOnlyWhenItShowsSomethingElse()
{
    Label label;
    prepare(label, "12");
    drawn(label);
    const qint64 key = label.getImage().cacheKey();
    label.getSettings().setPosition(QVector3D(0.5F, 0.5F, 0.0F));
    label.getSettings().setAlignment(TopLeft);
    label.getSettings().setAdjust(3);
    label.setOutward(QVector2D(1.0F, 0.0F), 2.0);
    QVERIFY(!label.getSettings().setText("12"));
    QVERIFY(!label.setPixelRatio(1.0));
    QVERIFY(!label.setPixelRatio(-2.0));
    drawn(label);
    QCOMPARE(label.getImage().cacheKey(), key);
    const QVector<std::function<bool()>> changes{
        [&] { return label.getSettings().setText("34"); },
        [&] { return label.getSettings().setFont(QFont("DejaVu Sans", 20)); },
        [&] { return label.getSettings().setColor(Qt::red); },
        [&] { return label.getSettings().setAngle(30); },
        [&] { return label.setPixelRatio(2.0); },
    };
    for (const std::function<bool()>& change : changes) {
        const qint64 before = label.getImage().cacheKey();
        QVERIFY(change());
        QVERIFY(!change());
        drawn(label);
        QVERIFY(label.getImage().cacheKey() != before);
        QCOMPARE(label.getImageSize(), label.getImage().size());
    }
}

void TestLabel::emptyTextIsABlank()
{
    Label label;
    prepare(label, "");
    const QSize blank = QFontMetrics(label.getSettings().getFont()).size(Qt::TextSingleLine, " ");
    QCOMPARE(label.getBoundRect(), QRect(QPoint(0, 0), blank));
    QCOMPARE(label.getSettings().getText(), QString(" "));
    QVERIFY(drawn(label).isNull());
    QCOMPARE(label.getImage().size(), blank);
}

void TestLabel::whatIsLargerThanAWindowTakesNoMemory()
{
    // As a damaged store may have it: 170 and 400 MB.
    Label label;
    prepare(label, "0.5", QVector3D());
    label.getSettings().setFont(QFont("DejaVu Sans", 4000));
    QVERIFY(drawn(label).isEmpty());
    QVERIFY(label.getImage().isNull());
    label.getSettings().setFont(QFont("DejaVu Sans", 12));
    label.getSettings().setText(QString(600000, 'w'));
    QVERIFY(drawn(label).isEmpty());
    QVERIFY(label.getImage().isNull());
    // It comes back with a text that fits, however large.
    label.getSettings().setText("0.5");
    QVERIFY(!drawn(label).isEmpty());
    label.getSettings().setFont(QFont("DejaVu Sans", 400));
    QVERIFY(!drawn(label).isEmpty());
}

void TestLabel::quarterTurnSwapsTheSides()
{
    Label label;
    prepare(label, "long text");
    const QRect level = drawn(label);
    const QSize size = label.getImage().size();
    label.getSettings().setAngle(90);
    const QRect upright = drawn(label);
    QCOMPARE(label.getImage().size(), size.transposed());
    QVERIFY(std::abs(upright.height() - level.width()) <= 2);
    QVERIFY(QRect(label.getPlacement().corner, label.getImage().size()).contains(upright));
}

void TestLabel::stateIsPutBack()
{
    Label label;
    prepare(label, "text");
    canvas.paint = [&] {
        glMatrixMode(GL_PROJECTION);
        Canvas::applyCamera({20.0, 30.0}, QVector3D(), QVector3D(1, 2, 3));
        glDisable(GL_BLEND);
        glBlendFunc(GL_ONE, GL_ZERO);
        glDisable(GL_ALPHA_TEST);
        glAlphaFunc(GL_LESS, 0.25F);
        const ViewFrame before = currentViewFrame();
        GLRecorder recorder;
        label.draw();
        QCOMPARE(recorder.count("glDrawPixels"), 1);
        QVERIFY(recorder.calls().contains(QString("glAlphaFunc(%1,0)").arg(GL_GREATER)));
        const ViewFrame after = currentViewFrame();
        QVERIFY(before.projection == after.projection);
        QVERIFY(before.modelview == after.modelview);
        QVERIFY(!glIsEnabled(GL_BLEND));
        QVERIFY(!glIsEnabled(GL_ALPHA_TEST));
        float reference = 0.0F;
        glGetFloatv(GL_ALPHA_TEST_REF, &reference);
        QCOMPARE(reference, 0.25F);
        for (const auto& item : QVector<QPair<GLenum, int>>{{GL_ALPHA_TEST_FUNC, GL_LESS},
                                                            {GL_BLEND_SRC, GL_ONE},
                                                            {GL_BLEND_DST, GL_ZERO},
                                                            {GL_MATRIX_MODE, GL_PROJECTION}}) {
            int value = 0;
            glGetIntegerv(item.first, &value);
            QCOMPARE(value, item.second);
        }
        glEnable(GL_BLEND);
        glAlphaFunc(GL_ALWAYS, 0.0F);
        QCOMPARE(glGetError(), GLenum(GL_NO_ERROR));
    };
    harness::grab(canvas);
}

void TestLabel::persistence()
{
    Label label;
    label.saveSettings("plot", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
    prepare(label, "units", QVector3D(1, 2, 3));
    label.getSettings().setColor(Qt::blue);
    label.getSettings().setAngle(45);
    label.getSettings().setAdjust(-4);
    label.getSettings().setAlignment(BottomCenter);
    label.saveSettings("plot/axis3", organization, application);
    QStringList keys = QSettings(organization, application).allKeys();
    keys.sort();
    const QString group = "plot/axis3/label/";
    QCOMPARE(keys, (QStringList{group + "adjust", group + "alignment", group + "angle", group + "color",
                                group + "font", group + "position", group + "text", group + "visible"}));
    QCOMPARE(QSettings(organization, application).value(group + "alignment").toInt(), 7);
    Label read;
    read.update();
    read.loadSettings("plot/axis3", organization, application);
    QCOMPARE(read.getSettings().getText(), QString("units"));
    QCOMPARE(read.getSettings().getFont(), QFont("DejaVu Sans", 12));
    QCOMPARE(read.getSettings().getColor(), QColor(Qt::blue));
    QCOMPARE(read.getSettings().getAngle(), 45);
    QCOMPARE(read.getSettings().getAdjust(), -4);
    QCOMPARE(read.getSettings().getAlignment(), BottomCenter);
    QCOMPARE(read.getSettings().getPosition(), QVector3D(1, 2, 3));
    QVERIFY(read.isVisible());
    QVERIFY(read.getSettings().isUpdateNeeded());
    harness::clearStore();
    label.resetNeedSave();
    label.saveSettings("plot", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
}

void TestLabel::titleStandsAtItsFraction_data()
{
    QTest::addColumn<QPointF>("fraction");
    QTest::addColumn<QSize>("window");
    QTest::addColumn<QPoint>("centre");
    QTest::newRow("default, near the top") << QPointF(0.5, 0.95) << QSize(300, 400) << QPoint(150, 380);
    QTest::newRow("lower left") << QPointF(0.25, 0.2) << QSize(400, 200) << QPoint(100, 40);
    QTest::newRow("moved inside a low window") << QPointF(0.5, 0.95) << QSize(300, 100) << QPoint(150, 90);
    QTest::newRow("moved inside at the corner") << QPointF(0.0, 0.0) << QSize(300, 100) << QPoint(24, 10);
}

void TestLabel::titleStandsAtItsFraction()
{
    QFETCH(QPointF, fraction);
    QFETCH(QSize, window);
    QFETCH(QPoint, centre);
    Title title;
    QVERIFY(title.isVisible());
    QVERIFY(drawn(title).isNull());
    title.getSettings().setFont(QFont("DejaVu Sans", 12));
    title.getSettings().setText("HHHH");
    title.setRelativePosition(fraction);
    drawn(title);
    QVERIFY(harness::show(canvas, window.width(), window.height()));
    const QRect ink = drawn(title);
    const QPoint found = QRect(title.getPlacement().corner, title.getImage().size()).center();
    QVERIFY2((found - centre).manhattanLength() <= 4,
             qPrintable(QString("%1 %2").arg(found.x()).arg(found.y())));
    QVERIFY(QRect(title.getPlacement().corner, title.getImage().size()).contains(ink));
    QVERIFY(QRect(QPoint(0, 0), window).contains(ink));
}

void TestLabel::titleNormalisesItsPosition()
{
    Title title;
    QVERIFY(!title.setRelativePosition(QPointF(0.5, 0.95)));
    QVERIFY(!title.isSaveNeeded());
    QVERIFY(title.setRelativePosition(QPointF(-0.1, 1.0)));
    QCOMPARE(title.getRelativePosition(), QPointF(0.5, 1.0));
    QVERIFY(title.isSaveNeeded());
    QVERIFY(title.setRelativePosition(QPointF(0.0, qQNaN())));
    QCOMPARE(title.getRelativePosition(), QPointF(0.0, 0.5));
}

void TestLabel::titlePersistence()
{
    Title title;
    title.saveSettings("plot", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
    title.setRelativePosition(QPointF(0.25, 0.75));
    title.getSettings().setText("Title");
    title.saveSettings("plot", organization, application);
    const QSettings values(organization, application);
    QCOMPARE(values.value("plot/title/relativePosition").toPointF(), QPointF(0.25, 0.75));
    QCOMPARE(values.value("plot/title/visible").toBool(), true);
    Title read;
    read.loadSettings("plot", organization, application);
    QCOMPARE(read.getRelativePosition(), QPointF(0.25, 0.75));
    QCOMPARE(read.getSettings().getText(), QString("Title"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestLabel>(argc, argv);
}

#include "tst_label.moc"
