#pragma once

#include "core/types.h"
#include "plots/hoverimage.h"
#include "plots/pickhighlight.h"
#include "plots/pickpass.h"
#include "plots/plotproperties.h"
#include "plots/preview.h"
#include "scene/drawtarget.h"
#include "scene/edgepolicy.h"

#include <QSet>

#include <array>
#include <memory>

namespace Zel3D {

class Addition;
struct PictureFrame;

/// What a plot keeps to itself.
struct PlotParts
{
    std::unique_ptr<PlotProperties> properties;
    QSet<const Addition*> addedMarkers; ///< the additions that setMarkers() made
    PickPass pickPass;
    PickHighlight pickHighlight;
    Preview preview;
    HoverImage hoverImage;
    std::array<double, 14> hoverKey{};         ///< of the image
    EdgeChoice edges;                          ///< of the last frame, while they are chosen automatically
    std::unique_ptr<DrawTarget> pictureTarget; ///< while pictures are made
    const PictureFrame* picture = nullptr;     ///< while a picture is drawn
    ValueXYZ<double> userScale;
    ValueXYZ<double> automaticScale;
    int coarseness = 1;           ///< while the list of the preview is compiled, its step
    bool isHoverAsked = false;    ///< whether the mouse alone asked for the next frame
    bool wasHoverAsked = false;   ///< and for the last one
    bool isHoverFrameDue = false; ///< whether one over the image will be drawn
    bool isHoverFrame = false;    ///< while it is drawn
    bool isMarkHeldBack = false;  ///< while a frame is drawn of which the image is taken
    bool hasWarnedOfGradient = false;
    bool hasWarnedOfLostValues = false;
};

} // namespace Zel3D
