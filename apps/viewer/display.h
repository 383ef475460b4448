#pragma once

#include <QString>

/// The display that the viewer draws on.
class Display
{
public:
    /// One sentence when no display is named in the environment, otherwise empty.
    static QString problem();
    /// To be called before the QApplication is made: a display that cannot be opened then ends the program
    /// with one sentence and status 1, where Qt would abort.
    static void guardOpening();
    /// To be called after it was made. One sentence when the display has no OpenGL, otherwise empty.
    static QString openingDone();
};
