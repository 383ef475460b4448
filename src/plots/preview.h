#pragma once

#include "scene/title.h"

namespace Zel3D {

/// How long the frames of a plot take, of which the time of a full one is told.
class FrameTimes
{
public:
    /// The next frame is the first of a list, which takes about twice as long as a later one.
    void restart() { fresh = true; }
    /// Milliseconds of a frame that showed everything.
    void add(double milliseconds);
    /// Milliseconds that a full frame takes: the quicker of the last two, so that one that other programs
    /// disturbed does not count; 0 as long as none is known.
    double full() const;

private:
    bool fresh = true;
    bool guessed = false;
    double last = 0.0;
    double before = 0.0;
};

/// When a plot that is turned by hand is drawn with fewer nodes, and with how many.
struct Preview
{
    /// Slower frames than this, in milliseconds, do not turn smoothly.
    static constexpr double slowFrame = 50.0;
    /// The step of the nodes, as a multiple of the resolution, with which a frame that takes so long full
    /// becomes fluent; 1 for no preview. At most \a coarsest.
    static int stepFor(double fullFrame, int coarsest);

    Preview();
    /// The word in the corner, readable on a background. Needs a current context.
    void drawMark(const QColor& background, double pixelRatio);

    bool isWanted = false;
    bool isShown = false;
    bool isListed = false; ///< whether the list of the preview is that of the data
    int step = 1;          ///< of the list of the preview
    FrameTimes times;
    Title mark;
};

} // namespace Zel3D
