#pragma once

namespace Zel3D {

/// The corner, edge or centre of a text's box that lies at the label's position. The values are persisted.
enum Alignment : int {
    TopLeft = 0,
    TopCenter = 1,
    TopRight = 2,
    CenterLeft = 3,
    Center = 4,
    CenterRight = 5,
    BottomLeft = 6,
    BottomCenter = 7,
    BottomRight = 8
};

/// How a tick mark lies on its axis. The values are persisted.
enum TicStyle : int {
    TicOut = 0, ///< from the axis outward, shown as "Out"
    TicBoth = 1 ///< through the axis to both sides, shown as "Both"
};

/// The size of an arrow relative to what its owner gives it. The values are persisted.
enum ArrowSizeStyle : int {
    ArrowSmall = 0,  ///< 0.6 times, shown as "Small"
    ArrowNormal = 1, ///< as given, shown as "Normal"
    ArrowLarge = 2   ///< 1.4 times
};

/// The faces of the coordinate box that show grid lines; a grid style is a set of these bits.
enum Grid : int { GridLeft = 1, GridRight = 2, GridFront = 4, GridBack = 8, GridTop = 16, GridBottom = 32 };

} // namespace Zel3D
