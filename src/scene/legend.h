#pragma once

#include "scene/axis.h"
#include "scene/legendlayout.h"

#include <QGradient>
#include <QHash>

namespace Zel3D {

/// The colour bar that explains the data colouring: a framed bar filled with the gradient, an axis along one
/// long side with the value scale, and a pointer on the other side that marks one value.
///
/// It is drawn under an identity camera, in front of the scene. The parts always stay inside the window and
/// clear of each other; see layoutLegend(). Visible by default; its name is "legend".
class VORANPLOT_EXPORT Legend : public BaseDraw
{
public:
    /// The edge of the window. The values are persisted and are the order of the settings' combo box.
    enum Position : int { Top = 0, Bottom = 1, Left = 2, Right = 3 };

    /// The edge of the window at which the bar lies, for the side of its axis: numbers always stand on the
    /// side of the bar that faces the middle of the window. Values as Position.
    class VORANPLOT_EXPORT AxisSettings : public SettingsRecord
    {
    public:
        int getAlignment() const { return alignment; }
        bool setAlignment(int side) { return store(alignment, side); }
        /// Stores without marking for saving.
        void placeAt(Position side) { alignment = side; }

    private:
        int alignment = Right;
    };

    /// The placement. The setters of the persisted fields mark the record for saving; the legend's own
    /// operations of the same names do not.
    class VORANPLOT_EXPORT Settings : public SettingsRecord
    {
    public:
        /// Not persisted.
        bool isAutoPositioning() const { return autoPositioning; }
        Position getPosition() const { return position; }
        bool setPosition(Position side) { return store(position, side); }
        /// 0 standing, 1 lying.
        int getOrientation() const { return orientation; }
        bool setOrientation(int direction) { return store(orientation, direction); }
        AxisSettings& getAxis() { return axis; }
        const AxisSettings& getAxis() const { return axis; }
        /// Not persisted. Fractions of the viewport, y upwards; the height is negative, down from y.
        const QHash<Position, QRectF>& getRelativePositions() const { return relativePositions; }

        virtual void loadSettings(const QString& group, const QString& organization,
                                  const QString& application);
        virtual void saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const;
        void resetNeedSave() override;

        /// These store without marking for saving and return whether the value changed. placeAt() sets
        /// orientation and axis alignment with the position, unless it is unknown.
        bool placeAt(Position value);
        bool setAutoPositioning(bool on);
        bool setRelativePositions(const QHash<Position, QRectF>& rectangles);

    private:
        bool autoPositioning = true;
        Position position = Right;
        int orientation = 0;
        AxisSettings axis;
        QHash<Position, QRectF> relativePositions{{Top, QRectF(0.05, 0.94, 0.9, -0.05)},
                                                  {Bottom, QRectF(0.05, 0.06, 0.9, -0.05)},
                                                  {Left, QRectF(0.01, 0.95, 0.05, -0.9)},
                                                  {Right, QRectF(0.94, 0.95, 0.05, -0.9)}};
    };

    Legend();

    /// Draws bar, axis and pointer when visible; nothing at all without gradient stops. Lays out anew when
    /// something changed, the window's size included. Puts back the state that it changes. Needs a current
    /// context.
    void draw() override;
    /// The group is "%0/%1" of the prefix and the name: the settings, then the axis, then "%0/visible".
    void loadSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void saveSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void resetNeedSave() override;
    /// The wanted bar in fractions of the viewport: the manual rectangle, or with automatic positioning that
    /// of the position; empty where the table has none.
    virtual QRectF getRelative() const;

    /// Moves the legend to an edge of the window and sets orientation and axis alignment with it. Returns
    /// whether the position changed. Does not mark for saving: a moved legend is saved after
    /// markSettingsForSaving().
    bool setPosition(Position position);
    /// Makes the next save write position, orientation and axis alignment.
    void markSettingsForSaving() { settings.markForSaving(); }
    /// Return whether the value changed.
    bool setAutoPositioning(bool on);
    bool setRelativePositions(const QHash<Position, QRectF>& rectangles);
    /// The bar without automatic positioning; (0, 0, 1, 1) by default.
    bool setManualRectangle(const QRectF& rectangle);
    const QRectF& getManualRectangle() const { return manualRectangle; }
    /// The gradient whose stops are the bands of the bar. Returns whether it changed.
    bool setGradient(const QGradient& newGradient);
    const QGradient& getGradient() const { return gradient; }
    /// Logical pixels at the top of the window that the legend leaves free, for the title.
    void setReservedTop(double pixels);
    /// Device pixels per logical pixel of the window.
    void setPixelRatio(double ratio);

    /// To the owned axis; see Axis.
    void setLimits(double minimum, double maximum);
    void setMajorInterval(int n);
    void setMinorInterval(int n);
    void setScale(Scale* scale);
    void setScale(ScaleType type);

    /// Marks a value with the pointer; one beyond the limits at the nearer end of the bar.
    void showValue(double marked);
    void hideValue();
    bool isValueShown() const { return valueShown; }
    double getValue() const { return value; }

    /// Reads viewport and matrices and places bar and axis. Needs a current context.
    void update();
    /// Frame, bands and axis.
    void drawBase();
    /// The pointer and a mark across the bar.
    void drawValue();

    Axis& getAxis() { return axis; }
    const Axis& getAxis() const { return axis; }
    const Settings& getSettings() const { return settings; }
    /// Whether the next draw() lays out anew.
    bool isDirty() const { return dirty; }
    /// What the last draw() covered, pointer and numbers included, in pixels of the window with y upwards;
    /// null when it drew nothing.
    const QRectF& getRectangle() const { return covered; }
    /// The places of the last draw(), in pixels of the viewport.
    const LegendLayout& getLayout() const { return layout; }

private:
    bool hasViewChanged();
    bool areNumbersShown() const;
    LegendLayoutInput layoutInput();
    void placeAxis();
    void arrangeNumbers();
    void drawBands(const QGradientStops& stops);
    QVector3D worldAt(const QPointF& point, float depth = ownDepth);

    /// In front of the scene, behind the title.
    static constexpr float ownDepth = 0.01F;

    Settings settings;
    QRectF manualRectangle = QRectF(0.0, 0.0, 1.0, 1.0);
    Axis axis;
    QGradient gradient;
    bool valueShown = false;
    double value = 0.0;
    bool dirty = true;
    LegendLayout layout;
    QRectF covered;
    /// The bar's lower left corner in the world, its edges from there, and the direction to the eye.
    QVector3D corner;
    QVector3D right;
    QVector3D up;
    QVector3D towardsEye;
    bool numbersWereShown = false;
    double reservedTop = 0.0;
    double pixelRatio = 1.0;
};

} // namespace Zel3D
