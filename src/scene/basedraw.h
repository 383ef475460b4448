#pragma once

#include "core/export.h"

#include <QList>
#include <QString>
#include <QVector3D>

#include <array>

namespace Zel3D {

/// The root of every object that a plot draws around its data.
///
/// Holds a visibility flag that persists, a flag that marks unsaved changes, a list of child drawables that
/// it does not own, and a guard for the OpenGL state: a drawable that starts its draw() with saveGLState()
/// and ends it with restoreGLState() leaks none of the saved items into the next one. GL_BLEND, GL_DEPTH_TEST
/// and lighting are not among them; who changes these puts them back.
class VORANPLOT_EXPORT BaseDraw
{
public:
    BaseDraw() = default;
    virtual ~BaseDraw() = default;
    BaseDraw(const BaseDraw&) = default;
    BaseDraw& operator=(const BaseDraw&) = default;

    /// Draws the children in the order in which they were appended, between saveGLState() and
    /// restoreGLState(). Needs a current context.
    virtual void draw();
    /// As draw(), for the highlights of the children.
    virtual void drawHighlight();

    /// Reads "%0/visible" (%0 = prefix; default: the current flag) and marks the object for saving.
    virtual void loadSettings(const QString& prefix, const QString& organization, const QString& application);
    /// Writes "%0/visible" if the object is marked for saving; the mark stays.
    virtual void saveSettings(const QString& prefix, const QString& organization, const QString& application);
    /// Clears the mark for saving.
    virtual void resetNeedSave();

    /// Remembers line and polygon smoothing, line width, blend function, current colour, line stipple,
    /// texturing, polygon mode, matrix mode and polygon offset. Needs a current context.
    virtual void saveGLState();
    /// Puts back what saveGLState() remembered. Needs a current context.
    virtual void restoreGLState();

    /// Adds a child at the end of the list unless it is already in it. The child must outlive its membership.
    void append(BaseDraw* child);
    /// Takes the child off the list; does nothing when it is not there.
    void remove(BaseDraw* child);
    const QList<BaseDraw*>& getChildren() const { return children; }

    const QString& getName() const { return name; }
    void setName(const QString& drawableName) { name = drawableName; }
    bool isVisible() const { return visible; }
    /// Returns whether the flag changed; a change marks the object for saving.
    bool setVisible(bool on);
    bool isSaveNeeded() const { return needSave; }
    void markForSaving() { needSave = true; }

    /// glEnable when \a on is not zero, else glDisable.
    static void setGLEnable(unsigned int capability, unsigned char on);
    /// glLineWidth with the width clamped to what the driver offers; negative widths give the thinnest line.
    /// These four multiply by the stroke scale of the target in force; see DrawTarget.
    static void setGLLineWidth(float width);
    /// glPointSize with the size clamped to what the driver offers.
    static void setGLPointSize(float size);
    /// glLineWidth without the clamp: a width that the driver refuses leaves the width that is set.
    static void setGLUnclampedLineWidth(float width);
    /// glLineStipple, which a repeat of 1 draws at the size of the window's pixels.
    static void setGLLineStipple(int repeat, int pattern);
    /// Put back a width or size that glGet reported, as it is.
    static void restoreGLLineWidth(float width);
    static void restoreGLPointSize(float size);
    static void setGLPolygonOffset(float factor, float units);

    /// Window coordinates (pixels from the lower left corner, depth 0 to 1) of a point of the world, with the
    /// matrices that are current. \a failed, if given, receives whether the projection failed.
    QVector3D World2ViewPort(QVector3D world, bool* failed);
    /// The inverse of World2ViewPort().
    QVector3D ViewPort2World(QVector3D window, bool* failed);
    /// The world position of p, given relative to the viewport fetched last: x' = (p.x - viewport x) * width,
    /// and likewise for y; the subtraction comes before the scaling.
    QVector3D relativePosition(QVector3D p);

protected:
    /// Reads the viewport and both matrices. Needs a current context.
    void fetchMatrices();

    bool needSave = false;
    QString name;
    bool visible = false;
    std::array<double, 16> modelview{};
    std::array<double, 16> projection{};
    std::array<int, 4> viewport{};

private:
    struct GLState
    {
        bool lineSmooth = false;
        bool polygonSmooth = false;
        float lineWidth = 1.0F;
        int blendSource = 1;
        int blendDestination = 0;
        std::array<double, 4> color{};
        int stipplePattern = 0xFFFF;
        int stippleRepeat = 1;
        bool stipple = false;
        bool texture = false;
        std::array<int, 2> polygonMode{};
        int matrixMode = 0;
        float offsetFactor = 0.0F;
        float offsetUnits = 0.0F;
        bool offsetFill = false;
    };

    QList<BaseDraw*> children;
    GLState state;
};

} // namespace Zel3D
