#pragma once

#include "core/export.h"
#include "core/types.h"
#include "view/bindings.h"

#include <QColor>
#include <QElapsedTimer>
#include <QGLWidget>
#include <QHash>
#include <QList>
#include <QPointF>
#include <QPointer>
#include <QVector>

#include <array>

class QTimer;

namespace Zel3D {

class ContextNote;
class Light;
struct ViewPose;

/// The OpenGL widget that every plot is: camera, paint loop, lights, interaction, picking and the persistence
/// of the view.
///
/// Draws nothing of its own: it calls draw(), drawWithoutTransform() and select() of the derived class and
/// places the scene by the corners first() and second(). Setters store, emit their signal and do not repaint;
/// the slots named slotSet... call the setter and repaint, and do nothing before the widget's OpenGL context
/// is set up.
class VORANPLOT_EXPORT ZelGLWidget : public QGLWidget
{
    Q_OBJECT
    // For forms; unlike the setters, writing a property repaints.
    Q_PROPERTY(Zel3D::ProjectionType projectionType READ getProjectionType WRITE writeProjectionType NOTIFY
                   projectionTypeChanged)
    Q_PROPERTY(double zoom READ getZoom WRITE writeZoom NOTIFY zoomChanged)
public:
    /// \a name becomes the object name and the prefix of every settings key; \a organization and \a
    /// application name the QSettings store. \a shareWidget, if given, shares its display lists.
    ZelGLWidget(const QString& name, const QString& organization, const QString& application,
                QWidget* parent = nullptr, const QGLWidget* shareWidget = nullptr,
                Qt::WindowFlags flags = {});
    ~ZelGLWidget() override;

    QSize sizeHint() const override;        ///< 400 x 400
    QSize minimumSizeHint() const override; ///< 50 x 50

    /// @name Reading
    /// @{
    const QString& getOrganization() const { return organization; }
    const QString& getApplication() const { return application; }
    const QColor& getBackgroundColor() const { return backgroundColor; }
    bool isAutoRotate() const { return autoRotate; }
    double getDeltaVelocity() const { return deltaVelocity; }
    const ValueXYZ<double>& getRotation() const { return rotation; } ///< degrees about x, y, z
    const ValueXYZ<double>& getShift() const { return shift; }       ///< scene units
    const ValueXY<double>& getViewportShift() const
    {
        return viewportShift;
    } ///< fractions of the view radius
    const ValueXYZ<double>& getScale() const { return scale; }
    double getZoom() const { return zoom; }
    ProjectionType getProjectionType() const { return projectionType; }
    bool isSelecting() const { return selecting; }
    bool isLighting() const { return lighting; }
    bool isShowLights() const { return showLights; }
    bool isShowInfo() const { return showInfo; }
    bool isShowToolTips() const { return showToolTips; }
    bool isKeepProportions() const { return keepProportions; }
    /// Whether the OpenGL context has been set up.
    bool isInitialized() const { return initialized; }
    /// Whether there is a context that the view can draw with.
    bool isValid() const;
    /// Why there is none, as the sentence that stands in the view's place; empty while all is well. Known
    /// without a frame, too. Setters and loads work all the same, and show when a context comes.
    QString getContextProblem() const;
    /// The context as the driver made it, such as "OpenGL 4.5, compatibility profile, 4 samples, depth 24";
    /// empty without one.
    QString getContextDescription() const;
    /// Whether a released drag keeps the view turning.
    bool isAutoRotating() const;
    /// The eight lights; owned by the view for its whole life.
    const QVector<Light*>& getLights() const { return lights; }
    const MouseBindings& getMouseBindings() const { return mouseBindings; }
    const KeyBindings& getKeyBindings() const { return keyBindings; }
    Qt::KeyboardModifiers getSelectingModifiers() const { return selectingModifiers; }
    void getKeySpeed(double& rotationSpeed, double& scaleSpeed, double& shiftSpeed) const;
    unsigned int getHotKeyMask() const { return hotKeyMask; }
    bool isMouseEnabled() const { return mouseEnabled; }
    bool isKeyboardEnabled() const { return keyboardEnabled; }
    /// GL_MAX_LIGHTS; needs the widget's context to be current.
    int getNumberLights() const;
    /// @}

    /// @name Changing: true when the value changed; the signal named after the property follows
    /// @{
    bool setShowToolTips(bool on); ///< no signal
    bool setShowInfo(bool on);
    bool setBackgroundColor(const QColor& color);
    bool setAutoRotate(bool on); ///< off stops a running auto-rotation
    /// The step of the mouse, in pixels, that a drag must exceed to keep turning after its release.
    bool setDeltaVelocity(double pixels);
    /// Values below 2.2e-16 are stored as 2.2e-16.
    bool setZoom(double factor);
    bool setProjectionType(ProjectionType type);
    /// Off also emits selectedObject() with an all-zero record.
    bool setSelecting(bool on);
    bool setLighting(bool on);
    bool setShowLights(bool on);
    bool setRotation(const ValueXYZ<double>& degrees);
    bool setShift(const ValueXYZ<double>& sceneUnits);
    bool setViewportShift(const ValueXY<double>& fractions); ///< emits vieportShiftChanged()
    /// On: the scene keeps its proportions in a window of any shape; the shorter side shows the camera's
    /// volume. Off, the default: the picture stretches with the window.
    bool setKeepProportions(bool on);
    /// Components below 2.2e-16, negative ones included, are stored as 1.
    bool setScale(const ValueXYZ<double>& factors);
    /// @}

    /// The marker height of every light, in scene units; the radius of the sphere on which they stand.
    void setLightsHeight(double height);
    void setLightsRadius(double radius);

    void setMouseEnabled(bool on) { mouseEnabled = on; }
    void setKeyboardEnabled(bool on) { keyboardEnabled = on; }
    /// An or of HotKey bits.
    void setHotKeyMask(unsigned int mask) { hotKeyMask = mask; }
    void setKeySpeed(double rotationSpeed, double scaleSpeed, double shiftSpeed);
    void assignMouseRotation(const MouseBinding& x, const MouseBinding& y, const MouseBinding& z);
    void assignMouseScale(const MouseBinding& x, const MouseBinding& y, const MouseBinding& z);
    void assignMouseZoom(const MouseBinding& zoomBinding);
    void assignMouseShift(const MouseBinding& x, const MouseBinding& y);
    void assignKeyboardRotation(const KeyBinding& xPlus, const KeyBinding& xMinus, const KeyBinding& yPlus,
                                const KeyBinding& yMinus, const KeyBinding& zPlus, const KeyBinding& zMinus);
    void assignKeyboardScale(const KeyBinding& xPlus, const KeyBinding& xMinus, const KeyBinding& yMinus,
                             const KeyBinding& yPlus, const KeyBinding& zMinus, const KeyBinding& zPlus);
    void assignKeyboardZoom(const KeyBinding& out, const KeyBinding& in);
    void assignKeyboardShift(const KeyBinding& xPlus, const KeyBinding& xMinus, const KeyBinding& yMinus,
                             const KeyBinding& yPlus);
    /// The modifiers with which hovering picks.
    void assignSelecting(Qt::KeyboardModifiers modifiers) { selectingModifiers = modifiers; }

    /// Switches each light on or off for the frame, in order. Needs the widget's context.
    void applyLights();
    /// Draws the markers of the lights. Needs the widget's context.
    void drawLights();
    /// Multiplies the camera onto the current matrix. Needs the widget's context. The volume is square
    /// whatever the widget's shape is, so that the picture stretches with the widget, unless proportions are
    /// kept.
    void orthoGL();
    /// Picks the object under a position (logical pixels from the top left corner) and emits
    /// selectedObject(). Does nothing while selecting is off.
    void findObjects(const QPointF& position, Qt::KeyboardModifiers modifiers);
    /// The hits of a selection buffer, the nearest first; see the description of the selection buffer in
    /// glSelectBuffer(3G). \a debug writes them to the debug output.
    QList<SelectionInfo> getSelectedList(int hits, unsigned int* buffer, bool debug);

public slots:
    void slotSetBackgroundColor(const QColor& color);
    void slotSetZoom(double factor);
    void slotSetProjectionType(Zel3D::ProjectionType type);
    void slotSetSelecting(bool on);
    void slotSetLighting(bool on);
    void slotSetShowLights(bool on);
    void slotSetShowInfo(bool on);
    void slotSetKeepProportions(bool on);
    void slotSetShift(const Zel3D::ValueXYZ<double>& sceneUnits);
    /// Does nothing while scaling is held, as automatic scaling does.
    void slotSetScale(const Zel3D::ValueXYZ<double>& factors);
    void slotSetViewportShift(const Zel3D::ValueXY<double>& fractions);
    /// Also picks again at the last mouse position.
    void slotSetRotation(const Zel3D::ValueXYZ<double>& degrees);
    void slotSetLightsHeight(double height);
    void slotSetLightsRadius(double radius);
    /// Rotation, shifts, scale and zoom back to their defaults; colours and switches stay.
    void slotDefault();

signals:
    void backgroundColorChanged(const QColor& color);
    void autoRotateChanged(bool on);
    void deltaVelocityChanged(double pixels);
    void zoomChanged(double factor);
    void projectionTypeChanged(Zel3D::ProjectionType type);
    void selectingChanged(bool on);
    void lightingChanged(bool on);
    void showLightsChanged(bool on);
    void showInfoChanged(bool on);
    void keepProportionsChanged(bool on);
    void rotationChanged(double x, double y, double z);
    void shiftChanged(double x, double y, double z);
    void vieportShiftChanged(double x, double y);
    void scaleChanged(double x, double y, double z);
    void selectedObject(const Zel3D::SelectedObjectsInfo& info);
    /// When the view is to be drawn and its problem is another than before; empty when it is gone.
    void contextProblemChanged(const QString& problem);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void glInit() override;
    void glDraw() override;
    void resizeEvent(QResizeEvent* event) override;

    /// Draws in screen-relative placement, before the scene.
    virtual void drawWithoutTransform();
    /// Draws the scene.
    virtual void draw() = 0;

public:
    /// The lower and the upper corner of the scene box, its centre and half its diagonal.
    virtual QVector3D first() = 0;
    virtual QVector3D second() = 0;
    virtual QVector3D getCenter();
    virtual double getRadius();

protected:
    /// Draws the selectable objects with their OpenGL names.
    virtual void select() = 0;

public slots:
    /// Reads every persisted value from the store and applies it through the setters; no repaint.
    virtual void slotLoadSettings();
    /// Writes every persisted value to the store.
    virtual void slotSaveSettings();

protected:
    /// Hooks of the derived class, called at the end of the two slots above.
    virtual void loadSettings();
    virtual void saveSettings();

public:
    /// Moves the lights' centre to getCenter().
    virtual void updateLights();

protected:
    void hideEvent(QHideEvent* event) override;

    /// Clears to a colour and draws one frame into the current framebuffer, over the current viewport and in
    /// front of the current projection; no auto-rotation, no frame rate. Needs the widget's context.
    void paintFrame(const QColor& clearColor, bool lightMarkers);
    /// The width by the height that kept proportions go by; 0, the default: the window's.
    void setFrameAspect(double aspect) { frameAspect = aspect; }
    /// Whether this widget's context is the current one, so that a setter may send to OpenGL.
    bool isContextCurrent() const;
    /// Raises the busy flag for a scope: nothing is painted while a derived plot rebuilds its data.
    class VORANPLOT_EXPORT BusyScope
    {
    public:
        explicit BusyScope(ZelGLWidget& widget) : view(widget), before(widget.busy) { view.busy = true; }
        ~BusyScope() { view.busy = before; }
        BusyScope(const BusyScope&) = delete;
        BusyScope& operator=(const BusyScope&) = delete;

    private:
        ZelGLWidget& view;
        bool before;
    };
    bool isBusy() const { return busy; }
    /// Whether a person moves the view by mouse, wheel or keys, or has set it turning: until the button is
    /// released or nothing has moved for a moment.
    bool isHandled() const { return handled; }
    /// Called when that changes; here nothing.
    virtual void handlingChanged();
    /// Called after a frame of the window with the milliseconds that it took since restartFrameTime(), or
    /// from its beginning; here nothing.
    virtual void frameDrawn(double milliseconds);
    void restartFrameTime() { frameTime.start(); }
    /// Whether slotSetScale() acts; automatic scaling holds the scale.
    bool isScalingAllowed() const { return scalingAllowed; }
    void setScalingAllowed(bool on) { scalingAllowed = on; }
    void forgetMousePress() { mousePressed = false; }
    /// Where the mouse was last, in logical pixels.
    const QPointF& getMousePosition() const { return mousePosition; }

    /// The object that the last pick found, as its OpenGL selection name; 0 for none.
    int getPickedName() const { return pickedName; }
    /// The matrix that a pick at a position (logical pixels) sees the scene through, model-view included, in
    /// OpenGL's column order. Needs the widget's context.
    std::array<double, 16> pickMatrix(const QPointF& position);
    /// Called before the scene is drawn for a pick, with the widget's context current: how many objects it
    /// will send, at most. Here: the selection capacity.
    virtual int prepareSelection(const QPointF& position);

    /// From OpenGL selection name to the record of the object, filled by derived plots.
    QHash<int, SelectedObjectsInfo> selectableObjects;
    /// Number of objects that one pick can report.
    int selectionCapacity = 0;

private:
    void writeProjectionType(Zel3D::ProjectionType type);
    void writeZoom(double factor);

    bool reviewContext();
    bool isContextAlive();
    void recoverContext();
    void followScreen();
    void setHandled(bool on);
    void rest();
    void autoRotationStep();
    void drawScene(bool lightMarkers);
    void drawInfo();
    void setPickCamera(const QPointF& position);
    SelectedObjectsInfo pick(const QPointF& position);
    void reportSelection(const QPointF& position, const SelectedObjectsInfo& info);
    ViewPose pose() const;
    void applyPose(const ViewPose& pose);

    QString organization;
    QString application;
    QColor backgroundColor = Qt::white;
    bool autoRotate = true;
    double deltaVelocity = 1.0;
    ValueXYZ<double> rotation;
    ValueXYZ<double> shift;
    ValueXY<double> viewportShift;
    ValueXYZ<double> scale{1.0, 1.0, 1.0};
    double zoom = 1.0;
    double drawnRatio = 1.0; ///< device pixels to a pixel when the viewport was set last
    double frameAspect = 0.0;
    ProjectionType projectionType = Orthogonal;
    bool selecting = false;
    bool lighting = false;
    bool showLights = false;
    bool showInfo = false;
    bool showToolTips = false;
    bool keepProportions = false;

    QVector<Light*> lights;
    QTimer* autoRotationTimer = nullptr;
    QTimer* restTimer = nullptr; ///< from the last move of a hand
    QElapsedTimer frameTime;
    QElapsedTimer frameClock;
    int frameCounter = 0;
    int pickedName = 0;
    bool initialized = false;
    const QGLContext* lostContext = nullptr;
    const QGLContext* uselessContext = nullptr; ///< the functions of OpenGL 1.x fail in it
    QString toldProblem;
    QPointer<ContextNote> contextNote;
    bool busy = false;
    bool scalingAllowed = true;

    QPointF mousePosition;
    QPointF dragPosition;
    ValueXY<double> dragStep;
    bool mousePressed = false;
    bool handled = false;
    bool mouseEnabled = true;
    bool keyboardEnabled = true;
    Qt::KeyboardModifiers selectingModifiers = Qt::NoModifier;
    unsigned int hotKeyMask = 31;
    MouseBindings mouseBindings;
    KeyBindings keyBindings;
    KeySpeeds keySpeeds;
};

} // namespace Zel3D
