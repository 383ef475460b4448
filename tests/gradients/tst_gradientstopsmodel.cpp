#include "gradients/gradientcolors.h"
#include "gradients/gradientstopsmodel.h"
#include "harness/harness.h"

#include <QtTest>

#include <cmath>

using Zel3D::GradientStopsModel;

namespace {

const QGradientStops threeStops = {{0.0, Qt::red}, {0.4, Qt::green}, {1.0, Qt::blue}};

/// Positions in per cent and the first letters of the colours, the current stop in brackets.
QString written(const GradientStopsModel& model)
{
    QStringList words;
    for (int i = 0; i < model.count(); ++i) {
        const QColor color = model.getColor(i);
        const QString letter = color == Qt::red     ? "r"
                               : color == Qt::green ? "g"
                               : color == Qt::blue  ? "b"
                                                    : "x";
        const QString word = QString::number(model.getPosition(i) * 100.0, 'g', 6) + letter;
        words << (i == model.getCurrent() ? '[' + word + ']' : word);
    }
    return words.join(' ');
}

} // namespace

class TestGradientStopsModel : public QObject
{
    Q_OBJECT
private slots:
    void startsFromAnything();
    void operations_data();
    void operations();
    void movingPast();
    void sharpEdges();
    void dragging();
    void undoing();
    void stepsInARowAreOne();
    void signalsSayWhatChanged();
    void givesPlotsWhatTheyNeed();
};

void TestGradientStopsModel::startsFromAnything()
{
    GradientStopsModel model;
    model.setStops({{0.7, Qt::blue}, {-1.0, Qt::red}, {std::nan(""), Qt::green}, {7.0, Qt::red}});
    QCOMPARE(written(model), QString("[0r] 0g 70b 100r"));
    model.setGradient(QLinearGradient());
    QCOMPARE(model.count(), 0);
    QCOMPARE(model.getCurrent(), -1);
    QVERIFY(!model.remove(0) && model.move(0, 0.5) == -1 && !model.canUndo());
    model.reverse();
    model.distribute();
    QVERIFY(!model.canUndo());
    QCOMPARE(model.insertAfterCurrent(), 0);
    QCOMPARE(model.insertAfterCurrent(), 1);
    QCOMPARE(written(model), QString("0x [100x]"));
    QGradientStops many(5000, {0.5, Qt::red});
    model.setStops(many);
    QCOMPARE(model.count(), GradientStopsModel::maximumStops);
    QCOMPARE(model.insert(0.5), -1);
}

void TestGradientStopsModel::operations_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("result");
    QTest::newRow("insert") << "insert"
                            << "0r 40g [70x] 100b";
    QTest::newRow("after the current") << "after"
                                       << "0r 40g [70x] 100b";
    QTest::newRow("before the last") << "afterLast"
                                     << "0r 40g [70x] 100b";
    QTest::newRow("remove") << "remove"
                            << "0r [100b]";
    QTest::newRow("remove the last") << "removeLast"
                                     << "0r [40g]";
    QTest::newRow("reverse") << "reverse"
                             << "0b [60g] 100r";
    QTest::newRow("distribute") << "distribute"
                                << "0r [50g] 100b";
    QTest::newRow("snap") << "snap"
                          << "0r [35g] 100b";
    QTest::newRow("move beyond the end") << "beyond"
                                         << "0r [100g] 100b";
}

void TestGradientStopsModel::operations()
{
    QFETCH(QString, operation);
    QFETCH(QString, result);
    GradientStopsModel model;
    model.setStops(threeStops);
    model.setCurrent(1);
    if (operation == "insert")
        model.insert(0.7);
    else if (operation == "after")
        model.insertAfterCurrent();
    else if (operation == "afterLast") {
        model.setCurrent(2);
        model.insertAfterCurrent();
    } else if (operation == "remove")
        model.remove(1);
    else if (operation == "removeLast")
        model.remove(2);
    else if (operation == "reverse")
        model.reverse();
    else if (operation == "distribute")
        model.distribute();
    else if (operation == "beyond")
        model.move(1, 3.0);
    else {
        model.move(1, 0.3499);
        model.snap();
        QCOMPARE(model.getPosition(1), 0.35); // the number itself, not 7 times 0.05
    }
    QCOMPARE(written(model), result);
    while (model.canUndo())
        model.undo();
    QCOMPARE(model.getStops(), threeStops);
    while (model.canRedo())
        model.redo();
    QCOMPARE(written(model), result);
}

void TestGradientStopsModel::movingPast()
{
    GradientStopsModel model;
    model.setStops(threeStops);
    QSignalSpy current(&model, &GradientStopsModel::currentChanged);
    QCOMPARE(model.move(0, 0.8), 1);
    QCOMPARE(written(model), QString("40g [80r] 100b"));
    QCOMPARE(current.size(), 1);
    QCOMPARE(model.insert(0.2, Qt::blue), 0);
    model.setCurrent(3);
    QCOMPARE(model.move(3, 0.0), 0);
    QCOMPARE(written(model), QString("[0b] 20b 40g 80r"));
}

void TestGradientStopsModel::sharpEdges()
{
    GradientStopsModel model;
    model.setStops(threeStops);
    // Coming from the left it stays left of a stop at the same place, from the right it stays right.
    model.move(0, 0.4);
    model.move(2, 0.4);
    QCOMPARE(written(model), QString("40r 40g [40b]"));
    QCOMPARE(model.colorAt(0.5), QColor(Qt::blue));
    model.reverse();
    QCOMPARE(written(model), QString("[60b] 60g 60r"));
    model.distribute();
    QCOMPARE(written(model), QString("[0b] 50g 100r"));
}

void TestGradientStopsModel::dragging()
{
    GradientStopsModel model;
    model.setStops(threeStops);
    model.beginDrag(1);
    model.drag(0.6);
    model.dragOff();
    QCOMPARE(written(model), QString("0r [100b]"));
    model.drag(0.1);
    QCOMPARE(written(model), QString("0r [10g] 100b"));
    model.cancelDrag();
    QCOMPARE(written(model), QString("0r [40g] 100b"));
    QVERIFY(!model.canUndo());
    model.drag(0.9);
    QCOMPARE(written(model), QString("0r [40g] 100b"));

    // A whole drag is one step; one that ends where it began is none.
    model.beginDrag(1);
    model.drag(0.6);
    model.drag(0.4);
    model.endDrag();
    QVERIFY(!model.canUndo());
    model.beginDrag(0);
    model.drag(0.2);
    model.dragOff();
    model.endDrag();
    QCOMPARE(written(model), QString("[40g] 100b"));
    model.undo();
    QCOMPARE(written(model), QString("[0r] 40g 100b"));
    QVERIFY(!model.canUndo());

    // Another change in the middle of a drag ends it; both are steps of their own.
    model.beginDrag(1);
    model.drag(0.9);
    model.insert(0.5, Qt::red);
    QCOMPARE(written(model), QString("0r [50r] 90g 100b"));
    QVERIFY(!model.isDragging());
    model.undo();
    QCOMPARE(written(model), QString("0r [90g] 100b"));
    model.undo();
    QCOMPARE(written(model), QString("0r [40g] 100b"));

    // The only stop cannot be dragged off.
    model.setStops({{0.5, Qt::red}});
    model.beginDrag(0);
    model.dragOff();
    model.endDrag();
    QCOMPARE(written(model), QString("[50r]"));
}

void TestGradientStopsModel::undoing()
{
    GradientStopsModel model;
    model.setStops(threeStops);
    model.setCurrent(1);
    model.remove(1);
    model.setColor(0, Qt::green);
    model.undo();
    QCOMPARE(written(model), QString("[0r] 100b"));
    model.undo();
    QCOMPARE(written(model), QString("0r [40g] 100b"));
    QVERIFY(!model.canUndo() && model.canRedo());
    model.redo();
    model.insert(0.5, Qt::red); // takes the rest of the future away
    QVERIFY(!model.canRedo());
    model.redo();
    QCOMPARE(written(model), QString("0r [50r] 100b"));
    model.setStops(threeStops);
    QVERIFY(!model.canUndo() && !model.canRedo());
    model.reverse();
    model.setColor(0, QColor());
    model.setColor(0, Qt::blue); // as it is
    model.undo();
    QVERIFY(!model.canUndo());
}

void TestGradientStopsModel::stepsInARowAreOne()
{
    GradientStopsModel model;
    model.setStops(threeStops);
    model.setCurrent(1);
    for (int i = 1; i <= 5; ++i)
        model.move(1, 0.4 + 0.01 * i);
    model.setColor(1, Qt::red);
    model.setColor(1, Qt::blue);
    model.undo();
    QCOMPARE(written(model), QString("0r [45g] 100b"));
    model.undo();
    QCOMPARE(written(model), QString("0r [40g] 100b"));
    QVERIFY(!model.canUndo());
    // Another stop in between ends the row.
    model.move(1, 0.5);
    model.move(0, 0.1);
    model.move(1, 0.6);
    model.undo();
    model.undo();
    QCOMPARE(written(model), QString("[0r] 50g 100b"));
    model.undo();
    // There and back again is no step, and does not swallow the one before.
    model.reverse();
    const QString reversed = written(model);
    model.move(1, 0.7);
    model.move(1, 0.6);
    model.move(1, 0.3);
    model.undo();
    QCOMPARE(written(model), reversed);
}

void TestGradientStopsModel::signalsSayWhatChanged()
{
    GradientStopsModel model;
    model.setStops(threeStops);
    QSignalSpy stops(&model, &GradientStopsModel::stopsChanged);
    QSignalSpy current(&model, &GradientStopsModel::currentChanged);
    model.setCurrent(0);
    model.setCurrent(9);
    model.move(0, 0.0);
    model.snap();
    QCOMPARE(stops.size() + current.size(), 0);
    model.setCurrent(2);
    QCOMPARE(stops.size(), 0);
    QCOMPARE(current.takeFirst().first().toInt(), 2);
    // A listener sees the new stops and the new current one together.
    int seen = -2;
    connect(&model, &GradientStopsModel::stopsChanged, [&] { seen = model.getCurrent(); });
    model.insert(0.1);
    QCOMPARE(seen, 1);
    QCOMPARE(stops.size(), 1);
}

void TestGradientStopsModel::givesPlotsWhatTheyNeed()
{
    GradientStopsModel model;
    QRadialGradient radial(1.0, 2.0, 3.0);
    radial.setSpread(QGradient::ReflectSpread);
    radial.setColorAt(0.2, Qt::red);
    radial.setColorAt(0.8, Qt::blue);
    model.setGradient(radial);
    const QGradient given = model.getGradient();
    QCOMPARE(given.type(), QGradient::RadialGradient);
    QCOMPARE(given.spread(), QGradient::ReflectSpread);
    QCOMPARE(given.stops().first(), QGradientStop(0.0, Qt::red));
    QCOMPARE(given.stops().last(), QGradientStop(1.0, Qt::blue));
    QCOMPARE(model.count(), 2); // its own stops stay
    QGradient none;
    model.setGradient(none);
    QCOMPARE(model.getGradient().type(), QGradient::LinearGradient);
}

int main(int argc, char* argv[])
{
    return harness::run<TestGradientStopsModel>(argc, argv);
}

#include "tst_gradientstopsmodel.moc"
