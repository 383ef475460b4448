#pragma once

#include "core/settingsrecord.h"
#include "plots/baseplot.h"
#include "plots/cylinderaddition.h"
#include "plots/dot.h"

#include <QColor>
#include <QGradient>
#include <QHash>
#include <QList>
#include <QMap>
#include <QString>

// The settings records of a plot. Every setter returns whether the value changed; a value that equals the
// stored one or is rejected changes nothing. Saving writes a record's keys only when a setter changed it and
// clears no flag; loading reads every key with the current value as default and assigns it without a range
// check.

namespace Zel3D {

/// The lines of the grid mesh drawn over a surface; keys "%0/mesh/...".
class VORANPLOT_EXPORT BasePlot::MeshSettings : public SettingsRecord
{
public:
    double getLineWidth() const { return lineWidth; }
    const QColor& getColor() const { return color; }
    bool isSmooth() const { return smooth; }
    bool isXVisible() const { return xVisible; }
    bool isYVisible() const { return yVisible; }

    /// Pixels; rejected unless at least 0.
    bool setLineWidth(double pixels);
    bool setColor(const QColor& value);
    bool setSmooth(bool on);
    bool setXVisible(bool on); ///< the lines along a column
    bool setYVisible(bool on); ///< the lines along a row

    void saveSettings(const QString& prefix, const QString& organization, const QString& application);
    void loadSettings(const QString& prefix, const QString& organization, const QString& application);

private:
    double lineWidth = 1.0;
    QColor color = Qt::black;
    bool smooth = false;
    bool xVisible = true;
    bool yVisible = true;
};

/// The surface normals shown as short arrows; keys "%0/normals/...".
class VORANPLOT_EXPORT BasePlot::NormalsSettings : public SettingsRecord
{
public:
    bool isVisible() const { return visible; }
    double getQuality() const { return quality; }
    double getLength() const { return length; }

    bool setVisible(bool on);
    bool setQuality(double sides); ///< sides of an arrow's head
    bool setLength(double part);   ///< as a fraction of the diagonal of the data's box

    void saveSettings(const QString& prefix, const QString& organization, const QString& application);
    void loadSettings(const QString& prefix, const QString& organization, const QString& application);

private:
    bool visible = false;
    double quality = 10.0;
    double length = 0.05;
};

/// The gradients that the plot offers and the one in use; keys "%0/gradients/...".
///
/// Only the bulk setters mark the record for saving; addGradient() and setGradient() do not. The gradient
/// under the translated name "Default" is listed but its stops are neither written nor read: it comes from
/// the gradient store.
class VORANPLOT_EXPORT BasePlot::GradientsSettings : public SettingsRecord
{
public:
    const QMap<QString, QGradient>& getGradients() const { return gradients; }
    const QString& getCurrent() const { return current; }

    bool setCurrent(const QString& name);
    bool setGradients(const QMap<QString, QGradient>& all);
    bool setData(const QString& name, const QMap<QString, QGradient>& all);
    /// False when the name is taken.
    bool addGradient(const QString& name, const QGradient& gradient);
    /// Inserts or replaces the gradient and makes it the current one; always true.
    bool setGradient(const QString& name, const QGradient& gradient);

    void saveSettings(const QString& prefix, const QString& organization, const QString& application);
    void loadSettings(const QString& prefix, const QString& organization, const QString& application);

private:
    QMap<QString, QGradient> gradients;
    QString current;
};

/// The division of one axis under one scale type.
class VORANPLOT_EXPORT BasePlot::SingleAxesSettings
{
public:
    SingleAxesSettings() = default;
    /// Minor becomes the first of the offered counts when both counts are set and the list is not empty.
    SingleAxesSettings(unsigned int minorCount, unsigned int majorCount, const QList<unsigned int>& offered);

    unsigned int minor = 0;
    unsigned int major = 0;
    QList<unsigned int> minorIntervals; ///< the minor counts that the user interface offers
};

/// One axis: its current scale type and its division under each.
class VORANPLOT_EXPORT BasePlot::BaseAxesSettings
{
public:
    explicit BaseAxesSettings(ScaleType type = Linear);

    ScaleType scaleType;
    QHash<ScaleType, SingleAxesSettings> scales;
};

/// The division of each axis into major and minor intervals, remembered for each scale type, so that
/// switching the scale brings back what was last used with it; keys "%0/axis%1/scale%2/minor" and
/// ".../major". The scale type itself is not written here.
class VORANPLOT_EXPORT BasePlot::AxesSettings : public SettingsRecord
{
public:
    const QHash<BaseAxisType, BaseAxesSettings>& getAxes() const { return axes; }
    void addAxis(BaseAxisType axis, const BaseAxesSettings& division) { axes.insert(axis, division); }

    /// Absent axes and scales give 0 or an empty list. Without a scale type: under the axis' current one.
    ScaleType getAxesScaleType(BaseAxisType axis) const;
    unsigned int getMinorInterval(BaseAxisType axis, ScaleType scale) const;
    unsigned int getMajorInterval(BaseAxisType axis, ScaleType scale) const;
    QList<unsigned int> getMinorIntervals(BaseAxisType axis, ScaleType scale) const;
    unsigned int getMinorInterval(BaseAxisType axis) const;
    unsigned int getMajorInterval(BaseAxisType axis) const;
    QList<unsigned int> getMinorIntervals(BaseAxisType axis) const;

    bool setAxesScaleType(BaseAxisType axis, ScaleType scale);
    bool setMinorInterval(BaseAxisType axis, ScaleType scale, unsigned int count);
    bool setMajorInterval(BaseAxisType axis, ScaleType scale, unsigned int count);

    void saveSettings(const QString& prefix, const QString& organization, const QString& application);
    void loadSettings(const QString& prefix, const QString& organization, const QString& application);

private:
    SingleAxesSettings division(BaseAxisType axis, ScaleType scale) const;
    /// The stored division, or null.
    SingleAxesSettings* find(BaseAxisType axis, ScaleType scale);

    QHash<BaseAxisType, BaseAxesSettings> axes;
};

/// Everything that a plot keeps by itself; keys "%0/resolution", "%0/style", "%0/shadingStyle",
/// "%0/polygonOffset", "%0/viewProjection" and those of the nested records.
class VORANPLOT_EXPORT BasePlot::BasePlotSettings : public SettingsRecord
{
public:
    BasePlotSettings();

    int getResolution() const { return resolution; }
    int getStyle() const { return style; }
    ShadingStyle getShadingStyle() const { return shadingStyle; }
    double getPolygonOffset() const { return polygonOffset; }
    ViewProjection getViewProjection() const { return viewProjection; }

    /// The node step; values below 1 are rejected. A stored value below 1 is loaded as it stands.
    bool setResolution(int step);
    bool setStyle(int index);
    bool setShadingStyle(ShadingStyle value);
    bool setPolygonOffset(double factor);
    bool setViewProjection(ViewProjection value);

    const MeshSettings& getMesh() const { return mesh; }
    const NormalsSettings& getNormals() const { return normals; }
    const Dot& getDot() const { return dot; }
    const CylinderAddition& getCylinder() const { return cylinder; }
    const GradientsSettings& getGradients() const { return gradients; }
    const AxesSettings& getAxes() const { return axes; }
    MeshSettings& getMesh() { return mesh; }
    NormalsSettings& getNormals() { return normals; }
    Dot& getDot() { return dot; }
    CylinderAddition& getCylinder() { return cylinder; }
    GradientsSettings& getGradients() { return gradients; }
    AxesSettings& getAxes() { return axes; }

    /// Clears the flags of this record, mesh, normals, dot, cylinder and axes, but not that of the gradients:
    /// once marked, these are written at every later save.
    void resetNeedSave() override;

    void saveSettings(const QString& prefix, const QString& organization, const QString& application);
    void loadSettings(const QString& prefix, const QString& organization, const QString& application);

private:
    int resolution = 1;
    int style = 0;
    ShadingStyle shadingStyle = SmoothShading;
    double polygonOffset = 0.0;
    ViewProjection viewProjection = NoProjection;
    MeshSettings mesh;
    NormalsSettings normals;
    Dot dot;
    CylinderAddition cylinder;
    GradientsSettings gradients;
    AxesSettings axes;
};

} // namespace Zel3D
