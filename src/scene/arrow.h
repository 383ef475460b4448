#pragma once

#include "core/settingsrecord.h"
#include "scene/basedraw.h"
#include "scene/furnituretypes.h"

#include <QColor>

class GLUquadric;

namespace Zel3D {

/// A solid cone that marks the positive end of an axis. Invisible by default; its name is "arrow".
class VORANPLOT_EXPORT Arrow : public BaseDraw
{
public:
    /// The persisted appearance. The setters return whether the value changed and then mark the record.
    class VORANPLOT_EXPORT Settings : public SettingsRecord
    {
    public:
        const QColor& getColor() const { return color; }
        bool setColor(const QColor& value) { return store(color, value); }
        /// Slices and stacks of the cone.
        unsigned int getQuality() const { return quality; }
        bool setQuality(unsigned int value) { return store(quality, value); }
        /// The distance of the cone from the position, as a multiple of the direction.
        double getLineLength() const { return lineLength; }
        /// Refuses a length below 0.001 or not a number.
        bool setLineLength(double value);
        /// 0 filled, 1 silhouette, 2 points, 3 lines; any other value is drawn filled.
        int getStyle() const { return style; }
        bool setStyle(int value) { return store(style, value); }
        ArrowSizeStyle getSizeStyle() const { return sizeStyle; }
        bool setSizeStyle(ArrowSizeStyle value) { return store(sizeStyle, value); }

        virtual void loadSettings(const QString& group, const QString& organization,
                                  const QString& application);
        virtual void saveSettings(const QString& group, const QString& organization,
                                  const QString& application) const;

    private:
        QColor color = Qt::black;
        unsigned int quality = 10;
        double lineLength = 0.001;
        int style = 0;
        ArrowSizeStyle sizeStyle = ArrowSmall;
    };

    Arrow();

    /// Draws the cone when visible. Changes the current colour; needs a current context.
    void draw() override;
    /// The group is "%0/%1" of the prefix and the name: the settings, then "%0/visible".
    void loadSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void saveSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    void resetNeedSave() override;
    /// Recomputes the effective sizes from the base sizes and the size style.
    virtual void update();

    /// The radius and the length of the cone before the size style, in world units.
    void setParameters(double radius, double length);
    /// Returns whether the size style changed.
    bool setSizeStyle(ArrowSizeStyle style);
    /// Applies the style to a quadric; does nothing for a null one.
    void setQuadricDrawStyle(GLUquadric* quadric) const;
    /// As Zel3D::getRotationAngle().
    static double getRotationAngle(QVector3D& axis, const QVector3D& from, const QVector3D& to);

    const QVector3D& getPosition() const { return position; }
    void setPosition(const QVector3D& point) { position = point; }
    /// Not normalised; its length scales the line length.
    const QVector3D& getDirection() const { return direction; }
    void setDirection(const QVector3D& vector) { direction = vector; }
    /// The base radius times the factor of the size style.
    double getRadius() const { return radius; }
    /// The base length times the factor of the size style.
    double getLength() const { return length; }

    /// Colour, quality, line length and style. The size style is changed through setSizeStyle().
    Settings& getSettings() { return settings; }
    const Settings& getSettings() const { return settings; }

private:
    QVector3D position;
    QVector3D direction;
    double baseRadius = 0.0;
    double radius = 0.0;
    double baseLength = 0.0;
    double length = 0.0;
    Settings settings;
};

} // namespace Zel3D
