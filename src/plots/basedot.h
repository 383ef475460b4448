#pragma once

#include "plots/vertexaddition.h"

class QString;

namespace Zel3D {

/// A marker drawn as an OpenGL point; keys "%0/dot/size" and "%0/dot/smooth".
class VORANPLOT_EXPORT BaseDot : public VertexAddition
{
public:
    /// Size 1, not smooth.
    BaseDot() = default;
    /// \a size in pixels; \a smooth draws round points.
    BaseDot(double size, bool smooth);

    double getSize() const { return size; }
    bool isSmooth() const { return smooth; }
    /// The setters return whether the value changed.
    bool setSize(double pixels);
    bool setSmooth(bool on);

    /// begin(), then glBegin(GL_POINTS).
    void drawBegin() override;
    /// glEnd(), then end().
    void drawEnd() override;
    /// Remembers point smoothing and size and applies the marker's own.
    void begin() override;
    /// Puts back what begin() remembered.
    void end() override;
    /// The point as a primitive of its own.
    void select(const QVector3D& p) override;
    bool reach(Parallelepiped& box) override; ///< a dot is a point

    /// Writes the keys if a setter changed something; %0 = group.
    void saveSettings(const QString& group, const QString& organization, const QString& application);
    /// Reads the keys with the current values as defaults and stores them as they are.
    void loadSettings(const QString& group, const QString& organization, const QString& application);

private:
    double size = 1.0;
    bool smooth = false;
    bool previousSmooth = false;
    float previousSize = 1.0F;
};

} // namespace Zel3D
