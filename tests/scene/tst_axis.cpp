#include "core/linearscale.h"
#include "core/log10scale.h"
#include "harness/glrecorder.h"
#include "scene/axis.h"
#include "scene/canvas.h"

#include <QSettings>
#include <QtTest>

#include <random>

using namespace Zel3D;

namespace {

const QString organization = "voran-test";
const QString application = "voran-test";

/// A linear scale that counts its calculations.
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

/// From (0, 0, 0) to (1, 0, 0) with the limits 0 to 10, ticks of 0.2 and 0.1 along -y.
void prepare(Axis& axis)
{
    axis.getSettings().getLine().setVisible(true);
    axis.getSettings().getTics().setVisible(true);
    axis.getSettings().getNumbers().setVisible(true);
    axis.getSettings().getNumbers().setFont(QFont("DejaVu Sans", 8));
    axis.setPosition(QVector3D(), QVector3D(1, 0, 0));
    axis.setLimits(0.0, 10.0);
    axis.setTicsOrientation(QVector3D(0, -3, 0));
    axis.setTicsLength(0.2, 0.1);
}

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

bool sameNumbers(const Axis& axis, const QStringList& texts)
{
    QStringList found;
    for (const Axis::Major& major : axis.getMajors())
        found.append(major.label.getSettings().getText());
    return found == texts;
}

} // namespace

class TestAxis : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void drawsLineTicsAndArrowInOrder();
    void ticStyles_data();
    void ticStyles();
    void lineWidthIsNotClamped();
    void numbersStandAtTheirValues_data();
    void numbersStandAtTheirValues();
    void roundingErrorsReadAsZero_data();
    void roundingErrorsReadAsZero();
    void equalLimitsKeepTheOldTicsUndrawn();
    void unusableLimits_data();
    void unusableLimits();
    void recalculatesOnlyWhenSomethingChanged();
    void numbersKeepTheirImages();
    void countsAreCapped();
    void titlePlace_data();
    void titlePlace();
    void equalEndsLeaveTheArrow();
    void intervalsAndScales();
    void automaticFormatEndsWithAGivenOne();
    void copiesHaveTheirOwnScale();
    void saving();
    void loadingTakesTheOrganizationAsPrefix();

private:
    Canvas canvas;
};

void TestAxis::init()
{
    harness::clearStore();
    QVERIFY(harness::show(canvas, 300, 200));
    canvas.makeCurrent();
    glLineWidth(1.0F);
    while (glGetError() != GL_NO_ERROR) {
    }
}

void TestAxis::drawsLineTicsAndArrowInOrder()
{
    Axis axis;
    prepare(axis);
    axis.setMajorInterval(2);
    axis.setMinorInterval(2);
    axis.setLineWidth(2.0, 0.5, 0.25);
    axis.getSettings().getLine().setColor(QColor(0, 0, 255));
    axis.getSettings().getNumbers().setVisible(false);
    axis.getArrow().setVisible(true);
    axis.getArrow().setParameters(0.1, 0.2);
    GLRecorder recorder;
    axis.draw();
    const QVector<QVector3D> lines = points(recorder.primitives(GL_LINES));
    const QVector<QVector3D> expected{
        {0, 0, 0},     {1, 0, 0}, // the line
        {0, 0, 0},     {0, -0.2F, 0},     {0.5F, 0, 0}, {0.5F, -0.2F, 0}, {1, 0, 0}, {1, -0.2F, 0}, // majors
        {0.25F, 0, 0}, {0.25F, -0.1F, 0}, {0.5F, 0, 0}, {0.5F, -0.1F, 0},                           // minors
        {0.75F, 0, 0}, {0.75F, -0.1F, 0}, {1, 0, 0},    {1, -0.1F, 0}};
    QCOMPARE(lines.size(), expected.size());
    for (int i = 0; i < lines.size(); ++i)
        QVERIFY((lines.at(i) - expected.at(i)).length() < 1e-6F);
    QCOMPARE(recorder.calls().first(),
             QString("glBlendFunc(%1,%2)").arg(GL_SRC_ALPHA).arg(GL_ONE_MINUS_SRC_ALPHA));
    QCOMPARE(recorder.calls().at(1), QString("glColor4d(0,0,1,1)"));
    int last = 0;
    for (const char* width : {"glLineWidth(2)", "glLineWidth(1)", "glLineWidth(0.5)", "gluCylinder"}) {
        const int next = recorder.indexOf(width, last);
        QVERIFY2(next > last, width);
        last = next;
    }
    QCOMPARE(axis.getArrow().getPosition(), QVector3D(1, 0, 0));
    QCOMPARE(axis.getArrow().getDirection(), QVector3D(1, 0, 0));
}

void TestAxis::ticStyles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<float>("from");
    QTest::newRow("out") << 0 << 0.0F;
    QTest::newRow("both") << 1 << -0.5F;
    QTest::newRow("unknown is both") << 5 << -0.5F;
}

void TestAxis::ticStyles()
{
    QFETCH(int, style);
    QFETCH(float, from);
    Axis axis;
    GLRecorder recorder;
    axis.drawTic(QVector3D(1, 2, 3), 0.5, QVector3D(0, 0, 1), TicStyle(style));
    QCOMPARE(points(recorder.primitives(GL_LINES)), (QVector<QVector3D>{{1, 2, 3.0F + from}, {1, 2, 3.5F}}));
}

void TestAxis::lineWidthIsNotClamped()
{
    Axis axis;
    prepare(axis);
    axis.getSettings().getLine().setWidth(-2.0);
    GLRecorder recorder;
    axis.drawLine();
    QVERIFY(recorder.calls().contains("glLineWidth(-2)"));
    QCOMPARE(glGetError(), GLenum(GL_INVALID_VALUE));
}

void TestAxis::numbersStandAtTheirValues_data()
{
    QTest::addColumn<bool>("logarithmic");
    QTest::addColumn<bool>("reversed");
    QTest::newRow("linear") << false << false;
    QTest::newRow("linear, maximum at the start") << false << true;
    QTest::newRow("logarithmic") << true << false;
    QTest::newRow("logarithmic, maximum at the start") << true << true;
}

void TestAxis::numbersStandAtTheirValues()
{
    QFETCH(bool, logarithmic);
    QFETCH(bool, reversed);
    std::mt19937 random(5);
    std::uniform_real_distribution<double> unit(-1.0, 1.0);
    int checked = 0;
    for (int round = 0; round < 500; ++round) {
        const double span =
            logarithmic ? 1.5 + 4.0 * (unit(random) + 1.0) : std::pow(10.0, 8.0 * unit(random));
        const double minimum = span * 3.0 * unit(random);
        Axis axis;
        prepare(axis);
        axis.setAutomaticTicFormat(true);
        axis.setScale(logarithmic ? Logarithmic : Linear);
        axis.setReversed(reversed);
        axis.setMajorInterval(1 + round % 11);
        axis.setPosition(QVector3D(-2, 1, 5), QVector3D(2, 1, 5));
        axis.setLimits(minimum, minimum + span);
        axis.recalculateTics();
        for (const Axis::Major& major : axis.getMajors()) {
            const double stated = major.label.getSettings().getText().toDouble();
            const double value = logarithmic ? std::log10(stated) : stated;
            const double t = double(major.position.x() + 2.0F) / 4.0;
            const double there = minimum + span * (reversed ? 1.0 - t : t);
            QVERIFY(std::abs(value - there) < 0.011 * span);
            QVERIFY(
                (major.label.getSettings().getPosition() - major.position - QVector3D(0, -0.2F, 0)).length() <
                1e-5F);
            ++checked;
        }
    }
    QVERIFY(checked > 1000);
}

void TestAxis::roundingErrorsReadAsZero_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<bool>("logarithmic");
    QTest::addColumn<QStringList>("texts");
    const QStringList around = {"-0.2", "0", "0.2", "0.4"};
    QTest::newRow("single precision") << double(-0.2F) << double(0.4F) << false << around;
    QTest::newRow("double precision") << -0.2 << 0.4 << false << around;
    QTest::newRow("small values") << 0.0 << 3e-9 << false << QStringList{"0", "1e-09", "2e-09", "3e-09"};
    QTest::newRow("small powers") << -9.0 << -6.0 << true << QStringList{"1e-09", "1e-08", "1e-07", "1e-06"};
    QTest::newRow("the power zero") << -1.0 << 2.0 << true << QStringList{"0.1", "1", "10", "100"};
}

void TestAxis::roundingErrorsReadAsZero()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(bool, logarithmic);
    QFETCH(QStringList, texts);
    Axis axis;
    prepare(axis);
    axis.setAutomaticTicFormat(true);
    axis.setScale(logarithmic ? Logarithmic : Linear);
    axis.setMajorInterval(3);
    axis.setLimits(minimum, maximum);
    axis.recalculateTics();
    QVERIFY(sameNumbers(axis, texts));
}

void TestAxis::equalLimitsKeepTheOldTicsUndrawn()
{
    Axis axis;
    prepare(axis);
    axis.getLabel().setVisible(false);
    axis.draw();
    QVERIFY(sameNumbers(axis, {"0", "10"}));
    axis.setLimits(5.0, 5.0);
    GLRecorder recorder;
    axis.draw();
    QVERIFY(axis.isRecalculationNeeded());
    QVERIFY(sameNumbers(axis, {"0", "10"}));
    QCOMPARE(axis.getMinors().size(), 1);
    // What is drawn would state values that the axis does not show: the line only.
    QCOMPARE(recorder.primitives(GL_LINES).size(), 1);
    QCOMPARE(recorder.count("glDrawPixels"), 0);
    axis.setLimits(5.0, 6.0);
    axis.draw();
    QVERIFY(sameNumbers(axis, {"5", "6"}));
    QVERIFY(!axis.isRecalculationNeeded());
}

void TestAxis::unusableLimits_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::newRow("zeros") << 0.0 << 0.0;
    QTest::newRow("not a number") << qQNaN() << 1.0;
    QTest::newRow("both not a number") << qQNaN() << qQNaN();
    QTest::newRow("infinite") << 0.0 << qInf();
    QTest::newRow("span overflows") << -1.7e308 << 1.7e308;
}

void TestAxis::unusableLimits()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    Axis axis;
    prepare(axis);
    axis.setLimits(minimum, maximum);
    axis.draw();
    QVERIFY(axis.getMajors().isEmpty());
    axis.setScale(Logarithmic);
    axis.draw();
    QVERIFY(axis.getMajors().isEmpty());
    QVector<QRectF> occupied;
    axis.arrange(ViewFrame(), QVector2D(), false, occupied);
    axis.arrangeName(ViewFrame(), occupied);
    axis.setLimits(0.0, 1.0);
    axis.setPosition(QVector3D(float(qQNaN()), 0, 0), QVector3D(1, 0, 0));
    GLRecorder recorder;
    axis.draw();
    QVERIFY(recorder.primitives().isEmpty());
}

void TestAxis::recalculatesOnlyWhenSomethingChanged()
{
    Axis axis;
    prepare(axis);
    int calculations = 0;
    axis.setScale(new CountingScale(calculations));
    axis.setScale(static_cast<Scale*>(nullptr));
    for (int frame = 0; frame < 10; ++frame)
        axis.draw();
    QCOMPARE(calculations, 1);
    // The same values again, and what does not move the ticks.
    axis.setPosition(QVector3D(), QVector3D(1, 0, 0));
    axis.setLimits(0.0, 10.0);
    axis.setMajorInterval(1);
    axis.setMinorInterval(-3);
    axis.setTicsOrientation(QVector3D(0, -7, 0));
    axis.setTicsLength(0.2, 0.1);
    axis.setLineWidth(3.0, 1.0, 1.0);
    axis.getSettings().getLine().setColor(Qt::red);
    axis.draw();
    QCOMPARE(calculations, 1);
    const QVector<std::function<void()>> changes{
        [&] { axis.setPosition(QVector3D(), QVector3D(2, 0, 0)); },
        [&] { axis.setLimits(0.0, 11.0); },
        [&] { axis.setReversed(true); },
        [&] { axis.setMajorInterval(4); },
        [&] { axis.setMinorInterval(4); },
        [&] { axis.setTicsOrientation(QVector3D(0, 0, 1)); },
        [&] { axis.setTicsLength(0.3, 0.1); },
        [&] { axis.setTicFormat('f', 1); },
        [&] { axis.getSettings().getNumbers().setFont(QFont("DejaVu Sans", 9)); },
        [&] { axis.getSettings().getNumbers().setColor(Qt::blue); },
        [&] { axis.getSettings().getNumbers().setAlignment(TopLeft); },
        [&] { axis.getSettings().getNumbers().setAdjust(2); },
        [&] { axis.getSettings().getNumbers().setDistance(0.5); },
    };
    for (int i = 0; i < changes.size(); ++i) {
        changes.at(i)();
        QCOMPARE(calculations, i + 1);
        axis.draw();
        axis.draw();
        QCOMPARE(calculations, i + 2);
    }
    const Label& number = axis.getMajors().first().label;
    QCOMPARE(number.getSettings().getFont(), QFont("DejaVu Sans", 9));
    QCOMPARE(number.getSettings().getColor(), QColor(Qt::blue));
    QCOMPARE(number.getSettings().getAlignment(), TopLeft);
    QCOMPARE(number.getSettings().getAdjust(), 2);
    QCOMPARE(number.getSettings().getText(), QString("0.0"));
}

void TestAxis::numbersKeepTheirImages()
{
    Axis axis;
    prepare(axis);
    axis.setMajorInterval(5);
    axis.draw();
    QHash<QString, qint64> images;
    for (const Axis::Major& major : axis.getMajors())
        images.insert(major.label.getSettings().getText(), major.label.getImage().cacheKey());
    QCOMPARE(images.size(), 6);
    // Moved, turned and with other limits that share some numbers.
    axis.setPosition(QVector3D(-1, 0, 0), QVector3D(1, 0, 0));
    axis.setTicsLength(0.1, 0.1);
    axis.setLimits(4.0, 14.0);
    axis.draw();
    QVERIFY(sameNumbers(axis, {"4", "6", "8", "10", "12", "14"}));
    for (const Axis::Major& major : axis.getMajors()) {
        const QString text = major.label.getSettings().getText();
        QVERIFY(!major.label.getImage().isNull());
        QCOMPARE(major.label.getImage().cacheKey() == images.value(text), images.contains(text));
    }
    // A failed calculation loses nothing.
    axis.setLimits(1.0, 1.0);
    axis.draw();
    axis.setLimits(4.0, 14.0);
    axis.draw();
    QCOMPARE(axis.getMajors().first().label.getImage().cacheKey(), images.value("4"));
}

void TestAxis::countsAreCapped()
{
    Axis axis;
    prepare(axis);
    axis.setMajorInterval(1000000000);
    axis.setMinorInterval(1000000000);
    QVector<QRectF> occupied;
    canvas.paint = [&] {
        axis.arrange(currentViewFrame(), QVector2D(0, -1), false, occupied);
        axis.arrangeName(currentViewFrame(), occupied);
        axis.draw();
    };
    harness::grab(canvas);
    canvas.paint = [] {};
    QVERIFY(axis.getMajors().size() <= 1001);
    QVERIFY(occupied.size() > 1 && occupied.size() < 20);
}

void TestAxis::titlePlace_data()
{
    QTest::addColumn<bool>("tics");
    QTest::addColumn<bool>("numbers");
    QTest::addColumn<float>("distance");
    QTest::newRow("tics hidden, numbers do not count") << false << true << 0.05F;
    QTest::newRow("tics") << true << false << 0.25F;
    QTest::newRow("tics and numbers") << true << true << 0.55F;
}

void TestAxis::titlePlace()
{
    QFETCH(bool, tics);
    QFETCH(bool, numbers);
    QFETCH(float, distance);
    Axis axis;
    prepare(axis);
    axis.getSettings().getTics().setVisible(tics);
    axis.getSettings().getNumbers().setVisible(numbers);
    axis.getSettings().getNumbers().setDistance(0.3);
    axis.getSettings().setLabelShift(0.05);
    axis.getLabel().getSettings().setText("title");
    axis.draw();
    QVERIFY((axis.getLabel().getSettings().getPosition() - QVector3D(0.5F, -distance, 0)).length() < 1e-6F);
}

void TestAxis::equalEndsLeaveTheArrow()
{
    Axis axis;
    axis.setPosition(QVector3D(1, 0, 0), QVector3D(1, 2, 0));
    axis.setPosition(QVector3D(3, 3, 3), QVector3D(3, 3, 3));
    QCOMPARE(axis.getStart(), QVector3D(3, 3, 3));
    QCOMPARE(axis.getEnd(), QVector3D(3, 3, 3));
    QCOMPARE(axis.getArrow().getPosition(), QVector3D(1, 2, 0));
    QCOMPARE(axis.getArrow().getDirection(), QVector3D(0, 2, 0));
}

void TestAxis::intervalsAndScales()
{
    Axis axis;
    QVERIFY(axis.setMajorInterval(7));
    QVERIFY(axis.setMajorInterval(0));
    QCOMPARE(axis.getSettings().getMajor().getInterval(), 1);
    axis.setMinorInterval(4);
    axis.setScale(Logarithmic);
    QCOMPARE(axis.getSettings().getMinor().getInterval(), 9);
    QVERIFY(dynamic_cast<const Log10Scale*>(axis.getScale()));
    axis.setMinorInterval(3);
    axis.setScale(Linear);
    QCOMPARE(axis.getSettings().getMinor().getInterval(), 3);
    QVERIFY(dynamic_cast<const LinearScale*>(axis.getScale()));
    const Scale* before = axis.getScale();
    int unknown = 2;
    axis.setScale(ScaleType(unknown));
    QCOMPARE(axis.getScale(), before);
}

void TestAxis::automaticFormatEndsWithAGivenOne()
{
    Axis axis;
    prepare(axis);
    axis.setLimits(1000.0, 1001.0);
    axis.setMajorInterval(2);
    axis.recalculateTics();
    QVERIFY(sameNumbers(axis, {"1e+03", "1e+03", "1e+03"}));
    axis.setAutomaticTicFormat(true);
    axis.updateTics();
    QVERIFY(sameNumbers(axis, {"1000", "1000.5", "1001"}));
    axis.setTicFormat('f', 2);
    axis.updateTics();
    QVERIFY(sameNumbers(axis, {"1000.00", "1000.50", "1001.00"}));
}

void TestAxis::copiesHaveTheirOwnScale()
{
    Axis axis;
    prepare(axis);
    axis.setScale(Logarithmic);
    Axis copy = axis;
    QVERIFY(copy.getScale() != axis.getScale());
    QVERIFY(dynamic_cast<const Log10Scale*>(copy.getScale()));
    copy.setLimits(0.0, 3.0);
    copy.updateTics();
    axis.setLimits(0.0, 1.0);
    axis.updateTics();
    QVERIFY(sameNumbers(copy, {"1", "10", "100", "1000"}));
    QCOMPARE(copy.getScale()->getStop(), 3.0);
    copy = Axis();
    QVERIFY(dynamic_cast<const LinearScale*>(copy.getScale()));
}

void TestAxis::saving()
{
    Axis axis;
    axis.setName("axis7");
    axis.resetNeedSave();
    axis.saveSettings("plot", organization, application);
    QVERIFY(QSettings(organization, application).allKeys().isEmpty());
    const QString group = "plot/axis7/";
    const auto saved = [&] {
        axis.saveSettings("plot", organization, application);
        QStringList keys = QSettings(organization, application).allKeys();
        keys.sort();
        harness::clearStore();
        axis.resetNeedSave();
        return keys.replaceInStrings(group, "");
    };
    // Every record writes its own keys and only when it was changed.
    axis.getSettings().setLabelShift(0.5);
    QCOMPARE(saved(), (QStringList{"labelShift"}));
    axis.setMajorInterval(3);
    QCOMPARE(saved(), (QStringList{"major/interval", "major/lineWidth"}));
    axis.setMinorInterval(3);
    QCOMPARE(saved(), (QStringList{"minor/interval", "minor/lineWidth"}));
    axis.getSettings().getLine().setWidth(2.0);
    QCOMPARE(saved(), (QStringList{"line/color", "line/visible", "line/width"}));
    axis.setTicsLength(0.1, 0.2);
    QCOMPARE(saved(), (QStringList{"tics/majorLength", "tics/minorLength", "tics/style", "tics/visible"}));
    axis.getSettings().getNumbers().setColor(Qt::red);
    QCOMPARE(saved(), (QStringList{"number/alignment", "number/color", "number/font", "number/visible"}));
    axis.setLineWidth(2.0, 1.0, 1.0);
    QCOMPARE(saved().size(), 7);
    axis.getLabel().getSettings().setText("t");
    axis.getArrow().getSettings().setStyle(1);
    QCOMPARE(saved().filter(QRegularExpression("^(label|arrow)/")).size(), 12);
    // Not persisted: what owners compute.
    axis.setTicsOrientation(QVector3D(1, 0, 0));
    axis.setComputedTicsLength(5.0, 5.0);
    axis.getSettings().getNumbers().setDistance(1.0);
    axis.getSettings().getNumbers().setAdjust(1);
    QCOMPARE(saved(), QStringList());
    QCOMPARE(axis.getSettings().getTics().getMajorLength(), 0.1);
    // Label and arrow of a new axis are written at its first save.
    Axis fresh;
    fresh.setName("axis7");
    axis = fresh;
    QCOMPARE(saved().filter(QRegularExpression("^(label|arrow)/")).size(), 14);
}

void TestAxis::loadingTakesTheOrganizationAsPrefix()
{
    // Saved under plot/axis7 of the store; read with the organization as the prefix from the store of the
    // organization "voran-test" and the application "plot/axis7".
    QSettings values(application, "plot/axis7");
    const QString group = organization + "/";
    values.setValue(group + "labelShift", 0.25);
    values.setValue(group + "major/interval", -4);
    values.setValue(group + "minor/interval", 6);
    values.setValue(group + "minor/lineWidth", 0.75);
    values.setValue(group + "line/visible", true);
    values.setValue(group + "line/color", "red");
    values.setValue(group + "tics/style", 1);
    values.setValue(group + "tics/majorLength", 0.5);
    values.setValue(group + "number/color", 1.5);
    values.setValue(group + "number/font", QFont("DejaVu Sans", 20));
    values.setValue(group + "number/alignment", 2);
    values.setValue(group + "label/text", "loaded");
    values.setValue(group + "arrow/sizeStyle", 2);
    values.sync();
    QSettings(organization, application).setValue("plot/axis7/labelShift", 99.0);
    Axis axis;
    axis.setName("axis7");
    axis.resetNeedSave();
    axis.loadSettings("plot", organization, application);
    const Axis::Settings& settings = axis.getSettings();
    QCOMPARE(settings.getLabelShift(), 0.25);
    QCOMPARE(settings.getMajor().getInterval(), 1);
    QCOMPARE(settings.getMinor().getInterval(), 6);
    QCOMPARE(settings.getMinor().getLineWidth(), 0.75);
    QVERIFY(settings.getLine().isVisible());
    QCOMPARE(settings.getLine().getColor(), QColor(Qt::red));
    QCOMPARE(settings.getTics().getStyle(), TicBoth);
    QCOMPARE(settings.getTics().getMajorLength(), 0.5);
    QVERIFY(!settings.getNumbers().getColor().isValid());
    QCOMPARE(settings.getNumbers().getFont(), QFont("DejaVu Sans", 20));
    QCOMPARE(settings.getNumbers().getAlignment(), TopRight);
    QCOMPARE(axis.getLabel().getSettings().getText(), QString("loaded"));
    QCOMPARE(axis.getArrow().getSettings().getSizeStyle(), ArrowLarge);
    // Loading marks no record.
    for (const SettingsRecord* record : std::initializer_list<const SettingsRecord*>{
             &settings, &settings.getMajor(), &settings.getMinor(), &settings.getLine(), &settings.getTics(),
             &settings.getNumbers()})
        QVERIFY(!record->isSaveNeeded());
    values.clear();
}

int main(int argc, char* argv[])
{
    return harness::run<TestAxis>(argc, argv);
}

#include "tst_axis.moc"
