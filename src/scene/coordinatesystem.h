#pragma once

#include "scene/axis.h"
#include "scene/edgepolicy.h"

namespace Zel3D {

/// The box around the data: an axis on each of the twelve edges of an axis-aligned box and grid lines on up
/// to six of its faces. The axes that are in the list of children are drawn; the owner chooses them.
class VORANPLOT_EXPORT CoordinateSystem : public BaseDraw
{
public:
    /// Grid lines and smoothing. Line widths are in pixels and changed through the coordinate system, which
    /// keeps the major ones at least as wide as the minor ones. Line styles are OpenGL stipple patterns; see
    /// lineStylePattern().
    class VORANPLOT_EXPORT CoordinateSystemSettings : public SettingsRecord
    {
    public:
        bool isLineSmooth() const { return lineSmooth; }
        bool setLineSmooth(bool on) { return store(lineSmooth, on); }
        /// A set of Grid bits.
        int getGridStyle() const { return gridStyle; }
        bool setGridStyle(int style) { return store(gridStyle, style); }
        const QColor& getGridColor() const { return gridColor; }
        bool setGridColor(const QColor& value) { return store(gridColor, value); }
        bool isMajorVisible() const { return majorVisible; }
        bool setMajorVisible(bool on) { return store(majorVisible, on); }
        double getMajorLineWidth() const { return majorLineWidth; }
        /// Not below the minor width.
        bool setMajorLineWidth(double width);
        int getMajorLineStyle() const { return majorLineStyle; }
        bool setMajorLineStyle(int pattern) { return store(majorLineStyle, pattern); }
        bool isMinorVisible() const { return minorVisible; }
        bool setMinorVisible(bool on) { return store(minorVisible, on); }
        double getMinorLineWidth() const { return minorLineWidth; }
        /// Not above the major width.
        bool setMinorLineWidth(double width);
        int getMinorLineStyle() const { return minorLineStyle; }
        bool setMinorLineStyle(int pattern) { return store(minorLineStyle, pattern); }

        virtual void loadSettings(const QString& group, const QString& organization,
                                  const QString& application);
        virtual void saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const;

    private:
        bool lineSmooth = true;
        int gridStyle = 0;
        QColor gridColor = Qt::darkGreen;
        bool majorVisible = true;
        double majorLineWidth = 1.0;
        int majorLineStyle = 0xFFFF;
        bool minorVisible = true;
        double minorLineWidth = 0.6;
        int minorLineStyle = 0xFFFF;
    };

    /// All axes are in the list of children; their lines, ticks and numbers are invisible until switched on.
    CoordinateSystem(QVector3D first, QVector3D second);
    // The children point into the object.
    CoordinateSystem(const CoordinateSystem&) = delete;
    CoordinateSystem& operator=(const CoordinateSystem&) = delete;

    /// Draws the visible axes, their highlight boxes and the grid lines, unlit. Puts back the state that it
    /// changes. Needs a current context.
    void draw() override;
    /// Every axis under its own group of the prefix, then the settings under "%0/coordsystem".
    void loadSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void saveSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void resetNeedSave() override;

    /// Places all axes on the edges of the box of two corners, which may come in any order: the numbers stand
    /// at their values and the ticks point out of the box in any case.
    void init(QVector3D first, QVector3D second);
    /// What was subtracted from the values before they became the places of the scene: the axes state the
    /// sum. (0, 0, 0) at first.
    void setOrigin(const ValueXYZ<double>& values);
    const ValueXYZ<double>& getOrigin() const { return origin; }
    /// Stores the two corners only.
    void setPosition(QVector3D first, QVector3D second);
    const QVector3D& getFirst() const { return firstCorner; }
    const QVector3D& getSecond() const { return secondCorner; }

    /// Puts an axis into the list of children or takes it out; unknown axes are ignored.
    void setAxesVisible(AxisType type, bool on);
    bool isAxisVisible(AxisType type) const;
    /// setAxesVisible() for all twelve.
    void setAxisVisible(bool on);
    /// Shows the axes of a choice that are not seen end-on and hides the others.
    void setVisibleEdges(const EdgeChoice& choice);

    /// For the four axes of a direction; see Axis.
    void setMajorInterval(BaseAxisType base, int n);
    void setMinorInterval(BaseAxisType base, int n);
    void setScale(BaseAxisType base, ScaleType type);
    /// The titles of the axes, on all four edges of each direction.
    void setAxisNames(const QString& x, const QString& y, const QString& z);
    /// Sets the width of the major grid lines, but not below the minor one's, and that of all major ticks.
    /// Not a number is ignored.
    void setMajorLineWidth(double width);
    /// The mirror: not above the major one's.
    void setMinorLineWidth(double width);
    void setHighlight(bool on) { highlight = on; }
    bool isHighlight() const { return highlight; }
    /// Device pixels per logical pixel of the window, for the texts.
    void setPixelRatio(double ratio);
    /// The scale of the view, by which the ticks get the same length in all directions.
    void setViewScale(const ValueXYZ<double>& scale);

    /// The faces that show grid lines from now on, in place of the grid style of the settings: a set of Grid
    /// bits; -1 goes back to the settings.
    void setDrawnFaces(int faces) { drawnFaces = faces; }
    /// Rectangles of the window, in pixels with y upwards, that others draw over: numbers and titles that
    /// would meet them are left out or step aside.
    void setOccupied(const QVector<QRectF>& rectangles) { occupiedByOthers = rectangles; }

    void drawMajorGridLines();
    void drawMinorGridLines();
    /// Emits a line from each major tick of a to the edge of b, between glBegin(GL_LINES) and glEnd().
    void drawMajorGridLines(const Axis& a, const Axis& b);
    void drawMinorGridLines(Axis& a, Axis& b);

    /// An unknown type gives the first axis.
    Axis& getAxis(AxisType type);
    CoordinateSystemSettings& getSettings() { return settings; }
    const CoordinateSystemSettings& getSettings() const { return settings; }

private:
    void arrange();
    void updateTicsLength();
    void updateLimits();
    template <class PairRoutine>
    void drawGridLines(double width, int style, PairRoutine drawPair);

    QVector<Axis> axes;
    QVector3D firstCorner;
    QVector3D secondCorner;
    ValueXYZ<double> origin{0.0, 0.0, 0.0};
    CoordinateSystemSettings settings;
    bool highlight = false;
    int drawnFaces = -1;
    QVector<QRectF> occupiedByOthers;
    ValueXYZ<double> viewScale{1.0, 1.0, 1.0};
};

} // namespace Zel3D
