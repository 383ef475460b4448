// Life, paint order and camera of the view.

#include "view/zelglwidget.h"

#include "view/contextcheck.h"
#include "view/contextnote.h"
#include "view/interaction.h"
#include "view/light.h"
#include "view/opengl.h"

#include <QCloseEvent>
#include <QTimer>

#include <array>
#include <cfloat>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int lightCount = 8;
constexpr double lightRadius = 1.7320508075688774;
constexpr int autoRotationInterval = 10; // ms
constexpr int framesPerRun = 100;
constexpr int restInterval = 180; // ms

} // namespace

ZelGLWidget::ZelGLWidget(const QString& name, const QString& organizationName, const QString& applicationName,
                         QWidget* parent, const QGLWidget* shareWidget, Qt::WindowFlags flags)
    : QGLWidget(ContextCheck::wantedFormat(), parent, shareWidget, flags),
      organization(organizationName),
      application(applicationName)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    for (int i = 0; i < lightCount; ++i)
        lights.append(new Light(unsigned(i), lightRadius, 45.0 * i, 45.0, nullptr));
    autoRotationTimer = new QTimer(this);
    autoRotationTimer->setInterval(autoRotationInterval);
    connect(autoRotationTimer, &QTimer::timeout, this, &ZelGLWidget::updateGL);
    restTimer = new QTimer(this);
    restTimer->setInterval(restInterval);
    connect(restTimer, &QTimer::timeout, this, &ZelGLWidget::rest);
}

ZelGLWidget::~ZelGLWidget()
{
    qDeleteAll(lights);
}

QSize ZelGLWidget::sizeHint() const
{
    return {400, 400};
}

QSize ZelGLWidget::minimumSizeHint() const
{
    return {50, 50};
}

bool ZelGLWidget::isAutoRotating() const
{
    return autoRotationTimer->isActive();
}

bool ZelGLWidget::isContextCurrent() const
{
    return isValid() && QGLContext::currentContext() == context();
}

void ZelGLWidget::initializeGL()
{
    // The context may be a new one: until everything in it is made, the slots must not paint. Lighting itself
    // is off between frames; paintGL() switches it on where it is wanted.
    initialized = false;
    uselessContext = ContextCheck::hasFixedFunction() ? nullptr : context();
    if (!reviewContext())
        return;
    glEnable(GL_BLEND);
    glEnable(GL_DEPTH_TEST);
    glShadeModel(GL_SMOOTH);
    glEnable(GL_COLOR_MATERIAL);
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, 1);
    const std::array<float, 4> ambient{0.2F, 0.2F, 0.2F, 1.0F};
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, ambient.data());
    for (Light* light : qAsConst(lights)) {
        if (light)
            light->init();
    }
    initialized = true;
}

void ZelGLWidget::resizeGL(int width, int height)
{
    if (!initialized)
        return;
    glViewport(0, 0, width, height);
    paintGL();
}

void ZelGLWidget::paintGL()
{
    if (busy || !initialized)
        return;
    if (isAutoRotating())
        autoRotationStep();
    paintFrame(backgroundColor, showLights);
    if (showInfo)
        drawInfo();
}

void ZelGLWidget::paintFrame(const QColor& clearColor, bool lightMarkers)
{
    glClearColor(float(clearColor.redF()), float(clearColor.greenF()), float(clearColor.blueF()),
                 float(clearColor.alphaF()));
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);

    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glRotatef(-90.0F, 1.0F, 0.0F, 0.0F);
    glRotatef(0.0F, 0.0F, 1.0F, 0.0F);
    glRotatef(0.0F, 0.0F, 0.0F, 1.0F);
    glDisable(GL_LIGHTING);
    drawWithoutTransform();
    glMatrixMode(GL_MODELVIEW);
    glPopMatrix();

    if (lighting)
        glEnable(GL_LIGHTING);
    drawScene(lightMarkers);
    if (lighting)
        glDisable(GL_LIGHTING);
}

void ZelGLWidget::drawScene(bool lightMarkers)
{
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    orthoGL();
    if (lighting) {
        applyLights();
        if (lightMarkers)
            drawLights();
    }
    draw();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
}

void ZelGLWidget::drawInfo()
{
    const double seconds = frameClock.isValid() ? double(frameClock.elapsed()) / 1000.0 : 0.0;
    if (std::abs(seconds) > DBL_MIN) {
        qglColor(Qt::black);
        renderText(20, 20, tr("%0 fps").arg(QString::number(frameCounter / seconds, 'f', 2)), QFont());
    }
    if (frameCounter % framesPerRun == 0) {
        frameClock.start();
        frameCounter = 1;
    } else {
        ++frameCounter;
    }
}

void ZelGLWidget::autoRotationStep()
{
    const ValueXYZ<double> turned = Interaction::autoRotated(rotation, dragStep, size(), mouseBindings);
    if (setRotation(turned))
        findObjects(mousePosition, Qt::NoModifier);
    else
        autoRotationTimer->stop();
}

void ZelGLWidget::orthoGL()
{
    const double r = getRadius();
    const QVector3D c = getCenter();
    // A box so small that its radius is no number above zero counts as empty, too: OpenGL takes no such
    // volume.
    const bool empty = !(r > 0.0);
    const double windowAspect = double(qMax(width(), 1)) / qMax(height(), 1);
    const double aspect = !keepProportions ? 1.0 : frameAspect > 0.0 ? frameAspect : windowAspect;
    const double halfWidth = (empty ? 1.0 : r) * qMax(aspect, 1.0);
    const double halfHeight = (empty ? 1.0 : r) * qMax(1.0 / aspect, 1.0);
    const auto volume = projectionType == Orthogonal ? glOrtho : glFrustum;
    if (empty)
        volume(-halfWidth, halfWidth, -halfHeight, halfHeight, 10.0, 100.0);
    else
        volume(-halfWidth, halfWidth, -halfHeight, halfHeight, projectionType == Orthogonal ? 0.0 : 5.0 * r,
               (projectionType == Orthogonal ? 40.0 : 400.0) * r);
    glTranslatef(float(2.0 * viewportShift.x * r), float(2.0 * viewportShift.y * r), float(-7.0 * r));
    glRotatef(float(rotation.x - 90.0), 1.0F, 0.0F, 0.0F);
    glRotatef(float(rotation.y), 0.0F, 1.0F, 0.0F);
    glRotatef(float(rotation.z), 0.0F, 0.0F, 1.0F);
    glScalef(float(scale.x * zoom), float(scale.y * zoom), float(scale.z * zoom));
    glTranslatef(float(shift.x - double(c.x())), float(shift.y - double(c.y())),
                 float(shift.z - double(c.z())));
}

QVector3D ZelGLWidget::getCenter()
{
    return first() + (second() - first()) * 0.5F;
}

double ZelGLWidget::getRadius()
{
    return double((getCenter() - first()).length());
}

int ZelGLWidget::getNumberLights() const
{
    int number = 0;
    glGetIntegerv(GL_MAX_LIGHTS, &number);
    return number;
}

void ZelGLWidget::applyLights()
{
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    for (Light* light : qAsConst(lights)) {
        if (light)
            light->apply();
    }
    glPopMatrix();
}

void ZelGLWidget::drawLights()
{
    const QVector3D center = getCenter();
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glTranslatef(center.x(), center.y(), center.z());
    for (Light* light : qAsConst(lights)) {
        if (light)
            light->draw();
    }
    glPopMatrix();
}

void ZelGLWidget::updateLights()
{
    const QVector3D center = getCenter();
    for (Light* light : qAsConst(lights)) {
        if (light)
            light->setCenter(center);
    }
}

void ZelGLWidget::drawWithoutTransform() {}

void ZelGLWidget::loadSettings() {}

void ZelGLWidget::saveSettings() {}

void ZelGLWidget::closeEvent(QCloseEvent* event)
{
    autoRotationTimer->stop();
    QGLWidget::closeEvent(event);
}

void ZelGLWidget::hideEvent(QHideEvent* event)
{
    autoRotationTimer->stop();
    mousePressed = false;
    setHandled(false);
    QGLWidget::hideEvent(event);
}

} // namespace Zel3D
