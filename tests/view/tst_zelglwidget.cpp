#include "harness/glrecorder.h"
#include "harness/harness.h"
#include "view/light.h"
#include "view/zelglwidget.h"

#include <GL/gl.h>

#include <QMatrix4x4>
#include <QMouseEvent>
#include <QSettings>
#include <QThread>
#include <QToolTip>
#include <QtTest>

#include <cfloat>
#include <cmath>
#include <functional>

using namespace Zel3D;

namespace {

const QString store = "voran-test";

/// What renderText() was last asked to write.
QString& writtenText()
{
    static QString text;
    return text;
}

/// A near quad of name 11 in the left half of the picture and a far one of name 12 that fills its upper half.
class View : public ZelGLWidget
{
public:
    explicit View(const QString& name = "plot") : ZelGLWidget(name, store, store)
    {
        selectableObjects = {
            {11, {1.5, -2.0, 1e10, true}}, {12, {4.0, 5.0, 6.0, true}}, {13, {7.0, 8.0, 9.0, false}}};
        selectionCapacity = 10;
    }
    QVector3D first() override { return lower; }
    QVector3D second() override { return upper; }
    void draw() override
    {
        ++drawn;
        glPointSize(5.0F);
        projection = matrix(GL_PROJECTION_MATRIX);
        modelView = matrix(GL_MODELVIEW_MATRIX);
        scene();
    }
    void drawWithoutTransform() override
    {
        glPointSize(3.0F);
        screenProjection = matrix(GL_PROJECTION_MATRIX);
        screenModelView = matrix(GL_MODELVIEW_MATRIX);
    }
    void select() override { scene(); }
    void loadSettings() override { hooks += "load"; }
    void saveSettings() override { hooks += "save"; }
    void initialize() { initializeGL(); }
    using ZelGLWidget::BusyScope;
    using ZelGLWidget::selectableObjects;
    using ZelGLWidget::selectionCapacity;
    using ZelGLWidget::setScalingAllowed;

    static QMatrix4x4 matrix(unsigned int name)
    {
        QMatrix4x4 result;
        glGetFloatv(name, result.data());
        return result;
    }

    QVector3D lower{0.0F, 0.0F, 0.0F};
    QVector3D upper{2.0F, 4.0F, 6.0F};
    QMatrix4x4 projection, modelView, screenProjection, screenModelView;
    QStringList hooks;
    int drawn = 0;
    unsigned int nearName = 11;

private:
    void scene() const
    {
        const auto quad = [](double x, double y, double bottom) {
            glBegin(GL_QUADS);
            glNormal3d(0.0, -1.0, 0.0);
            glVertex3d(0.0, y, bottom);
            glVertex3d(x, y, bottom);
            glVertex3d(x, y, 6.0);
            glVertex3d(0.0, y, 6.0);
            glEnd();
        };
        glPushName(nearName);
        glColor4d(1.0, 0.5, 0.0, 1.0);
        quad(1.0, 0.0, 0.0);
        glLoadName(12);
        glColor4d(0.0, 0.5, 1.0, 1.0);
        quad(2.0, 4.0, 3.0);
        glPopName();
    }
};

using Setter = std::function<bool(View&)>;

void mouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButtons buttons = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, at, widget.mapToGlobal(at.toPoint()), button, buttons, modifiers);
    static_cast<QObject&>(widget).event(&event); // the application would round the position
}

void drag(QWidget& widget, QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    mouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton, modifiers);
    mouse(widget, QEvent::MouseMove, to, Qt::LeftButton, modifiers);
}

void release(QWidget& widget, QPointF at)
{
    mouse(widget, QEvent::MouseButtonRelease, at, Qt::NoButton);
}

QVector<double> values(const ZelGLWidget& v)
{
    return {v.getRotation().x, v.getRotation().y, v.getRotation().z,      v.getScale().x,
            v.getScale().y,    v.getScale().z,    v.getViewportShift().x, v.getViewportShift().y,
            v.getZoom(),       v.getShift().x,    v.getShift().y,         v.getShift().z};
}

bool close(const QVector<double>& a, const QVector<double>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](double x, double y) { return qAbs(x - y) < 1e-9; });
}

bool same(const QMatrix4x4& a, const QMatrix4x4& b)
{
    return std::equal(a.constData(), a.constData() + 16, b.constData(),
                      [](float x, float y) { return qAbs(x - y) < 1e-4F; });
}

double picked(const QSignalSpy& spy)
{
    return spy.isEmpty() ? -1.0 : spy.last().first().value<SelectedObjectsInfo>().x;
}

} // namespace

// Takes the place of Qt's own, so that the frame rate's text can be read.
void QGLWidget::renderText(int, int, const QString& text, const QFont&)
{
    writtenText() = text;
}

Q_DECLARE_METATYPE(Setter)

class TestZelGLWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        qRegisterMetaType<ProjectionType>("Zel3D::ProjectionType");
        qRegisterMetaType<SelectedObjectsInfo>("Zel3D::SelectedObjectsInfo");
        QMetaType::registerComparators<ProjectionType>();
    }
    void init() { harness::clearStore(); }

    void settersAndSlots_data()
    {
        QTest::addColumn<Setter>("set");
        QTest::addColumn<Setter>("slot");
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<QVariantList>("arguments");
        const auto row = [](const char* signal, auto set, auto slot, const auto& value,
                            const QVariantList& arguments) {
            const Setter setter = [=](View& v) { return (v.*set)(value); };
            Setter slotCall;
            if constexpr (!std::is_null_pointer_v<decltype(slot)>)
                slotCall = [=](View& v) { return (v.*slot)(value), true; };
            QTest::newRow(signal + 1) << setter << slotCall << QByteArray(signal) << arguments;
        };
        using V = View;
        using XYZ = ValueXYZ<double>;
        const QColor red = Qt::red;
        row(SIGNAL(backgroundColorChanged(QColor)), &V::setBackgroundColor, &V::slotSetBackgroundColor, red,
            {red});
        row(SIGNAL(autoRotateChanged(bool)), &V::setAutoRotate, nullptr, false, {false});
        row(SIGNAL(deltaVelocityChanged(double)), &V::setDeltaVelocity, nullptr, 2.0, {2.0});
        row(SIGNAL(zoomChanged(double)), &V::setZoom, &V::slotSetZoom, 2.0, {2.0});
        row(SIGNAL(projectionTypeChanged(Zel3D::ProjectionType)), &V::setProjectionType,
            &V::slotSetProjectionType, Perspective, {QVariant::fromValue(Perspective)});
        row(SIGNAL(selectingChanged(bool)), &V::setSelecting, &V::slotSetSelecting, true, {true});
        row(SIGNAL(lightingChanged(bool)), &V::setLighting, &V::slotSetLighting, true, {true});
        row(SIGNAL(showLightsChanged(bool)), &V::setShowLights, &V::slotSetShowLights, true, {true});
        row(SIGNAL(showInfoChanged(bool)), &V::setShowInfo, &V::slotSetShowInfo, true, {true});
        row(SIGNAL(rotationChanged(double, double, double)), &V::setRotation, &V::slotSetRotation,
            XYZ{400.5, 2.0, -3.0}, {400.5, 2.0, -3.0});
        row(SIGNAL(shiftChanged(double, double, double)), &V::setShift, &V::slotSetShift, XYZ{1.0, 2.0, 3.0},
            {1.0, 2.0, 3.0});
        row(SIGNAL(vieportShiftChanged(double, double)), &V::setViewportShift, &V::slotSetViewportShift,
            ValueXY<double>{0.0, 2.0}, {0.0, 2.0});
        row(SIGNAL(scaleChanged(double, double, double)), &V::setScale, &V::slotSetScale, XYZ{0.0, 2.0, -1.0},
            {1.0, 2.0, 1.0});
    }

    void settersAndSlots()
    {
        QFETCH(Setter, set);
        QFETCH(Setter, slot);
        QFETCH(QByteArray, signal);
        QFETCH(QVariantList, arguments);
        View view;
        const QSignalSpy spy(&view, signal.constData());
        QVERIFY(spy.isValid());
        if (slot) {
            slot(view);
            QCOMPARE(spy.count(), 0);
        }
        QVERIFY(set(view));
        QVERIFY(!set(view));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first(), arguments);
        if (!slot)
            return;
        View shown;
        QVERIFY(harness::show(shown, 100, 100));
        const QSignalSpy shownSpy(&shown, signal.constData());
        for (int i = 0; i < 2; ++i) {
            const int before = shown.drawn;
            slot(shown);
            QCOMPARE(shown.drawn, before + (i == 0 ? 1 : 0));
        }
        QCOMPARE(shownSpy.count(), 1);
    }

    void valuesThatAreReplaced()
    {
        View view;
        for (double zoom : {0.0, -1.0, 1e-300, qQNaN()}) {
            QVERIFY(view.setZoom(zoom));
            QCOMPARE(view.getZoom(), DBL_EPSILON);
            QVERIFY(view.setZoom(2.0));
        }
        QVERIFY(view.setScale({DBL_EPSILON, qQNaN(), 3.0}));
        QVERIFY(view.getScale().x == DBL_EPSILON && view.getScale().y == 1.0 && view.getScale().z == 3.0);
        QVERIFY(view.setRotation({1.0, 0.0, 0.0}));
        QVERIFY(!view.setRotation({1.0 + DBL_EPSILON, 0.0, 0.0}));
        QVERIFY(view.setRotation({1.0, 0.0, 1e-300}));
        const QSignalSpy selected(&view, SIGNAL(selectedObject(Zel3D::SelectedObjectsInfo)));
        view.setSelecting(true);
        QCOMPARE(selected.count(), 0);
        view.setSelecting(false);
        QCOMPARE(selected.count(), 1);
        QVERIFY(!selected.first().first().value<SelectedObjectsInfo>().valid);
        QVERIFY(harness::show(view, 100, 100));
        view.setScalingAllowed(false);
        view.slotSetScale({2.0, 2.0, 2.0});
        QCOMPARE(view.getScale().z, 3.0);
        QCOMPARE(view.sizeHint(), QSize(400, 400));
        QCOMPARE(view.minimumSizeHint(), QSize(50, 50));
    }

    void cameraMatrix_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QVector3D>("upper");
        QTest::newRow("orthogonal") << int(Orthogonal) << QVector3D(2, 4, 6);
        QTest::newRow("perspective") << int(Perspective) << QVector3D(2, 4, 6);
        QTest::newRow("orthogonal, empty box") << int(Orthogonal) << QVector3D();
        QTest::newRow("perspective, empty box") << int(Perspective) << QVector3D();
        QTest::newRow("box that is flat in two directions") << int(Orthogonal) << QVector3D(0, 4, 0);
    }

    void cameraMatrix()
    {
        QFETCH(int, type);
        QFETCH(QVector3D, upper);
        View view;
        view.upper = upper;
        QVERIFY(harness::show(view, 200, 100));
        view.setProjectionType(ProjectionType(type));
        view.setRotation({20.0, 30.0, 40.0});
        view.setShift({0.1, 0.2, 0.3});
        view.setViewportShift({0.25, -0.5});
        view.setScale({1.0, 2.0, 3.0});
        view.setZoom(1.5);
        view.updateGL();

        const QVector3D center = upper / 2.0F;
        const float r = center.length();
        const float side = upper.isNull() ? 1.0F : r;
        QMatrix4x4 expected;
        if (type == Orthogonal)
            expected.ortho(-side, side, -side, side, upper.isNull() ? 10.0F : 0.0F,
                           upper.isNull() ? 100.0F : 40.0F * r);
        else
            expected.frustum(-side, side, -side, side, upper.isNull() ? 10.0F : 5.0F * r,
                             upper.isNull() ? 100.0F : 400.0F * r);
        expected.translate(0.5F * r, -r, -7.0F * r);
        expected.rotate(-70.0F, 1.0F, 0.0F, 0.0F);
        expected.rotate(30.0F, 0.0F, 1.0F, 0.0F);
        expected.rotate(40.0F, 0.0F, 0.0F, 1.0F);
        expected.scale(1.5F, 3.0F, 4.5F);
        expected.translate(QVector3D(0.1F, 0.2F, 0.3F) - center);
        QVERIFY(same(view.projection, expected));
        QVERIFY(view.modelView.isIdentity());
        QVERIFY(view.screenProjection.isIdentity());
        QMatrix4x4 upright;
        upright.rotate(-90.0F, 1.0F, 0.0F, 0.0F);
        QVERIFY(same(view.screenModelView, upright));
    }

    void frameOrder()
    {
        View view;
        view.setBackgroundColor(QColor(255, 0, 51, 102));
        view.getLights().at(2)->setOn(true);
        QVERIFY(harness::show(view, 200, 100));
        for (int mode = 0; mode < 4; ++mode) { // bit 0: lighting, bit 1: markers
            const bool lighting = mode & 1;
            view.setLighting(lighting);
            view.setShowLights(mode & 2);
            view.makeCurrent();
            glEnable(GL_LIGHTING);
            const GLRecorder recorder;
            view.updateGL();
            const QString on = QString("glEnable(%1)").arg(GL_LIGHTING);
            const QString off = QString("glDisable(%1)").arg(GL_LIGHTING);
            int at = 0;
            QStringList order{"glClearColor(1,0,0.2", "glClear(", "glRotatef(-90,1,0,0)", off,
                              "glPointSize(3)"};
            if (lighting)
                order += {on, "glOrtho(", QString("glDisable(%1)").arg(GL_LIGHT1),
                          QString("glEnable(%1)").arg(GL_LIGHT2)};
            if (mode == 3)
                order += "glLineWidth(2)";
            order += "glPointSize(5)";
            if (lighting)
                order += off;
            for (const QString& call : qAsConst(order)) {
                const int next = recorder.indexOf(call, at);
                QVERIFY2(next >= 0, qPrintable(QString("mode %1: %2").arg(mode).arg(call)));
                at = next + 1;
            }
            QCOMPARE(recorder.calls().mid(1).contains(on), lighting);
            QCOMPARE(recorder.count("glLineWidth"), mode == 3 ? 8 : 0);
            QCOMPARE(recorder.primitives(GL_QUADS).size(), 2);
            QCOMPARE(recorder.count("glPushMatrix"), recorder.count("glPopMatrix"));
            QVERIFY(!glIsEnabled(GL_LIGHTING));
            for (int name : {GL_MODELVIEW_STACK_DEPTH, GL_PROJECTION_STACK_DEPTH}) {
                int depth = 0;
                glGetIntegerv(unsigned(name), &depth);
                QCOMPARE(depth, 1);
            }
            QVERIFY(View::matrix(GL_MODELVIEW_MATRIX).isIdentity() &&
                    View::matrix(GL_PROJECTION_MATRIX).isIdentity());
            QCOMPARE(glGetError(), GLenum(GL_NO_ERROR));
        }
        const View::BusyScope busy(view);
        {
            const View::BusyScope inner(view);
        }
        const GLRecorder recorder;
        view.updateGL();
        QCOMPARE(recorder.count("glClear"), 0);
    }

    void frameRate()
    {
        View view;
        QVERIFY(harness::show(view, 50, 50));
        const auto frame = [&](unsigned long milliseconds) {
            QThread::msleep(milliseconds);
            writtenText().clear();
            view.updateGL();
            return writtenText();
        };
        view.setShowInfo(true);
        QVERIFY(frame(5).isEmpty());       // starts the clock
        const QString second = frame(200); // one frame in at least 0.2 s
        QVERIFY2(QRegularExpression("^[0-5]\\.\\d\\d fps$").match(second).hasMatch(), qPrintable(second));
        for (int i = 2; i < 100; ++i)
            frame(0);
        const double hundredth = frame(0).section(' ', 0, 0).toDouble();
        QVERIFY(hundredth > 10.0);
        // The clock was restarted: again one frame in at least 0.2 s.
        QVERIFY(frame(200).section(' ', 0, 0).toDouble() <= 5.0);
        view.setShowInfo(false);
        view.setShowInfo(true);
        QVERIFY(frame(5).isEmpty());
    }

    void dragsAndWheel()
    {
        View view;
        QVERIFY(harness::show(view, 200, 100));
        const QVector<double> start{0, 0, 0, 1, 1, 1, 0, 0, 1, 0, 0, 0};
        const auto changed = [&](const QMap<int, double>& changes) {
            QVector<double> expected = start;
            for (auto change = changes.cbegin(); change != changes.cend(); ++change)
                expected[change.key()] = change.value();
            const bool same = close(values(view), expected);
            view.slotDefault();
            return same;
        };
        drag(view, {10.4, 10.4}, {20.6, 15.4}); // whole pixels: 11 and 5
        QVERIFY(changed({{0, 54.0}, {2, 59.0}}));
        mouse(view, QEvent::MouseMove, {21.6, 15.4}); // from the last position on
        QVERIFY(changed({{2, 5.0}}));
        drag(view, {10, 10}, {10, 90}, Qt::AltModifier); // down to 0, which becomes 1
        QVERIFY(changed({}));
        drag(view, {10, 10}, {10, 90}, Qt::ControlModifier | Qt::AltModifier);
        QVERIFY(changed({{8, DBL_EPSILON}}));
        drag(view, {10, 10}, {30, 20}, Qt::ControlModifier);
        QVERIFY(changed({{6, 0.2}, {7, -0.2}}));
        mouse(view, QEvent::MouseMove, {50, 50}, Qt::NoButton); // the release went elsewhere
        mouse(view, QEvent::MouseMove, {60, 60});
        QVERIFY(changed({}));
        const auto wheel = [&](int angle, Qt::KeyboardModifiers modifiers) {
            QWheelEvent event({5, 5}, view.mapToGlobal({5, 5}), {}, {0, angle}, Qt::NoButton, modifiers,
                              Qt::NoScrollPhase, false);
            const int before = view.drawn;
            QCoreApplication::sendEvent(&view, &event);
            return view.drawn - before;
        };
        QCOMPARE(wheel(120, Qt::NoModifier), 1);
        QVERIFY(changed({{8, 1.051271096376024}}));
        QCOMPARE(wheel(-120, Qt::ShiftModifier | Qt::ControlModifier), 1);
        QVERIFY(changed({{5, 0.951229424500714}}));
        QCOMPARE(wheel(0, Qt::NoModifier), 0);
        view.setMouseEnabled(false);
        QCOMPARE(wheel(120, Qt::NoModifier), 0);
        drag(view, {10, 10}, {30, 20});
        QVERIFY(changed({}));
    }

    void autoRotation()
    {
        View view;
        QVERIFY(harness::show(view, 100, 100));
        const auto turns = [&](QPointF step) {
            drag(view, {50, 50}, QPointF(50, 50) + step);
            release(view, QPointF(50, 50) + step);
            return view.isAutoRotating();
        };
        QVERIFY(!turns({1.0, -1.0})); // must exceed the velocity
        QVERIFY(turns({0.0, 1.5}));
        QVERIFY(turns({-10.0, 0.0}));
        const ValueXYZ<double> before = view.getRotation();
        const QSignalSpy rotated(&view, SIGNAL(rotationChanged(double, double, double)));
        view.updateGL(); // 10 pixels of 100 make 3.6 degrees a step
        QCOMPARE(rotated.count(), 1);
        QCOMPARE(view.getRotation().z, before.z - 4.0);
        QCOMPARE(view.getRotation().x, before.x);
        QTRY_VERIFY(rotated.count() > 3); // the timer goes on
        mouse(view, QEvent::MouseButtonPress, {50, 50});
        QVERIFY(!view.isAutoRotating());
        release(view, {50, 50}); // the press zeroed the step
        QVERIFY(!view.isAutoRotating());
        view.setDeltaVelocity(-1.0);
        QVERIFY(!turns({0.0, 0.0}));
        QVERIFY(turns({1.0, 0.0})); // 0.36 degrees round to nothing
        view.updateGL();
        QVERIFY(!view.isAutoRotating());
        const std::function<void()> stops[] = {[&] { view.hide(); }, [&] { view.close(); },
                                               [&] { view.setAutoRotate(false); }};
        for (const auto& stop : stops) {
            view.show();
            QVERIFY(turns({10.0, 0.0}));
            stop();
            QVERIFY(!view.isAutoRotating());
        }
        QVERIFY(!turns({10.0, 0.0}));
    }

    void keys()
    {
        View view;
        QVERIFY(harness::show(view, 200, 100));
        const auto switches = [&] {
            return view.isLighting() + 2 * view.isSelecting() + 4 * view.isShowInfo();
        };
        const int letters[] = {Qt::Key_L, Qt::Key_S, Qt::Key_I};
        for (int i = 0; i < 3; ++i) {
            view.setHotKeyMask(31U & ~(1U << i));
            QTest::keyClick(&view, Qt::Key(letters[i]));
            QCOMPARE(switches(), 0);
            view.setHotKeyMask(1U << i);
            QTest::keyClick(&view, Qt::Key(letters[i]));
            QCOMPARE(switches(), 1 << i);
            QTest::keyClick(&view, Qt::Key(letters[i]));
            QCOMPARE(switches(), 0);
        }
        const int before = view.drawn;
        QTest::keyClick(&view, Qt::Key_Down);
        QCOMPARE(view.getRotation().x, 11.0);
        QCOMPARE(view.drawn, before + 1);
        view.setKeySpeed(6.0, 5.0, 5.0);
        QTest::keyClick(&view, Qt::Key_Up);
        QCOMPARE(view.getRotation().x, -11.0); // 11 - 21.6
        view.setKeyboardEnabled(false);
        QKeyEvent ignored(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
        ignored.accept();
        QCoreApplication::sendEvent(&view, &ignored);
        QVERIFY(!ignored.isAccepted());
        QCOMPARE(view.getRotation().x, -11.0);
        view.setHotKeyMask(31);
        QTest::keyClick(&view, Qt::Key_L); // the letters do not depend on it
        QVERIFY(view.isLighting());
    }

    void bindingArguments()
    {
        View view;
        const auto m = [](int i) { return MouseBinding(Qt::MouseButtons(1 << i), Qt::NoModifier); };
        const auto k = [](int i) { return KeyBinding(i, Qt::NoModifier); };
        view.assignMouseRotation(m(0), m(1), m(2));
        view.assignMouseScale(m(3), m(4), m(5));
        view.assignMouseZoom(m(6));
        view.assignMouseShift(m(7), m(8));
        view.assignKeyboardRotation(k(0), k(1), k(2), k(3), k(4), k(5));
        view.assignKeyboardScale(k(6), k(7), k(8), k(9), k(10), k(11));
        view.assignKeyboardZoom(k(12), k(13));
        view.assignKeyboardShift(k(14), k(15), k(16), k(17));
        const MouseBindings& b = view.getMouseBindings();
        int i = 0;
        for (const MouseBinding& binding :
             {b.rotateX, b.rotateY, b.rotateZ, b.scaleX, b.scaleY, b.scaleZ, b.zoom, b.shiftX, b.shiftY})
            QCOMPARE(binding, m(i++));
        const KeyBindings& key = view.getKeyBindings();
        i = 0;
        for (const KeyBinding& binding :
             {key.rotateXPlus, key.rotateXMinus, key.rotateYPlus, key.rotateYMinus, key.rotateZPlus,
              key.rotateZMinus, key.scaleXPlus, key.scaleXMinus, key.scaleYMinus, key.scaleYPlus,
              key.scaleZMinus, key.scaleZPlus, key.zoomOut, key.zoomIn, key.shiftXPlus, key.shiftXMinus,
              key.shiftYMinus, key.shiftYPlus})
            QCOMPARE(binding, k(i++));
    }

    void picksUnderTheCursor()
    {
        View view;
        QVERIFY(harness::show(view, 300, 200));
        const QSignalSpy spy(&view, SIGNAL(selectedObject(Zel3D::SelectedObjectsInfo)));
        const auto at = [&](double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
            view.findObjects({x, y}, modifiers);
            return picked(spy);
        };
        QCOMPARE(at(130, 100), -1.0); // selecting is off
        view.setSelecting(true);
        // The box's radius is 3.742: the quads reach from 109.9 to 190.1 across and from 19.8 to 180.2 down.
        QCOMPARE(at(130, 60), 1.5);
        QCOMPARE(at(170, 60), 4.0);
        QCOMPARE(at(130, 140), 1.5);
        QCOMPARE(at(170, 140), 0.0); // the far quad is in the upper half
        const double pixel = 1.0 / view.devicePixelRatioF();
        QCOMPARE(at(170, 100 + 2 * pixel), 4.0); // two device pixels beside it still hit
        QCOMPARE(at(170, 100 + 3 * pixel), 0.0);
        QCOMPARE(at(109.9 - 2 * pixel, 60), 1.5);
        QCOMPARE(at(109.9 - 3 * pixel, 60), 0.0);
        QCOMPARE(at(130, 60), 1.5);
        QCOMPARE(at(130, 60, Qt::ShiftModifier), 0.0);
        view.assignSelecting(Qt::ShiftModifier);
        QCOMPARE(at(130, 60, Qt::ShiftModifier), 1.5);
        QCOMPARE(at(130, 60), 0.0);
        view.assignSelecting(Qt::NoModifier);
        view.nearName = 99; // not in the table
        QCOMPARE(at(130, 140), 0.0);
        view.nearName = 13; // in the table, but not valid
        QCOMPARE(at(130, 140), 0.0);
        view.nearName = 11;
        view.selectionCapacity = 1; // one record of four words, two hits
        QCOMPARE(at(130, 60), 0.0);
        view.selectionCapacity = 10;

        mouse(view, QEvent::MouseMove, {130, 60}, Qt::NoButton); // hovering
        QCOMPARE(picked(spy), 1.5);
        view.slotSetRotation({0.0, 0.0, 180.0}); // the far quad comes to the front
        QCOMPARE(picked(spy), 4.0);
        view.slotSetRotation({0.0, 0.0, 0.0});
        const int before = spy.count();
        drag(view, {150, 100}, {152, 100});
        release(view, {152, 100});
        QVERIFY(view.isAutoRotating());
        const int dragged = spy.count();
        QVERIFY(dragged > before);
        mouse(view, QEvent::MouseMove, {130, 60}, Qt::NoButton); // no picking by hand while it turns
        QCOMPARE(spy.count(), dragged);
        view.setDeltaVelocity(1000.0);
        drag(view, {150, 100}, {190, 100});
        view.updateGL();
        view.makeCurrent();
        int mode = 0;
        glGetIntegerv(GL_RENDER_MODE, &mode);
        QCOMPARE(mode, GL_RENDER);
        QVERIFY(View::matrix(GL_PROJECTION_MATRIX).isIdentity());
        QCOMPARE(glGetError(), GLenum(GL_NO_ERROR));
    }

    void picksWithToolTips()
    {
        View view;
        QVERIFY(harness::show(view, 300, 200));
        view.setSelecting(true);
        view.findObjects({130, 60}, Qt::NoModifier);
        QVERIFY(!QToolTip::isVisible());
        view.setShowToolTips(true);
        for (const QPointF& miss : {QPointF(250, 100), QPointF(130, 60)}) {
            view.findObjects({130, 60}, Qt::NoModifier);
            QCOMPARE(QToolTip::text(), QString("1.5; -2; 1e+10"));
            view.findObjects(miss, miss.x() > 200 ? Qt::NoModifier : Qt::ControlModifier);
            QTRY_VERIFY(!QToolTip::isVisible());
        }
    }

    void lightsFollowTheView()
    {
        View view;
        QCOMPARE(view.getLights().size(), 8);
        for (int i = 0; i < 8; ++i) {
            const Light* light = view.getLights().at(i);
            QCOMPARE(light->getNumber(), unsigned(i));
            QCOMPARE(light->getRadius(), 1.7320508075688774);
            QCOMPARE(light->getPhi(), 45.0 * i);
            QCOMPARE(light->getTheta(), 45.0);
            QVERIFY(!light->isOn());
        }
        QVERIFY(harness::show(view, 100, 100));
        view.makeCurrent();
        QVERIFY(view.getNumberLights() >= 8);
        view.updateLights();
        for (int i = 0; i < 2; ++i) { // painted even when nothing changed
            const int before = view.drawn;
            view.slotSetLightsRadius(3.0);
            view.slotSetLightsHeight(0.25);
            QCOMPARE(view.drawn, before + 2);
        }
        for (const Light* light : view.getLights()) {
            QCOMPARE(light->getCenter(), QVector3D(1, 2, 3));
            QCOMPARE(light->getRadius(), 3.0);
            QCOMPARE(light->getMarkerHeight(), 0.25);
        }
    }

    void keysAndRoundTrip()
    {
        const QMap<QString, QVariant> expected{{"autoRotate", false},    {"backgroundColor", QColor(Qt::red)},
                                               {"deltaVelocity", 2.5},   {"lighting", true},
                                               {"projectionType", 1},    {"rotationX", 1.5},
                                               {"rotationY", 2.5},       {"rotationZ", 3.5},
                                               {"scaleX", 4.5},          {"scaleY", 5.5},
                                               {"scaleZ", 6.5},          {"selecting", true},
                                               {"shiftX", 7.5},          {"shiftY", 8.5},
                                               {"shiftZ", 9.5},          {"viewportShiftX", 10.5},
                                               {"viewportShiftY", 11.5}, {"zoom", 12.5}};
        QSettings settings(store, store);
        for (auto item = expected.cbegin(); item != expected.cend(); ++item)
            settings.setValue("plot/" + item.key(), item.value());
        settings.setValue("plot/light7/on", true);
        settings.sync();
        View view;
        const QSignalSpy zoomed(&view, SIGNAL(zoomChanged(double)));
        view.slotLoadSettings();
        QCOMPARE(zoomed.count(), 1);
        QCOMPARE(values(view),
                 (QVector<double>{1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 10.5, 11.5, 12.5, 7.5, 8.5, 9.5}));
        QVERIFY(!view.isAutoRotate() && view.isLighting() && view.isSelecting());
        QCOMPARE(view.getBackgroundColor(), QColor(Qt::red));
        QCOMPARE(view.getDeltaVelocity(), 2.5);
        QCOMPARE(view.getProjectionType(), Perspective);
        QVERIFY(view.getLights().at(7)->isOn() && !view.getLights().at(0)->isOn());
        View other;
        QVERIFY(harness::show(other, 100, 100));
        other.slotLoadSettings();
        const int before = other.drawn;
        other.slotDefault(); // the camera alone
        QCOMPARE(other.drawn, before + 1);
        QCOMPARE(values(other), values(View()));
        QVERIFY(other.isLighting() && other.getProjectionType() == Perspective);

        settings.clear();
        settings.sync();
        view.slotSaveSettings();
        QCOMPARE(view.hooks, (QStringList{"load", "save"}));
        settings.sync();
        QStringList keys =
            settings.allKeys().filter(QRegularExpression("^plot/[^/]*$")).replaceInStrings("plot/", "");
        keys.sort();
        QCOMPARE(keys, QStringList(expected.keys()));
        for (auto item = expected.cbegin(); item != expected.cend(); ++item) {
            QVariant saved = settings.value("plot/" + item.key());
            QVERIFY2(saved.convert(int(item.value().type())) && saved == item.value(),
                     qPrintable(item.key()));
        }
        QCOMPARE(settings.allKeys().size(), expected.size() + 8 * 7);
        QVERIFY(settings.value("plot/light7/on").toBool() && settings.contains("plot/light0/spot/cutoff"));

        // A list converts to nothing: false, 0 and an invalid colour, which the setters absorb.
        for (auto item = expected.cbegin(); item != expected.cend(); ++item)
            settings.setValue("plot/" + item.key(), QVariantList{1, 2});
        settings.sync();
        view.slotLoadSettings();
        QCOMPARE(values(view), (QVector<double>{0, 0, 0, 1, 1, 1, 0, 0, DBL_EPSILON, 0, 0, 0}));
        QVERIFY(!view.getBackgroundColor().isValid() && !view.isLighting() && !view.isSelecting());
        QCOMPARE(view.getProjectionType(), Orthogonal);
        QCOMPARE(view.getDeltaVelocity(), 0.0);
    }

    void newContextGivesTheSamePicture()
    {
        View view;
        view.setLighting(true);
        view.getLights().at(3)->setOn(true);
        view.getLights().at(3)->setType(Light::Dotted);
        view.getLights().at(3)->setDiffuse(Qt::yellow);
        QVERIFY(harness::show(view, 100, 100));
        view.updateLights();
        const QImage picture = harness::grab(view);
        const QRgb lit = picture.pixel(45, 70);
        QVERIFY(lit != qRgb(255, 255, 255));
        view.getLights().at(3)->setOn(false);
        QVERIFY(harness::grab(view).pixel(45, 70) != lit);
        view.getLights().at(3)->setOn(true);
        view.makeCurrent();
        view.initialize();
        QVERIFY(view.isInitialized());
        QVERIFY(harness::grab(view) == picture);
        view.setFormat(QGLFormat(QGL::DoubleBuffer | QGL::SampleBuffers));
        const QImage again = harness::grab(view);
        QVERIFY(view.context()->isValid());
        QVERIFY(again == picture);
    }

    void viewsDoNotShareLights()
    {
        View first("first");
        View second("second");
        for (View* view : {&first, &second}) {
            view->setLighting(true);
            view->getLights().at(1)->setOn(true);
            QVERIFY(harness::show(*view, 100, 100));
            view->updateLights();
        }
        const QImage before = harness::grab(second);
        Light* light = first.getLights().at(1);
        const QImage firstBefore = harness::grab(first);
        second.makeCurrent();
        light->setDiffuse(Qt::black);
        light->setAmbient(Qt::black);
        light->setCenter({50.0F, 50.0F, 50.0F});
        second.updateGL();
        QVERIFY(harness::grab(second) == before);
        QVERIFY(harness::grab(first) != firstBefore);
        QVERIFY(harness::grab(second) == before);
    }
};

int main(int argc, char* argv[])
{
    return harness::run<TestZelGLWidget>(argc, argv);
}

#include "tst_zelglwidget.moc"
