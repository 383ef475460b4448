#pragma once

#include "scene/label.h"

#include <QPointF>

namespace Zel3D {

/// The title of a plot: a label that stands at a fraction of the window's size instead of a point of the
/// world, in front of everything. Visible by default; its name is "title".
class VORANPLOT_EXPORT Title : public Label
{
public:
    Title();

    /// The group is "%0/%1" of the prefix and the name: "%0/relativePosition", then as a label.
    void loadSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    /// Writes the relative position when the title itself is marked for saving.
    void saveSettings(const QString& prefix, const QString& organization,
                      const QString& application) override;
    /// Places the title at its fraction of the viewport, which may have changed since the last frame, and
    /// moves it into the window when it would cross an edge and has room.
    void calculate() override;

    /// Fractions of the window's width (from the left) and height (from the bottom); (0.5, 0.95) by default.
    const QPointF& getRelativePosition() const { return relative; }
    /// A coordinate outside 0 to 1 becomes 0.5. Returns whether the position changed; a change marks the
    /// title for saving.
    bool setRelativePosition(QPointF position);

private:
    QPointF relative = QPointF(0.5, 0.95);
};

} // namespace Zel3D
