#include "view/light.h"

#include "core/types.h"
#include "view/glscopes.h"
#include "view/opengl.h"

#include <QOpenGLContext>
#include <QSettings>

#include <cmath>

namespace Zel3D {

namespace {

std::array<float, 4> channels(const QColor& color)
{
    return {float(color.redF()), float(color.greenF()), float(color.blueF()), float(color.alphaF())};
}

constexpr std::array<GLenum, 3> attenuationNames{GL_CONSTANT_ATTENUATION, GL_LINEAR_ATTENUATION,
                                                 GL_QUADRATIC_ATTENUATION};

} // namespace

bool Light::SpotSettings::setDirection(const QVector3D& target)
{
    if (direction.x() == target.x() && direction.y() == target.y() && direction.z() == target.z())
        return false;
    direction = target;
    modified = true;
    return true;
}

bool Light::SpotSettings::setExponent(double value)
{
    if (!(value >= 0.0 && value <= 128.0) || value == exponent)
        return false;
    exponent = value;
    modified = true;
    return true;
}

bool Light::SpotSettings::setCutoff(double degrees)
{
    const bool allowed = (degrees >= 1.0 && degrees <= 85.0) || degrees == 180.0;
    if (!allowed || degrees == cutoff)
        return false;
    cutoff = degrees;
    modified = true;
    return true;
}

bool Light::Settings::setType(LightType value)
{
    if (type == value)
        return false;
    type = value;
    return true;
}

bool Light::Settings::setOn(bool value)
{
    if (on == value)
        return false;
    on = value;
    return true;
}

bool Light::Settings::setAmbient(const QColor& color)
{
    if (!(ambient != color))
        return false;
    ambient = color;
    return true;
}

bool Light::Settings::setDiffuse(const QColor& color)
{
    if (!(diffuse != color))
        return false;
    diffuse = color;
    return true;
}

bool Light::Settings::setSpecular(const QColor& color)
{
    if (!(specular != color))
        return false;
    specular = color;
    return true;
}

Light::Light(unsigned int lightNumber, double lightRadius, double lightPhi, double lightTheta,
             QObject* parent)
    : QObject(parent), number(lightNumber)
{
    setObjectName("light");
    setRadiusPhiTheta(lightRadius, lightPhi, lightTheta);
}

Light::~Light() = default;

unsigned int Light::getGLIndex() const
{
    return number >= 1 && number <= 7 ? GL_LIGHT0 + number : GL_LIGHT0;
}

bool Light::canSend()
{
    if (ownContext && QOpenGLContext::currentContext() == ownContext)
        return true;
    pending = true;
    return false;
}

void Light::init()
{
    ownContext = QOpenGLContext::currentContext();
    if (!ownContext)
        return;
    setLightPosition(position);
    setLightDirection(getSpotDirection() - position);
    sendColor(GL_AMBIENT, settings.getAmbient());
    sendColor(GL_DIFFUSE, settings.getDiffuse());
    sendColor(GL_SPECULAR, settings.getSpecular());
    glLightf(getGLIndex(), GL_SPOT_EXPONENT, float(getSpotExponent()));
    for (std::size_t i = 0; i < attenuation.size(); ++i)
        glLightf(getGLIndex(), attenuationNames[i], float(attenuation[i]));
    pending = false;
}

void Light::apply()
{
    if (pending || QOpenGLContext::currentContext() != ownContext)
        init();
    if (!ownContext)
        return;
    if (isOn())
        glEnable(getGLIndex());
    else
        glDisable(getGLIndex());
}

bool Light::changed(bool yes)
{
    if (yes)
        emit paramsChanged();
    return yes;
}

bool Light::setOn(bool on)
{
    return changed(settings.setOn(on));
}

bool Light::setType(LightType type)
{
    if (!settings.setType(type))
        return false;
    sendPosition(position, true);
    emit typeChanged();
    return true;
}

void Light::sendColor(unsigned int name, const QColor& color)
{
    if (canSend())
        glLightfv(getGLIndex(), name, channels(color).data());
}

bool Light::setAmbient(const QColor& color)
{
    if (!settings.setAmbient(color))
        return false;
    sendColor(GL_AMBIENT, color);
    return changed(true);
}

bool Light::setDiffuse(const QColor& color)
{
    if (!settings.setDiffuse(color))
        return false;
    sendColor(GL_DIFFUSE, color);
    return changed(true);
}

bool Light::setSpecular(const QColor& color)
{
    if (!settings.setSpecular(color))
        return false;
    sendColor(GL_SPECULAR, color);
    return changed(true);
}

bool Light::setSpotExponent(double exponent)
{
    if (!settings.getSpot().setExponent(exponent))
        return false;
    if (canSend())
        glLightf(getGLIndex(), GL_SPOT_EXPONENT, float(exponent));
    return changed(true);
}

bool Light::setSpotCutoff(double degrees)
{
    if (!settings.getSpot().setCutoff(degrees))
        return false;
    if (canSend())
        glLightf(getGLIndex(), GL_SPOT_CUTOFF, float(degrees));
    return changed(true);
}

bool Light::setSpotDirection(const QVector3D& target)
{
    if (!settings.getSpot().setDirection(target))
        return false;
    setLightDirection(target - position);
    emit directionChanged();
    return true;
}

bool Light::setAttenuation(int index, double value)
{
    const auto i = std::size_t(index);
    // OpenGL's value decides while it can be asked: it may differ from the stored one.
    auto held = float(attenuation[i]);
    const bool send = canSend();
    if (send)
        glGetLightfv(getGLIndex(), attenuationNames[i], &held);
    if (float(value) == held)
        return false;
    attenuation[i] = value;
    if (send)
        glLightf(getGLIndex(), attenuationNames[i], float(value));
    return changed(true);
}

bool Light::setConstAttenuation(double value)
{
    return setAttenuation(0, value);
}

bool Light::setLinearAttenuation(double value)
{
    return setAttenuation(1, value);
}

bool Light::setQuadraticAttenuation(double value)
{
    return setAttenuation(2, value);
}

bool Light::setMarkerColor(const QColor& color)
{
    if (markerColor == color)
        return false;
    markerColor = color;
    return changed(true);
}

void Light::setMarkerHeight(double height)
{
    markerHeight = height;
}

void Light::setRadius(double lightRadius)
{
    setRadiusPhiTheta(lightRadius, phi, theta);
}

void Light::setPhi(double degrees)
{
    setRadiusPhiTheta(radius, degrees, theta);
}

void Light::setTheta(double degrees)
{
    setRadiusPhiTheta(radius, phi, degrees);
}

void Light::setRadiusPhiTheta(double lightRadius, double lightPhi, double lightTheta)
{
    const bool moved = radius != lightRadius || phi != lightPhi || theta != lightTheta;
    radius = lightRadius;
    phi = lightPhi;
    theta = lightTheta;
    recalculate();
    changed(moved);
}

void Light::setCenter(const QVector3D& sceneCenter)
{
    center = sceneCenter;
    sendPosition(position, true);
}

void Light::recalculate()
{
    const double t = translateToRadian(theta);
    const double p = translateToRadian(phi);
    position = QVector3D(float(radius * std::sin(t) * std::cos(p)), float(radius * std::sin(t) * std::sin(p)),
                         float(radius * std::cos(t)));
    setLightPosition(position);
}

void Light::setLightPosition(const QVector3D& lightPosition)
{
    sendPosition(lightPosition, false);
}

void Light::sendPosition(const QVector3D& p, bool force)
{
    if (!canSend())
        return;
    const unsigned int index = getGLIndex();
    const ModelViewScope matrix;
    glTranslatef(center.x(), center.y(), center.z());
    std::array<float, 4> held{};
    glGetLightfv(index, GL_POSITION, held.data());
    const std::array<float, 4> wanted{p.x(), p.y(), p.z(),
                                      getType() == Dotted || getType() == Spot ? 1.0F : 0.0F};
    if (force || held != wanted) {
        glLightfv(index, GL_POSITION, wanted.data());
        if (getType() == Spot)
            setLightDirection(getSpotDirection() - p);
    }
    glLightf(index, GL_SPOT_CUTOFF, getType() == Spot ? float(getSpotCutoff()) : 180.0F);
}

void Light::setLightDirection(const QVector3D& direction)
{
    if (!canSend())
        return;
    const std::array<float, 3> wanted{direction.x(), direction.y(), direction.z()};
    glLightfv(getGLIndex(), GL_SPOT_DIRECTION, wanted.data());
}

QString Light::settingsPrefix(const QString& group) const
{
    return QString("%0/%1%2").arg(group).arg(objectName()).arg(number);
}

void Light::loadSettings(const QString& organization, const QString& application, const QString& group)
{
    const QSettings store(organization, application);
    const QString prefix = settingsPrefix(group);
    const auto value = [&](const char* key, const QVariant& current) {
        return store.value(QString(key).arg(prefix), current);
    };
    SpotSettings& spot = settings.getSpot();
    const QVector3D target = spot.getDirection();
    settings.setType(LightType(value("%0/type", int(getType())).toInt()));
    settings.setOn(value("%0/on", isOn()).toBool());
    const double z = value("%0/spot/directionZ", double(target.z())).toDouble();
    const double y = value("%0/spot/directionY", double(target.y())).toDouble();
    const double x = value("%0/spot/directionX", double(target.x())).toDouble();
    spot.setDirection(QVector3D(float(x), float(y), float(z)));
    spot.setExponent(value("%0/spot/exponent", spot.getExponent()).toDouble());
    spot.setCutoff(value("%0/spot/cutoff", spot.getCutoff()).toDouble());
    pending = true;
}

void Light::saveSettings(const QString& organization, const QString& application, const QString& group)
{
    QSettings store(organization, application);
    const QString prefix = settingsPrefix(group);
    const auto write = [&](const char* key, const QVariant& value) {
        store.setValue(QString(key).arg(prefix), value);
    };
    const SpotSettings& spot = settings.getSpot();
    write("%0/type", int(getType()));
    write("%0/on", isOn());
    write("%0/spot/directionZ", double(spot.getDirection().z()));
    write("%0/spot/directionY", double(spot.getDirection().y()));
    write("%0/spot/directionX", double(spot.getDirection().x()));
    write("%0/spot/exponent", spot.getExponent());
    write("%0/spot/cutoff", spot.getCutoff());
}

} // namespace Zel3D
