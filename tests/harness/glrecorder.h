#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <array>

/// Records the GL calls of the test program while it lives; every call is still forwarded to the driver.
///
/// The harness defines the recorded entry points in the test program, which come before the driver's when the
/// library's calls are resolved. Calls of Qt's own libraries are seen as well where these use the linked
/// symbols.
class GLRecorder
{
public:
    struct Vertex
    {
        std::array<double, 3> position{};
        std::array<double, 4> color{};  ///< the colour in force, as sent
        std::array<double, 3> normal{}; ///< the normal in force, as sent
    };
    /// One glBegin ... glEnd.
    struct Primitive
    {
        unsigned int mode = 0;
        QVector<Vertex> vertices;
    };

    GLRecorder();
    ~GLRecorder();
    GLRecorder(const GLRecorder&) = delete;
    GLRecorder& operator=(const GLRecorder&) = delete;

    /// Every call in order as text, for example "glEnable(2929)" or "glLineWidth(1)". The calls between
    /// glBegin and glEnd are in primitives() only.
    const QStringList& calls() const;
    const QVector<Primitive>& primitives() const;
    QVector<Primitive> primitives(unsigned int mode) const;
    /// How many calls begin with the name and its opening bracket.
    int count(const QString& name) const;
    /// Index of the first call that starts with the text at or after from; -1 without one.
    int indexOf(const QString& text, int from = 0) const;
    /// Forgets what was recorded.
    void clear();
};
