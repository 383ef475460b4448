#include "gradients/gradientstopsmodel.h"
#include "gradients/gradientstopswidget.h"
#include "harness/harness.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QtTest>

#include <cmath>
#include <memory>

using Zel3D::GradientStopsModel;
using Zel3D::GradientStopsWidget;

class TestGradientStopsWidget : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { window.reset(); }
    void dragging();
    void draggingOff();
    void doubleClicks();
    void handlesAtOnePlace();
    void keys_data();
    void keys();
    void tabbing();
    void showsTheColors();
    void isToldAloud();

private:
    void mouse(QEvent::Type type, const QPointF& at, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QPointF handle(int index) const { return widget->handleRect(index).center(); }
    double pixels(double share) const { return share * widget->barRect().width(); }
    QString positions() const;

    std::unique_ptr<QWidget> window;
    GradientStopsModel* model = nullptr;
    GradientStopsWidget* widget = nullptr;
    QLineEdit* before = nullptr;
    QLineEdit* after = nullptr;
};

void TestGradientStopsWidget::init()
{
    window = std::make_unique<QWidget>();
    model = new GradientStopsModel(window.get());
    model->setStops({{0.0, Qt::red}, {0.5, Qt::green}, {1.0, Qt::blue}});
    auto* layout = new QVBoxLayout(window.get());
    before = new QLineEdit;
    widget = new GradientStopsWidget(model);
    after = new QLineEdit;
    for (QWidget* w :
         {static_cast<QWidget*>(before), static_cast<QWidget*>(widget), static_cast<QWidget*>(after)})
        layout->addWidget(w);
    QVERIFY(harness::show(*window, 500, 200));
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    widget->setFocus();
}

void TestGradientStopsWidget::mouse(QEvent::Type type, const QPointF& at, Qt::KeyboardModifiers modifiers)
{
    const bool isMove = type == QEvent::MouseMove;
    const bool isRelease = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, at, widget->mapToGlobal(at.toPoint()), isMove ? Qt::NoButton : Qt::LeftButton,
                      isRelease ? Qt::NoButton : Qt::LeftButton, modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

QString TestGradientStopsWidget::positions() const
{
    QStringList words;
    for (int i = 0; i < model->count(); ++i) {
        const QString word = QString::number(std::round(model->getPosition(i) * 1000.0) / 10.0);
        words << (i == model->getCurrent() ? '[' + word + ']' : word);
    }
    return words.join(' ');
}

void TestGradientStopsWidget::dragging()
{
    // Taken beside its middle, a handle does not jump.
    const QPointF start = handle(1) + QPointF(3.0, 0.0);
    mouse(QEvent::MouseButtonPress, start);
    QCOMPARE(model->getCurrent(), 1);
    mouse(QEvent::MouseMove, start + QPointF(1.0, 1.0));
    QCOMPARE(positions(), QString("0 [50] 100")); // a trembling hand
    mouse(QEvent::MouseMove, start + QPointF(pixels(0.17), 0.0));
    QVERIFY(std::abs(model->getPosition(1) - 0.67) < 1e-9);
    mouse(QEvent::MouseMove, start + QPointF(pixels(0.17), 0.0), Qt::ShiftModifier);
    QCOMPARE(model->getPosition(1), 0.65);
    mouse(QEvent::MouseMove, start + QPointF(pixels(2.0), 0.0));
    QCOMPARE(positions(), QString("0 [100] 100"));
    mouse(QEvent::MouseMove, start + QPointF(pixels(0.25), 0.0));
    mouse(QEvent::MouseButtonRelease, start);
    QCOMPARE(positions(), QString("0 [75] 100"));
    mouse(QEvent::MouseMove, start);
    QCOMPARE(positions(), QString("0 [75] 100"));
    model->undo();
    QCOMPARE(positions(), QString("0 [50] 100"));
    // The same from the keyboard's way out.
    mouse(QEvent::MouseButtonPress, handle(1));
    mouse(QEvent::MouseMove, handle(0));
    QTest::keyClick(widget, Qt::Key_Escape);
    QCOMPARE(positions(), QString("0 [50] 100"));
    mouse(QEvent::MouseMove, handle(2));
    QCOMPARE(positions(), QString("0 [50] 100"));
}

void TestGradientStopsWidget::draggingOff()
{
    for (const double away : {-100.0, 300.0}) {
        const QPointF start = handle(1);
        mouse(QEvent::MouseButtonPress, start);
        mouse(QEvent::MouseMove, start + QPointF(0.0, 8.0)); // a little below is still on it
        QCOMPARE(model->count(), 3);
        mouse(QEvent::MouseMove, QPointF(start.x(), away));
        QCOMPARE(model->count(), 2);
        mouse(QEvent::MouseMove, start + QPointF(pixels(0.1), 0.0));
        QCOMPARE(positions(), QString("0 [60] 100"));
        QCOMPARE(model->getColor(1), QColor(Qt::green));
        mouse(QEvent::MouseMove, QPointF(start.x(), away));
        mouse(QEvent::MouseButtonRelease, QPointF(start.x(), away));
        QCOMPARE(positions(), QString("0 [100]"));
        model->undo();
        QCOMPARE(positions(), QString("0 [50] 100"));
    }
}

void TestGradientStopsWidget::doubleClicks()
{
    QSignalSpy asked(widget, &GradientStopsWidget::colorRequested);
    const QRectF bar = widget->barRect();
    mouse(QEvent::MouseButtonDblClick, QPointF(bar.left() + pixels(0.25), bar.center().y()));
    QCOMPARE(positions(), QString("0 [25] 50 100"));
    QCOMPARE(model->getColor(1), QColor(127, 127, 0)); // half way, cut
    mouse(QEvent::MouseButtonDblClick, QPointF(bar.left() + pixels(0.77), bar.center().y()),
          Qt::ShiftModifier);
    QCOMPARE(positions(), QString("0 25 50 [75] 100"));
    QVERIFY(asked.isEmpty());
    mouse(QEvent::MouseButtonDblClick, handle(2));
    QCOMPARE(asked.takeFirst().first().toInt(), 2);
    QCOMPARE(model->count(), 5);
}

void TestGradientStopsWidget::handlesAtOnePlace()
{
    model->move(1, 0.0);
    model->setCurrent(2);
    QVERIFY(!widget->handleRect(0).intersects(widget->handleRect(1)));
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(widget->handleAt(handle(i)), i);
        QVERIFY(QRectF(widget->rect()).contains(widget->handleRect(i)));
    }
    // Where three share a place the current one can be taken.
    model->move(2, 0.0);
    model->setCurrent(1);
    QCOMPARE(widget->handleAt(handle(1)), 1);
    QCOMPARE(widget->handleAt(QPointF(-5.0, -5.0)), -1);
}

void TestGradientStopsWidget::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* name, int key, int modifiers, const char* result) {
        QTest::newRow(name) << key << modifiers << result;
    };
    row("right", Qt::Key_Right, Qt::NoModifier, "0 [53] 100");
    row("left", Qt::Key_Left, Qt::NoModifier, "0 [51] 100");
    row("fine", Qt::Key_Left, Qt::ControlModifier, "0 [51.9] 100");
    row("coarse right", Qt::Key_Right, Qt::ShiftModifier, "0 [55] 100");
    row("coarse left", Qt::Key_Left, Qt::ShiftModifier, "0 [50] 100");
    row("up", Qt::Key_Up, Qt::NoModifier, "[0] 52 100");
    row("down", Qt::Key_Down, Qt::NoModifier, "0 52 [100]");
    row("home", Qt::Key_Home, Qt::NoModifier, "[0] 52 100");
    row("end", Qt::Key_End, Qt::NoModifier, "0 52 [100]");
    row("insert", Qt::Key_Insert, Qt::NoModifier, "0 52 [76] 100");
    row("delete", Qt::Key_Delete, Qt::NoModifier, "0 [100]");
    row("other", Qt::Key_A, Qt::NoModifier, "0 [52] 100");
}

void TestGradientStopsWidget::keys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, result);
    model->move(1, 0.52);
    QTest::keyClick(widget, static_cast<Qt::Key>(key), static_cast<Qt::KeyboardModifiers>(modifiers));
    QCOMPARE(positions(), result);
    // Many steps add up exactly, and stop at the end.
    model->setStops({{0.0, Qt::red}});
    for (int i = 0; i < 70; ++i)
        QTest::keyClick(widget, Qt::Key_Right);
    QCOMPARE(model->getPosition(0), 0.7);
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(widget, Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(model->getPosition(0), 1.0);
    QSignalSpy asked(widget, &GradientStopsWidget::colorRequested);
    QTest::keyClick(widget, Qt::Key_Return);
    QCOMPARE(asked.size(), 1);
}

void TestGradientStopsWidget::tabbing()
{
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), widget);
    QCOMPARE(model->getCurrent(), 0);
    QTest::keyClick(widget, Qt::Key_Tab);
    QTest::keyClick(widget, Qt::Key_Tab);
    QCOMPARE(model->getCurrent(), 2);
    QTest::keyClick(widget, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), after);
    QTest::keyClick(after, Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), widget);
    QCOMPARE(model->getCurrent(), 2);
    model->setCurrent(1);
    QTest::keyClick(widget, Qt::Key_Tab, Qt::ControlModifier); // the short way out
    QCOMPARE(QApplication::focusWidget(), after);
}

void TestGradientStopsWidget::showsTheColors()
{
    const QRectF bar = widget->barRect();
    const auto at = [&](double position) {
        const QImage image = widget->grab().toImage();
        return image.pixelColor(qRound(bar.left() + position * bar.width()), qRound(bar.center().y()));
    };
    const QColor quarter = at(0.25);
    QVERIFY(std::abs(quarter.red() - 127) <= 2 && std::abs(quarter.green() - 127) <= 2 &&
            quarter.blue() == 0);
    // Behind transparency there is a checkerboard, not the window.
    model->setStops({{0.0, QColor(255, 0, 0, 0)}, {1.0, QColor(255, 0, 0, 0)}});
    QSet<QRgb> seen;
    for (int i = 10; i < 40; ++i)
        seen.insert(at(i / 100.0).rgb());
    QCOMPARE(seen, (QSet<QRgb>{qRgb(255, 255, 255), qRgb(176, 176, 176)}));
    // A handle shows the colour of its stop.
    model->setStops({{0.5, QColor(12, 200, 99)}});
    const QPoint middle = handle(0).toPoint() + QPoint(0, 2);
    QCOMPARE(widget->grab().toImage().pixelColor(middle), QColor(12, 200, 99));
}

void TestGradientStopsWidget::isToldAloud()
{
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Slider);
    QVERIFY(!interface->text(QAccessible::Name).isEmpty());
    model->setCurrent(1);
    QCOMPARE(interface->text(QAccessible::Value), QString("Stop 2 of 3 at 50.00 %, color #00ff00ff"));
}

int main(int argc, char* argv[])
{
    return harness::run<TestGradientStopsWidget>(argc, argv);
}

#include "tst_gradientstopswidget.moc"
