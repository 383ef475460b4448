// The marker of a light and the material state around it.

#include "core/types.h"
#include "view/glmode.h"
#include "view/glscopes.h"
#include "view/light.h"
#include "view/opengl.h"
#include "view/rotateonto.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int slices = 20;
constexpr std::array<GLenum, 2> faces{GL_FRONT, GL_BACK};

void setEmission(const QColor& color)
{
    const std::array<float, 4> emission{float(color.redF()), float(color.greenF()), float(color.blueF()),
                                        float(color.alphaF())};
    glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, emission.data());
}

} // namespace

void Light::draw()
{
    const AttributeScope attributes(GL_LINE_BIT | GL_CURRENT_BIT);
    const ModelViewScope matrix;
    glTranslatef(position.x(), position.y(), position.z());
    rotateOnto(getSpotDirection() - position);
    drawAxis();
    glColor4d(markerColor.redF(), markerColor.greenF(), markerColor.blueF(), markerColor.alphaF());
    drawBody();
}

void Light::drawBody()
{
    const Quadric quadric(GLU_FILL);
    gluQuadricNormals(quadric.get(), GLU_SMOOTH);
    gluQuadricOrientation(quadric.get(), GLU_OUTSIDE);
    const double bodyRadius = markerHeight * markerRadius;
    switch (getType()) {
    case Dotted:
        saveGLState();
        setEmission(settings.getDiffuse());
        gluSphere(quadric.get(), markerHeight * 0.5, slices, slices);
        restoreGLState();
        break;
    case Spot: {
        // The cone opens along the light's direction; very wide cones are drawn as 80 degrees.
        const double opening = translateToRadian(std::min(getSpotCutoff(), 80.0));
        gluCylinder(quadric.get(), 0.0, markerHeight * std::tan(opening), markerHeight, slices, 1);
        break;
    }
    default:
        // The lamp stands behind the light's position and shines along +Z.
        glTranslatef(0.0F, 0.0F, float(-markerHeight * (1.0 + markerGap)));
        gluCylinder(quadric.get(), bodyRadius, bodyRadius, markerHeight, slices, 1);
        gluDisk(quadric.get(), 0.0, bodyRadius, slices, 1);
        glTranslatef(0.0F, 0.0F, float(markerHeight));
        gluDisk(quadric.get(), 0.0, bodyRadius, slices, 1);
        break;
    }
}

void Light::drawAxis()
{
    glEnable(GL_LINE_SMOOTH);
    glLineWidth(2.0F);
    const double length = markerHeight * 1.5;
    glBegin(GL_LINES);
    glColor4d(0.8, 0.1, 0.1, 1.0);
    glVertex3d(0.0, 0.0, 0.0);
    glVertex3d(length, 0.0, 0.0);
    glColor4d(0.1, 0.6, 0.1, 1.0);
    glVertex3d(0.0, 0.0, 0.0);
    glVertex3d(0.0, length, 0.0);
    glColor4d(0.1, 0.2, 0.8, 1.0);
    glVertex3d(0.0, 0.0, 0.0);
    glVertex3d(0.0, 0.0, length);
    glEnd();
    glDisable(GL_LINE_SMOOTH);
}

void Light::saveGLState()
{
    for (std::size_t i = 0; i < faces.size(); ++i) {
        glGetMaterialfv(faces[i], GL_AMBIENT, material[i].ambient.data());
        glGetMaterialfv(faces[i], GL_DIFFUSE, material[i].diffuse.data());
        glGetMaterialfv(faces[i], GL_SPECULAR, material[i].specular.data());
        glGetMaterialfv(faces[i], GL_SHININESS, &material[i].shininess);
        glGetMaterialfv(faces[i], GL_EMISSION, material[i].emission.data());
    }
}

void Light::restoreGLState()
{
    for (std::size_t i = 0; i < faces.size(); ++i) {
        glMaterialfv(faces[i], GL_AMBIENT, material[i].ambient.data());
        glMaterialfv(faces[i], GL_DIFFUSE, material[i].diffuse.data());
        glMaterialfv(faces[i], GL_SPECULAR, material[i].specular.data());
        glMaterialf(faces[i], GL_SHININESS, material[i].shininess);
        glMaterialfv(faces[i], GL_EMISSION, material[i].emission.data());
    }
}

} // namespace Zel3D
