#pragma once

#include "view/opengl.h"

namespace Zel3D {

/// Owns a GLU quadric.
class Quadric
{
public:
    explicit Quadric(unsigned int drawStyle) : quadric(gluNewQuadric())
    {
        gluQuadricDrawStyle(quadric, drawStyle);
    }
    ~Quadric() { gluDeleteQuadric(quadric); }
    Quadric(const Quadric&) = delete;
    Quadric& operator=(const Quadric&) = delete;

    GLUquadric* get() const { return quadric; }

private:
    GLUquadric* quadric;
};

/// Puts back, at the end of a scope, the groups of OpenGL state named by the bits of glPushAttrib().
class AttributeScope
{
public:
    explicit AttributeScope(unsigned int groups) { glPushAttrib(groups); }
    ~AttributeScope() { glPopAttrib(); }
    AttributeScope(const AttributeScope&) = delete;
    AttributeScope& operator=(const AttributeScope&) = delete;
};

/// Pushes the model-view matrix for a scope and puts back the matrix mode that was in force.
class ModelViewScope
{
public:
    ModelViewScope()
    {
        glGetIntegerv(GL_MATRIX_MODE, &mode);
        glMatrixMode(GL_MODELVIEW);
        glPushMatrix();
    }
    ~ModelViewScope()
    {
        glMatrixMode(GL_MODELVIEW);
        glPopMatrix();
        glMatrixMode(GLenum(mode));
    }
    ModelViewScope(const ModelViewScope&) = delete;
    ModelViewScope& operator=(const ModelViewScope&) = delete;

private:
    int mode = 0;
};

} // namespace Zel3D
