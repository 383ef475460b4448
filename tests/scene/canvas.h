#pragma once

#include "harness/harness.h"
#include "scene/viewframe.h"

#include <GL/gl.h>

#include <QGLWidget>
#include <QRect>
#include <QVector3D>

#include <cmath>
#include <functional>

/// The switches of a plot's camera.
struct Camera
{
    double rotationX = 0.0;
    double rotationZ = 0.0;
    bool perspective = false;
    double rotationY = 0.0;
    QVector3D scale = QVector3D(1, 1, 1);
};

/// A white GL widget that paints what a test hands it.
class Canvas : public QGLWidget
{
public:
    Canvas() : QGLWidget(QGLFormat(QGL::DoubleBuffer | QGL::DepthBuffer)) {}

    std::function<void()> paint = [] {};

    /// Puts the camera of a plot on the projection matrix: the box seen from the front, its z axis upwards.
    static void applyCamera(const Camera& camera, const QVector3D& first, const QVector3D& second)
    {
        const QVector3D centre = (first + second) * 0.5F;
        const double r = double(((second - first) * camera.scale).length()) / 2.0;
        if (camera.perspective)
            glFrustum(-r, r, -r, r, 5.0 * r, 400.0 * r);
        else
            glOrtho(-r, r, -r, r, 0.0, 40.0 * r);
        glTranslatef(0.0F, 0.0F, float(-7.0 * r));
        glRotatef(float(camera.rotationX - 90.0), 1.0F, 0.0F, 0.0F);
        glRotatef(float(camera.rotationY), 0.0F, 1.0F, 0.0F);
        glRotatef(float(camera.rotationZ), 0.0F, 0.0F, 1.0F);
        glScalef(camera.scale.x(), camera.scale.y(), camera.scale.z());
        glTranslatef(-centre.x(), -centre.y(), -centre.z());
    }
    /// The frame that applyCamera() makes in a window of a size. Needs a current context.
    static Zel3D::ViewFrame frame(const Camera& camera, const QVector3D& first, const QVector3D& second,
                                  const QSize& size)
    {
        glViewport(0, 0, size.width(), size.height());
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadIdentity();
        applyCamera(camera, first, second);
        const Zel3D::ViewFrame result = Zel3D::currentViewFrame();
        glPopMatrix();
        glMatrixMode(GL_MODELVIEW);
        return result;
    }

protected:
    void initializeGL() override
    {
        glEnable(GL_BLEND);
        glEnable(GL_DEPTH_TEST);
    }
    void resizeGL(int width, int height) override { glViewport(0, 0, width, height); }
    void paintGL() override
    {
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glClearColor(1.0F, 1.0F, 1.0F, 1.0F);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        paint();
    }
};

/// The rectangle of the pixels that are not white, x to the right and y upwards from the lower left corner;
/// null without any.
inline QRect inkRect(const QImage& picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if ((picture.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF)
                ink |= QRect(x, picture.height() - 1 - y, 1, 1);
        }
    }
    return ink;
}
