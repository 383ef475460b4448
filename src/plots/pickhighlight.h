#pragma once

#include <QVector3D>

namespace Zel3D {

/// The mark of the picked point: a ring with four ticks, as large on the screen whatever the zoom is, and in
/// front of everything.
class PickHighlight
{
public:
    /// True when it changed.
    bool setVisible(bool on);
    bool isVisible() const { return visible; }
    /// Marks a point in scene units; true when the picture changes.
    bool show(const QVector3D& point);
    /// Marks nothing; true when the picture changes.
    bool hide();

    /// Needs a current context with the camera of the scene. \a pixelRatio: device pixels a logical one.
    void draw(double pixelRatio) const;

private:
    bool visible = false;
    bool marking = false;
    QVector3D place;
};

} // namespace Zel3D
