#pragma once

#include <QLinearGradient>

/// Colours for heights: lowland green over ochre to the light rock of the summits.
///
/// The lightness rises evenly and neighbouring stops are equally far apart to the eye (about 12 in CIELAB),
/// so that equal steps of height look equal, also without colour. The summits stay darker than white paper.
QLinearGradient terrainGradient();
