#pragma once

#include "plots/vertexaddition.h"

#include <QPointF>
#include <QVector>

class QString;

namespace Zel3D {

/// A closed upright prism that stands under (or hangs from) the marked point: a bar of a histogram.
///
/// It reaches from the base level to the point. The base level is z = 0 where the plot's box contains it,
/// otherwise the end of the box that is nearer to 0. The sides stand at radius times multiplier in the
/// direction of the data's smaller step; in the other direction in proportion to the steps, so that bars fill
/// their cells whatever the units of x and y are. Coloured by the plot's data colouring; draws nothing
/// without a plot. Keys
/// "%0/cylinder/...".
class VORANPLOT_EXPORT CylinderAddition : public VertexAddition
{
public:
    /// \a ribNumber sides, \a radius in scene units, lines along the edges when \a frameVisible, turned about
    /// Z by \a angleZ degrees.
    CylinderAddition(int ribNumber, double radius, bool frameVisible, double angleZ);

    int getRibNumber() const { return ribNumber; }
    double getRadius() const { return radius; }
    bool isFrameVisible() const { return frameVisible; }
    double getAngleZ() const { return angleZ; }
    double getMultiplier() const { return multiplier; }
    int getOpacity() const { return opacity; }

    /// All four through their setters; true when any changed.
    virtual bool setParameters(int ribs, double sceneUnits, bool frame, double degrees);
    /// Below 3 there is no prism: such values are refused.
    virtual bool setRibNumber(int ribs);
    /// Refused unless at least 0.
    virtual bool setRadius(double sceneUnits);
    virtual bool setFrameVisible(bool on);
    virtual bool setAngleZ(double degrees);
    /// Factor on the radius, which a plot sets from its data; refused unless at least 0.
    virtual bool setMultiplier(double factor);
    /// Percent, 0 to 100; other values are refused.
    bool setOpacity(int percent);

    Addition* clone() const override;
    /// Lays out the outline that every bar of a run shares.
    void begin() override;
    void draw(const QVector3D& p) override;
    bool reach(Parallelepiped& box) override;
    bool isOpaque() const override;

    /// Writes the keys if a setter changed something; %0 = group.
    void saveSettings(const QString& group, const QString& organization, const QString& application);
    /// Reads the keys with the current values as defaults and stores them as they are.
    void loadSettings(const QString& group, const QString& organization, const QString& application);

private:
    void layOut();
    double baseLevel() const;
    void drawSides(const QVector3D& p, double bottom, double top) const;
    void drawCap(const QVector3D& p, double z, bool up) const;
    void drawFrame(const QVector3D& p, double bottom, double top) const;

    int ribNumber = 0;
    double radius = 0.0;
    bool frameVisible = false;
    double angleZ = 0.0;
    double multiplier = 1.0;
    int opacity = 100;
    QVector<QPointF> corners; ///< of the outline, counter-clockwise seen from above
    QVector<QPointF> normals; ///< of the sides, side i from corner i to corner i + 1
};

} // namespace Zel3D
