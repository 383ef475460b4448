#include "harness/glrecorder.h"

#include <GL/gl.h>
#include <GL/glu.h>

#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>

namespace
{

struct Record {
    QStringList calls;
    QVector<GLRecorder::Primitive> primitives;
    GLRecorder::Vertex current;
    bool inside = false;
};

Record*& active()
{
    static Record* record = nullptr;
    return record;
}

/// The driver's entry point of a name. RTLD_NEXT skips the definitions of the test program.
template <class Function>
Function* next(const char* name)
{
    void* symbol = dlsym(RTLD_NEXT, name);
    if (!symbol) {
        std::fprintf(stderr, "GL recorder: the driver has no %s\n", name);
        std::abort();
    }
    return reinterpret_cast<Function*>(symbol);
}

QString text(double value)
{
    return QString::number(value, 'g', 9);
}

template <class... Numbers>
void note(const char* name, Numbers... numbers)
{
    if (!active() || active()->inside)
        return;
    QStringList arguments;
    (arguments.append(text(double(numbers))), ...);
    active()->calls.append(QString("%1(%2)").arg(QLatin1String(name), arguments.join(',')));
}

void setColor(double r, double g, double b, double a)
{
    if (active())
        active()->current.color = {r, g, b, a};
}

void setNormal(double x, double y, double z)
{
    if (active())
        active()->current.normal = {x, y, z};
}

void addVertex(double x, double y, double z)
{
    Record* record = active();
    if (!record || !record->inside)
        return;
    record->current.position = {x, y, z};
    record->primitives.last().vertices.append(record->current);
}

} // namespace

GLRecorder::GLRecorder()
{
    if (active()) {
        std::fprintf(stderr, "GL recorder: one recorder at a time\n");
        std::abort();
    }
    active() = new Record;
}

GLRecorder::~GLRecorder()
{
    delete active();
    active() = nullptr;
}

const QStringList& GLRecorder::calls() const
{
    return active()->calls;
}

const QVector<GLRecorder::Primitive>& GLRecorder::primitives() const
{
    return active()->primitives;
}

QVector<GLRecorder::Primitive> GLRecorder::primitives(unsigned int mode) const
{
    QVector<Primitive> result;
    for (const Primitive& primitive : qAsConst(active()->primitives)) {
        if (primitive.mode == mode)
            result.append(primitive);
    }
    return result;
}

int GLRecorder::count(const QString& name) const
{
    int found = 0;
    for (const QString& call : qAsConst(active()->calls)) {
        if (call.startsWith(name + '('))
            ++found;
    }
    return found;
}

int GLRecorder::indexOf(const QString& start, int from) const
{
    const QStringList& all = active()->calls;
    for (int i = from; i < all.size(); ++i) {
        if (all.at(i).startsWith(start))
            return i;
    }
    return -1;
}

void GLRecorder::clear()
{
    active()->calls.clear();
    active()->primitives.clear();
}

// The entry points. Each notes its call and forwards it.

extern "C" {

void glBegin(GLenum mode)
{
    static auto* const call = next<void(GLenum)>("glBegin");
    if (Record* record = active()) {
        record->calls.append(QString("glBegin(%1)").arg(mode));
        record->primitives.append(GLRecorder::Primitive{mode, {}});
        record->inside = true;
    }
    call(mode);
}

void glEnd()
{
    static auto* const call = next<void()>("glEnd");
    if (active())
        active()->inside = false;
    call();
}

void glVertex3d(GLdouble x, GLdouble y, GLdouble z)
{
    static auto* const call = next<void(GLdouble, GLdouble, GLdouble)>("glVertex3d");
    addVertex(x, y, z);
    call(x, y, z);
}

void glVertex3dv(const GLdouble* v)
{
    static auto* const call = next<void(const GLdouble*)>("glVertex3dv");
    addVertex(v[0], v[1], v[2]);
    call(v);
}

void glVertex3f(GLfloat x, GLfloat y, GLfloat z)
{
    static auto* const call = next<void(GLfloat, GLfloat, GLfloat)>("glVertex3f");
    addVertex(double(x), double(y), double(z));
    call(x, y, z);
}

void glVertex2d(GLdouble x, GLdouble y)
{
    static auto* const call = next<void(GLdouble, GLdouble)>("glVertex2d");
    addVertex(x, y, 0.0);
    call(x, y);
}

void glColor4d(GLdouble r, GLdouble g, GLdouble b, GLdouble a)
{
    static auto* const call = next<void(GLdouble, GLdouble, GLdouble, GLdouble)>("glColor4d");
    setColor(r, g, b, a);
    note("glColor4d", r, g, b, a);
    call(r, g, b, a);
}

void glColor4dv(const GLdouble* v)
{
    static auto* const call = next<void(const GLdouble*)>("glColor4dv");
    setColor(v[0], v[1], v[2], v[3]);
    note("glColor4dv", v[0], v[1], v[2], v[3]);
    call(v);
}

void glColor4f(GLfloat r, GLfloat g, GLfloat b, GLfloat a)
{
    static auto* const call = next<void(GLfloat, GLfloat, GLfloat, GLfloat)>("glColor4f");
    setColor(double(r), double(g), double(b), double(a));
    note("glColor4f", r, g, b, a);
    call(r, g, b, a);
}

void glNormal3d(GLdouble x, GLdouble y, GLdouble z)
{
    static auto* const call = next<void(GLdouble, GLdouble, GLdouble)>("glNormal3d");
    setNormal(x, y, z);
    note("glNormal3d", x, y, z);
    call(x, y, z);
}

void glNormal3dv(const GLdouble* v)
{
    static auto* const call = next<void(const GLdouble*)>("glNormal3dv");
    setNormal(v[0], v[1], v[2]);
    note("glNormal3dv", v[0], v[1], v[2]);
    call(v);
}

void glEnable(GLenum capability)
{
    static auto* const call = next<void(GLenum)>("glEnable");
    note("glEnable", capability);
    call(capability);
}

void glDisable(GLenum capability)
{
    static auto* const call = next<void(GLenum)>("glDisable");
    note("glDisable", capability);
    call(capability);
}

void glLineWidth(GLfloat width)
{
    static auto* const call = next<void(GLfloat)>("glLineWidth");
    note("glLineWidth", width);
    call(width);
}

void glPointSize(GLfloat size)
{
    static auto* const call = next<void(GLfloat)>("glPointSize");
    note("glPointSize", size);
    call(size);
}

void glLineStipple(GLint factor, GLushort pattern)
{
    static auto* const call = next<void(GLint, GLushort)>("glLineStipple");
    note("glLineStipple", factor, pattern);
    call(factor, pattern);
}

void glBlendFunc(GLenum source, GLenum destination)
{
    static auto* const call = next<void(GLenum, GLenum)>("glBlendFunc");
    note("glBlendFunc", source, destination);
    call(source, destination);
}

void glAlphaFunc(GLenum function, GLclampf reference)
{
    static auto* const call = next<void(GLenum, GLclampf)>("glAlphaFunc");
    note("glAlphaFunc", function, reference);
    call(function, reference);
}

void glPolygonOffset(GLfloat factor, GLfloat units)
{
    static auto* const call = next<void(GLfloat, GLfloat)>("glPolygonOffset");
    note("glPolygonOffset", factor, units);
    call(factor, units);
}

void glPolygonMode(GLenum face, GLenum mode)
{
    static auto* const call = next<void(GLenum, GLenum)>("glPolygonMode");
    note("glPolygonMode", face, mode);
    call(face, mode);
}

void glShadeModel(GLenum mode)
{
    static auto* const call = next<void(GLenum)>("glShadeModel");
    note("glShadeModel", mode);
    call(mode);
}

void glFrontFace(GLenum mode)
{
    static auto* const call = next<void(GLenum)>("glFrontFace");
    note("glFrontFace", mode);
    call(mode);
}

void glClear(GLbitfield mask)
{
    static auto* const call = next<void(GLbitfield)>("glClear");
    note("glClear", mask);
    call(mask);
}

void glClearColor(GLclampf r, GLclampf g, GLclampf b, GLclampf a)
{
    static auto* const call = next<void(GLclampf, GLclampf, GLclampf, GLclampf)>("glClearColor");
    note("glClearColor", r, g, b, a);
    call(r, g, b, a);
}

void glViewport(GLint x, GLint y, GLsizei width, GLsizei height)
{
    static auto* const call = next<void(GLint, GLint, GLsizei, GLsizei)>("glViewport");
    note("glViewport", x, y, width, height);
    call(x, y, width, height);
}

void glMatrixMode(GLenum mode)
{
    static auto* const call = next<void(GLenum)>("glMatrixMode");
    note("glMatrixMode", mode);
    call(mode);
}

void glPushMatrix()
{
    static auto* const call = next<void()>("glPushMatrix");
    note("glPushMatrix");
    call();
}

void glPopMatrix()
{
    static auto* const call = next<void()>("glPopMatrix");
    note("glPopMatrix");
    call();
}

void glPushAttrib(GLbitfield mask)
{
    static auto* const call = next<void(GLbitfield)>("glPushAttrib");
    note("glPushAttrib", mask);
    call(mask);
}

void glPopAttrib()
{
    static auto* const call = next<void()>("glPopAttrib");
    note("glPopAttrib");
    call();
}

void glLoadIdentity()
{
    static auto* const call = next<void()>("glLoadIdentity");
    note("glLoadIdentity");
    call();
}

void glLoadMatrixd(const GLdouble* matrix)
{
    static auto* const call = next<void(const GLdouble*)>("glLoadMatrixd");
    note("glLoadMatrixd", matrix[0], matrix[5], matrix[10], matrix[15]);
    call(matrix);
}

void glTranslatef(GLfloat x, GLfloat y, GLfloat z)
{
    static auto* const call = next<void(GLfloat, GLfloat, GLfloat)>("glTranslatef");
    note("glTranslatef", x, y, z);
    call(x, y, z);
}

void glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z)
{
    static auto* const call = next<void(GLfloat, GLfloat, GLfloat, GLfloat)>("glRotatef");
    note("glRotatef", angle, x, y, z);
    call(angle, x, y, z);
}

void glScalef(GLfloat x, GLfloat y, GLfloat z)
{
    static auto* const call = next<void(GLfloat, GLfloat, GLfloat)>("glScalef");
    note("glScalef", x, y, z);
    call(x, y, z);
}

void glOrtho(GLdouble left, GLdouble right, GLdouble bottom, GLdouble top, GLdouble nearPlane, GLdouble farPlane)
{
    static auto* const call =
        next<void(GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble)>("glOrtho");
    note("glOrtho", left, right, bottom, top, nearPlane, farPlane);
    call(left, right, bottom, top, nearPlane, farPlane);
}

void glFrustum(GLdouble left, GLdouble right, GLdouble bottom, GLdouble top, GLdouble nearPlane,
               GLdouble farPlane)
{
    static auto* const call =
        next<void(GLdouble, GLdouble, GLdouble, GLdouble, GLdouble, GLdouble)>("glFrustum");
    note("glFrustum", left, right, bottom, top, nearPlane, farPlane);
    call(left, right, bottom, top, nearPlane, farPlane);
}

GLuint glGenLists(GLsizei range)
{
    static auto* const call = next<GLuint(GLsizei)>("glGenLists");
    note("glGenLists", range);
    return call(range);
}

void glDeleteLists(GLuint list, GLsizei range)
{
    static auto* const call = next<void(GLuint, GLsizei)>("glDeleteLists");
    note("glDeleteLists", list, range);
    call(list, range);
}

void glNewList(GLuint list, GLenum mode)
{
    static auto* const call = next<void(GLuint, GLenum)>("glNewList");
    note("glNewList", list, mode);
    call(list, mode);
}

void glEndList()
{
    static auto* const call = next<void()>("glEndList");
    note("glEndList");
    call();
}

void glCallList(GLuint list)
{
    static auto* const call = next<void(GLuint)>("glCallList");
    note("glCallList", list);
    call(list);
}

void glDrawElements(GLenum mode, GLsizei count, GLenum type, const GLvoid* indices)
{
    static auto* const call = next<void(GLenum, GLsizei, GLenum, const GLvoid*)>("glDrawElements");
    note("glDrawElements", mode, count, type);
    call(mode, count, type, indices);
}

void glInitNames()
{
    static auto* const call = next<void()>("glInitNames");
    note("glInitNames");
    call();
}

void glPushName(GLuint name)
{
    static auto* const call = next<void(GLuint)>("glPushName");
    note("glPushName", name);
    call(name);
}

void glLoadName(GLuint name)
{
    static auto* const call = next<void(GLuint)>("glLoadName");
    note("glLoadName", name);
    call(name);
}

void glPopName()
{
    static auto* const call = next<void()>("glPopName");
    note("glPopName");
    call();
}

void glLightf(GLenum light, GLenum name, GLfloat value)
{
    static auto* const call = next<void(GLenum, GLenum, GLfloat)>("glLightf");
    note("glLightf", light, name, value);
    call(light, name, value);
}

void glLightfv(GLenum light, GLenum name, const GLfloat* values)
{
    static auto* const call = next<void(GLenum, GLenum, const GLfloat*)>("glLightfv");
    if (name == GL_SPOT_DIRECTION)
        note("glLightfv", light, name, values[0], values[1], values[2]);
    else
        note("glLightfv", light, name, values[0], values[1], values[2], values[3]);
    call(light, name, values);
}

void glMaterialfv(GLenum face, GLenum name, const GLfloat* values)
{
    static auto* const call = next<void(GLenum, GLenum, const GLfloat*)>("glMaterialfv");
    note("glMaterialfv", face, name, values[0]);
    call(face, name, values);
}

void glRasterPos3d(GLdouble x, GLdouble y, GLdouble z)
{
    static auto* const call = next<void(GLdouble, GLdouble, GLdouble)>("glRasterPos3d");
    note("glRasterPos3d", x, y, z);
    call(x, y, z);
}

void glBitmap(GLsizei width, GLsizei height, GLfloat xOrigin, GLfloat yOrigin, GLfloat xMove, GLfloat yMove,
              const GLubyte* bits)
{
    static auto* const call =
        next<void(GLsizei, GLsizei, GLfloat, GLfloat, GLfloat, GLfloat, const GLubyte*)>("glBitmap");
    note("glBitmap", width, height, xOrigin, yOrigin, xMove, yMove);
    call(width, height, xOrigin, yOrigin, xMove, yMove, bits);
}

void glDrawPixels(GLsizei width, GLsizei height, GLenum format, GLenum type, const void* pixels)
{
    static auto* const call = next<void(GLsizei, GLsizei, GLenum, GLenum, const void*)>("glDrawPixels");
    note("glDrawPixels", width, height, format, type);
    call(width, height, format, type, pixels);
}

void gluCylinder(GLUquadric* quadric, GLdouble base, GLdouble top, GLdouble height, GLint slices, GLint stacks)
{
    static auto* const call = next<void(GLUquadric*, GLdouble, GLdouble, GLdouble, GLint, GLint)>("gluCylinder");
    note("gluCylinder", base, top, height, slices, stacks);
    call(quadric, base, top, height, slices, stacks);
}

void gluDisk(GLUquadric* quadric, GLdouble inner, GLdouble outer, GLint slices, GLint loops)
{
    static auto* const call = next<void(GLUquadric*, GLdouble, GLdouble, GLint, GLint)>("gluDisk");
    note("gluDisk", inner, outer, slices, loops);
    call(quadric, inner, outer, slices, loops);
}

void gluQuadricDrawStyle(GLUquadric* quadric, GLenum style)
{
    static auto* const call = next<void(GLUquadric*, GLenum)>("gluQuadricDrawStyle");
    note("gluQuadricDrawStyle", style);
    call(quadric, style);
}
}
