#pragma once

#include "core/scale.h"
#include "core/types.h"
#include "scene/arrow.h"
#include "scene/axistics.h"
#include "scene/label.h"

#include <QRectF>

namespace Zel3D {

/// One straight axis in the scene: a line between two points, tick marks placed by a scale, a number at each
/// major tick, a title in the middle and an arrow at the end.
///
/// Setters may be called without a context. What they change is computed at the next draw(), once.
class VORANPLOT_EXPORT Axis : public BaseDraw
{
public:
    /// Interval count and line width of the major or of the minor ticks.
    class VORANPLOT_EXPORT MajorMinorSettings : public SettingsRecord
    {
    public:
        /// \a kind 0 stands for major, 1 for minor, anything else for both.
        MajorMinorSettings(int kind, double lineWidth);

        /// "major", "minor" or "majorminor"; part of the keys.
        QString getName() const;
        int getInterval() const { return interval; }
        /// Below 1 counts as 1.
        bool setInterval(int value);
        double getLineWidth() const { return lineWidth; }
        bool setLineWidth(double value) { return store(lineWidth, value); }

        virtual void loadSettings(const QString& group, const QString& organization,
                                  const QString& application);
        virtual void saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const;

    private:
        int kind;
        int interval = 1;
        double lineWidth;
    };

    /// The axis line. Invisible by default.
    class VORANPLOT_EXPORT LineSettings : public SettingsRecord
    {
    public:
        bool isVisible() const { return visible; }
        bool setVisible(bool on) { return store(visible, on); }
        const QColor& getColor() const { return color; }
        bool setColor(const QColor& value) { return store(color, value); }
        double getWidth() const { return width; }
        bool setWidth(double value) { return store(width, value); }

        virtual void loadSettings(const QString& group, const QString& organization,
                                  const QString& application);
        virtual void saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const;

    private:
        bool visible = false;
        QColor color = Qt::black;
        double width = 1.0;
    };

    /// The tick marks. Invisible by default.
    class VORANPLOT_EXPORT TicsSettings : public SettingsRecord
    {
    public:
        bool isVisible() const { return visible; }
        bool setVisible(bool on) { return store(visible, on); }
        TicStyle getStyle() const { return style; }
        bool setStyle(TicStyle value) { return store(style, value); }
        /// The unit direction in which the ticks point; not persisted and never marked for saving.
        const QVector3D& getOrientation() const { return orientation; }
        bool setOrientation(const QVector3D& value);
        /// World units.
        double getMajorLength() const { return majorLength; }
        bool setMajorLength(double value) { return store(majorLength, value); }
        double getMinorLength() const { return minorLength; }
        bool setMinorLength(double value) { return store(minorLength, value); }
        /// Sets both lengths as computed ones, which are not marked for saving.
        bool setComputedLengths(double major, double minor);

        virtual void loadSettings(const QString& group, const QString& organization,
                                  const QString& application);
        virtual void saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const;

    private:
        bool visible = false;
        QVector3D orientation;
        TicStyle style = TicOut;
        double majorLength = 0.0;
        double minorLength = 0.0;
    };

    /// The numbers at the major ticks. Invisible by default; shown only while the ticks are.
    class VORANPLOT_EXPORT NumbersSettings : public SettingsRecord
    {
    public:
        bool isVisible() const { return visible; }
        bool setVisible(bool on) { return store(visible, on); }
        const QColor& getColor() const { return color; }
        bool setColor(const QColor& value) { return store(color, value); }
        const QFont& getFont() const { return font; }
        bool setFont(const QFont& value) { return store(font, value); }
        Alignment getAlignment() const { return alignment; }
        bool setAlignment(Alignment value) { return store(alignment, value); }
        /// Handed to each number's label; not persisted.
        int getAdjust() const { return adjust; }
        bool setAdjust(int value);
        /// World units between the end of a tick and its number; not persisted.
        double getDistance() const { return distance; }
        bool setDistance(double value);

        virtual void loadSettings(const QString& group, const QString& organization,
                                  const QString& application);
        virtual void saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const;

    private:
        bool visible = false;
        QColor color = Qt::black;
        QFont font = QFont("Sans Serif", 10);
        Alignment alignment = Center;
        int adjust = 0;
        double distance = 0.0;
    };

    /// All persisted appearance. The records may be changed at any time; the axis sees it at the next draw().
    class VORANPLOT_EXPORT Settings : public SettingsRecord
    {
    public:
        /// World units between the ticks or numbers and the title.
        double getLabelShift() const { return labelShift; }
        bool setLabelShift(double value) { return store(labelShift, value); }

        virtual void loadSettings(const QString& group, const QString& organization,
                                  const QString& application);
        /// The label shift when this record itself is marked, then each of the five records.
        virtual void saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const;
        void resetNeedSave() override;

        MajorMinorSettings& getMajor() { return major; }
        const MajorMinorSettings& getMajor() const { return major; }
        MajorMinorSettings& getMinor() { return minor; }
        const MajorMinorSettings& getMinor() const { return minor; }
        LineSettings& getLine() { return line; }
        const LineSettings& getLine() const { return line; }
        TicsSettings& getTics() { return tics; }
        const TicsSettings& getTics() const { return tics; }
        NumbersSettings& getNumbers() { return numbers; }
        const NumbersSettings& getNumbers() const { return numbers; }

    private:
        double labelShift = 0.0;
        MajorMinorSettings major{0, 0.9};
        MajorMinorSettings minor{1, 0.5};
        LineSettings line;
        TicsSettings tics;
        NumbersSettings numbers;
    };

    /// A major tick: the point of the axis line and the label with its number.
    struct Major
    {
        QVector3D position;
        Label label;
    };

    /// A copied axis has its own copy of the scale, or shares a scale that cannot be cloned.
    Axis();

    /// Draws line, ticks with numbers, title and arrow, in this order. Sets colour, blend function and line
    /// width and does not put them back; the owner does. Ticks and numbers that the limits no longer allow to
    /// compute are kept but not drawn. Needs a current context.
    void draw() override;
    /// Draws the highlight box when the axis is highlighted.
    void drawHighlight() override;
    /// The group is "%0/%1" of the prefix and the name. Settings, label and arrow are read with the arguments
    /// (organization, application, group), so that the organization stands in the place of their prefix.
    void loadSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void saveSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void resetNeedSave() override;

    /// The end points of the axis line, in world units. The arrow goes to the end unless both are equal.
    void setPosition(const QVector3D& start, const QVector3D& end);
    /// The data values at the two ends.
    void setLimits(double minimum, double maximum);
    /// With \a on the minimum stands at the end of the axis line and the maximum at its start.
    void setReversed(bool on);
    /// Below 1 counts as 1. Returns true.
    bool setMajorInterval(int n);
    /// As setMajorInterval(), minor intervals in one major interval.
    bool setMinorInterval(int n);
    /// The direction in which the ticks point; normalised.
    void setTicsOrientation(const QVector3D& direction);
    /// World units; marked for saving.
    void setTicsLength(double major, double minor);
    /// As setTicsLength() for lengths that an owner computes: not marked for saving, and ignored once lengths
    /// were set through setTicsLength() or loaded.
    void setComputedTicsLength(double major, double minor);
    /// The width of the axis line and, as multiples of it, of the ticks.
    void setLineWidth(double width, double majorFactor, double minorFactor);
    /// Takes ownership; null is ignored.
    void setScale(Scale* newScale);
    /// Makes a new scale: 0 linear, 1 logarithmic with a minor interval of 9; nothing for another type.
    void setScale(ScaleType type);
    /// Forwards to the scale and ends the automatic precision.
    void setTicFormat(char format, int precision);
    /// With \a on the numbers have as many digits as tell the ticks apart; see ticPrecision().
    void setAutomaticTicFormat(bool on);
    /// The box that is drawn around what the axis measures, turned to the axis's own direction.
    void setHighlightBox(const Parallelepiped& box, AxisType type);
    void setHighlighted(bool on) { highlighted = on; }
    /// Device pixels per logical pixel of the window, for the texts.
    void setPixelRatio(double ratio);

    /// Finds the places of the numbers in the window before draw(): those with alignment Center stand beyond
    /// the ticks in a direction of the window (all numbers with \a always), numbers that would overlap each
    /// other or one of \a occupied are left out evenly, and what stays is added to \a occupied. The places
    /// hold until the next call. Needs no context.
    void arrange(const ViewFrame& frame, const QVector2D& outward, bool always, QVector<QRectF>& occupied);
    /// The same for the name, beyond the numbers; after arrange(), of all axes that share a picture. A name
    /// without a place at its own axis is left out.
    void arrangeName(const ViewFrame& frame, QVector<QRectF>& occupied);

    bool beforeCalculation(QVector3D& span);
    void recalculateTics();
    /// recalculateTics() when something changed since the last time.
    void updateTics();
    void drawLine();
    void drawTics();
    void drawTic(const QVector3D& position, double length, const QVector3D& orientation, TicStyle style);
    void drawLabel();
    void drawHighlightBox();
    void drawQuad(const QVector3D& a, const QVector3D& b, const QVector3D& c, const QVector3D& d);

    /// The axis title.
    Label& getLabel() { return label; }
    const Label& getLabel() const { return label; }
    Arrow& getArrow() { return arrow; }
    const Arrow& getArrow() const { return arrow; }
    Settings& getSettings() { return settings; }
    const Settings& getSettings() const { return settings; }
    const QVector3D& getStart() const { return start; }
    const QVector3D& getEnd() const { return end; }
    const AxisRange& getRange() const { return range; }
    const Scale* getScale() const { return scale.get(); }
    /// Whether the last arrange() found room for the title.
    bool isLabelShown() const { return labelShown; }
    bool isHighlighted() const { return highlighted; }
    /// Whether the ticks wait for a calculation, be it because the limits do not allow one.
    bool isRecalculationNeeded() const;
    const QVector<Major>& getMajors() const { return majors; }
    /// World positions of the minor ticks.
    const QVector<QVector3D>& getMinors() const { return minors; }
    /// The sizes in pixels of all numbers. Brings the ticks up to date.
    QVector<QSize> getNumberSizes();
    const std::array<QVector3D, 8>& getHighlightBox() const { return highlightBox; }

private:
    /// Owns the scale and clones it with the axis.
    class ScaleOwner
    {
    public:
        ScaleOwner() = default;
        ScaleOwner(const ScaleOwner& other);
        ScaleOwner& operator=(const ScaleOwner& other);
        ~ScaleOwner() = default;
        void reset(Scale* newScale) { owned.reset(newScale); }
        Scale* get() const { return owned.get(); }
        Scale* operator->() const { return owned.get(); }

    private:
        std::shared_ptr<Scale> owned;
    };

    /// What the computed ticks depend on besides the geometry.
    struct TicsInput
    {
        bool operator==(const TicsInput& other) const;

        int majorInterval = 0;
        int minorInterval = 0;
        QVector3D orientation;
        double majorLength = 0.0;
        double distance = 0.0;
        QColor color;
        QFont font;
        Alignment alignment = Center;
        int adjust = 0;
    };

    TicsInput ticsInput() const;
    QVector3D labelPosition() const;
    void setUpNumber(Label& number, const AxisTic& tic, const QVector3D& position) const;
    double arrangeNumbers(const ViewFrame& frame, bool outside, QVector<QRectF>& occupied);
    bool tryLabelPlace(const ViewFrame& frame, const QVector2D& direction, double gap,
                       QVector<QRectF>& occupied);
    bool areNumbersShown() const;

    Label label;
    Arrow arrow;
    Settings settings;
    bool recalculate = true;
    QVector3D start;
    QVector3D end;
    AxisRange range;
    AxisRange majorRange;
    bool highlighted = false;
    ScaleOwner scale;
    QVector<Major> majors;
    QVector<QVector3D> minors;
    std::array<QVector3D, 8> highlightBox;
    TicsInput computedFor;
    bool automaticTicFormat = false;
    bool ownTicsLength = false;
    double pixelRatio = 1.0;
    QVector2D outwardDirection;
    bool labelShown = true;
    double nameGap = 0.0; ///< logical pixels that the numbers take
};

} // namespace Zel3D
