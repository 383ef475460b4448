#pragma once

#include "plots/look.h"
#include "plotstyles.h"

#include <QMap>

#include <optional>

class PlotView;

/// What a person chose for one plot and finds again in the next: styles, look, light, picking and projection.
/// Comes back with the program, but for the projection.
class PlotPreferences
{
public:
    /// As stored.
    static PlotPreferences stored();
    void store() const;

    /// What the next plot is like, but for the look where the person prefers a standard one.
    void takeFrom(PlotView& view);
    void applyTo(PlotView& view) const;

    void setLook(const Zel3D::Look& look) { m_look = look; }
    /// The look of this name; false when there is none, and the look stays.
    bool takeLook(const QString& name);
    void setStyle(PlotKind kind, int style) { m_styles[kind] = style; }

private:
    QMap<PlotKind, int> m_styles;
    Zel3D::Look m_look = Zel3D::Look::light();
    bool m_picking = true;
    bool m_lighting = true;
    bool m_perspective = false;
};
