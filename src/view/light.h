#pragma once

#include "core/export.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QVector3D>

#include <array>

class QOpenGLContext;

namespace Zel3D {

/// One OpenGL fixed-function light.
///
/// The light stands on a sphere around the centre of the scene, given by radius and two angles. Setters store
/// their value at any time; they send it to OpenGL only while the context in which init() ran last is
/// current. What could not be sent reaches OpenGL with the next apply(), so two plots never write into each
/// other's context. Positions are in scene coordinates: the lights turn with the data.
class VORANPLOT_EXPORT Light : public QObject
{
    Q_OBJECT
public:
    /// The kind of light; the values are persisted.
    enum LightType : int {
        Directional = 0, ///< parallel rays, shown as "Directional"
        Dotted = 1,      ///< point light, shown as "Dotted"
        Spot = 2         ///< cone of light, shown as "Spot"
    };

    /// Direction and cone of a spot light.
    class VORANPLOT_EXPORT SpotSettings
    {
    public:
        /// The target point of the cone relative to the centre of the scene.
        const QVector3D& getDirection() const { return direction; }
        double getExponent() const { return exponent; }
        double getCutoff() const { return cutoff; }
        bool isModified() const { return modified; }

        /// The setters return whether the value changed.
        bool setDirection(const QVector3D& target);
        /// Concentration of the light, 0 to 128; other values are refused.
        bool setExponent(double value);
        /// Half the opening angle in degrees: 1 to 85, or 180 for no cone; other values are refused.
        bool setCutoff(double degrees);

    private:
        bool modified = false;
        QVector3D direction;
        double exponent = 0.0;
        double cutoff = 45.0;
    };

    /// What the light keeps of its appearance.
    class VORANPLOT_EXPORT Settings
    {
    public:
        LightType getType() const { return type; }
        bool isOn() const { return on; }
        const SpotSettings& getSpot() const { return spot; }
        SpotSettings& getSpot() { return spot; }
        const QColor& getAmbient() const { return ambient; }
        const QColor& getDiffuse() const { return diffuse; }
        const QColor& getSpecular() const { return specular; }

        /// The setters return whether the value changed.
        bool setType(LightType value);
        bool setOn(bool value);
        bool setAmbient(const QColor& color);
        bool setDiffuse(const QColor& color);
        bool setSpecular(const QColor& color);

    private:
        LightType type = Directional;
        bool on = false;
        SpotSettings spot;
        QColor ambient = Qt::gray;
        QColor diffuse = Qt::white;
        QColor specular = Qt::white;
    };

    /// \a number 0 to 7 is the light's index; \a radius in scene units, \a phi and \a theta in degrees.
    Light(unsigned int number, double radius, double phi, double theta, QObject* parent);
    ~Light() override;

    unsigned int getNumber() const { return number; }
    /// GL_LIGHT0 + number for 1 to 7; number 0 and any number above 7 give GL_LIGHT0.
    unsigned int getGLIndex() const;
    const Settings& getSettings() const { return settings; }
    bool isOn() const { return settings.isOn(); }
    LightType getType() const { return settings.getType(); }
    double getRadius() const { return radius; }
    double getPhi() const { return phi; }
    double getTheta() const { return theta; }
    const QVector3D& getCenter() const { return center; }
    /// Relative to the centre.
    const QVector3D& getPosition() const { return position; }
    const QColor& getMarkerColor() const { return markerColor; }
    double getMarkerHeight() const { return markerHeight; }
    double getConstAttenuation() const { return attenuation[0]; }
    double getLinearAttenuation() const { return attenuation[1]; }
    double getQuadraticAttenuation() const { return attenuation[2]; }
    double getSpotExponent() const { return settings.getSpot().getExponent(); }
    double getSpotCutoff() const { return settings.getSpot().getCutoff(); }
    const QVector3D& getSpotDirection() const { return settings.getSpot().getDirection(); }

    /// Sends the whole light to the current context and makes it the light's own. Without a context: nothing.
    void init();
    /// Switches the light on or off in the current context; sends before what could not be sent earlier.
    /// Without a context: nothing.
    void apply();
    /// Draws the marker at the light's position; the model-view matrix stands at the centre of the scene.
    void draw();
    /// Draws three segments along the axes, each in its own colour.
    void drawAxis();

    /// Setters return whether the value changed; paramsChanged() follows a change unless stated otherwise.
    bool setOn(bool on);
    /// Followed by typeChanged().
    bool setType(LightType type);
    bool setAmbient(const QColor& color);
    bool setDiffuse(const QColor& color);
    bool setSpecular(const QColor& color);
    /// 0 to 128; other values are refused.
    bool setSpotExponent(double exponent);
    /// 1 to 85 degrees or 180; other values are refused.
    bool setSpotCutoff(double degrees);
    /// A target point relative to the centre of the scene; followed by directionChanged().
    bool setSpotDirection(const QVector3D& target);
    bool setConstAttenuation(double value);
    bool setLinearAttenuation(double value);
    bool setQuadraticAttenuation(double value);
    bool setMarkerColor(const QColor& color);
    /// Scene units; no signal, the view sets it for all lights at once.
    void setMarkerHeight(double height);

    void setRadius(double radius);
    void setPhi(double degrees);
    void setTheta(double degrees);
    void setRadiusPhiTheta(double radius, double phi, double theta);
    /// The centre of the scene, around which the light stands.
    void setCenter(const QVector3D& center);

    /// Sends the position (relative to the centre) with the cut-off of the light's type.
    void setLightPosition(const QVector3D& position);
    /// Sends the direction of the cone.
    void setLightDirection(const QVector3D& direction);

    /// Reads "%0/type", "%0/on", "%0/spot/..." with %0 = group/lightN, N the light's number. Reaches OpenGL
    /// with the next init(), setter or apply().
    virtual void loadSettings(const QString& organization, const QString& application, const QString& group);
    virtual void saveSettings(const QString& organization, const QString& application, const QString& group);
    /// Remembers the material, so that the marker's emission does not leak into the scene.
    virtual void saveGLState();
    virtual void restoreGLState();

signals:
    void paramsChanged();
    void directionChanged();
    void typeChanged();

private:
    struct Material
    {
        std::array<float, 4> ambient{};
        std::array<float, 4> diffuse{};
        std::array<float, 4> specular{};
        std::array<float, 4> emission{};
        float shininess = 0.0F;
    };

    /// True when the light's own context is current; otherwise notes that the light must be sent again.
    bool canSend();
    void recalculate();
    void sendPosition(const QVector3D& position, bool force);
    void sendColor(unsigned int name, const QColor& color);
    bool setAttenuation(int index, double value);
    bool changed(bool yes);
    void drawBody();
    QString settingsPrefix(const QString& group) const;

    unsigned int number;
    Settings settings;
    double radius = 0.0;
    double phi = 0.0;
    double theta = 0.0;
    QVector3D center;
    QVector3D position;
    QColor markerColor = Qt::red;
    std::array<double, 3> attenuation{1.0, 0.0, 0.1}; ///< constant, linear, quadratic
    double markerHeight = 0.5;
    double markerGap = 0.1; ///< distance of the body from the light's position, as a fraction of the height
    double markerRadius = 0.4;           ///< radius of the body, as a fraction of the height
    QPointer<QOpenGLContext> ownContext; ///< null once the context is gone, so that none is mistaken for it
    bool pending = true;
    std::array<Material, 2> material; ///< front, back
};

} // namespace Zel3D
