#pragma once

#include "plots/addition.h"
#include "plots/baseplot.h"
#include "plots/baseplotsettings.h"
#include "plots/blendscope.h"
#include "view/glmode.h"
#include "view/opengl.h"

namespace Zel3D {

/// The state in which a plot places a marker at its points: begun and ended, with the plot's offset,
/// smoothing and blending.
class MarkerScope
{
public:
    MarkerScope(const BasePlot& plot, Addition& placed)
        : offset(GL_POLYGON_OFFSET_FILL, true, false),
          smooth(GL_LINE_SMOOTH, plot.getSettings().getMesh().isSmooth(), false),
          unblended(isOpaque(plot, placed)),
          marker(placed)
    {
        glPolygonOffset(float(plot.getSettings().getPolygonOffset()), 1.0F);
        marker.drawBegin();
    }
    ~MarkerScope() { marker.drawEnd(); }
    MarkerScope(const MarkerScope&) = delete;
    MarkerScope& operator=(const MarkerScope&) = delete;

private:
    static bool isOpaque(const BasePlot& plot, Addition& placed)
    {
        placed.setPlot(plot);
        return placed.isOpaque();
    }

    const GLMode offset;
    const GLMode smooth;
    const BlendScope blending;
    const OpaqueScope unblended;
    Addition& marker;
};

} // namespace Zel3D
