#pragma once

#include <QPair>
#include <Qt>

namespace Zel3D {

/// A mouse gesture: the buttons held and the modifiers held, compared exactly.
using MouseBinding = QPair<Qt::MouseButtons, Qt::KeyboardModifiers>;
/// A key gesture: the key and the modifiers held, compared exactly.
using KeyBinding = QPair<int, Qt::KeyboardModifiers>;

/// Which drags change what. One drag may match several bindings: with the defaults a plain left drag tilts
/// about X with its vertical and spins about Z with its horizontal part.
struct MouseBindings
{
    MouseBinding rotateX{Qt::LeftButton, Qt::NoModifier};                     ///< vertical drag
    MouseBinding rotateY{Qt::LeftButton, Qt::ShiftModifier};                  ///< horizontal drag
    MouseBinding rotateZ{Qt::LeftButton, Qt::NoModifier};                     ///< horizontal drag
    MouseBinding scaleX{Qt::LeftButton, Qt::AltModifier};                     ///< horizontal drag
    MouseBinding scaleY{Qt::LeftButton, Qt::AltModifier};                     ///< vertical drag
    MouseBinding scaleZ{Qt::LeftButton, Qt::AltModifier | Qt::ShiftModifier}; ///< vertical drag
    MouseBinding zoom{Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier}; ///< vertical drag
    MouseBinding shiftX{Qt::LeftButton, Qt::ControlModifier};                 ///< horizontal drag
    MouseBinding shiftY{Qt::LeftButton, Qt::ControlModifier};                 ///< vertical drag
};

/// Which keys change what.
struct KeyBindings
{
    KeyBinding rotateXPlus{Qt::Key_Down, Qt::NoModifier};
    KeyBinding rotateXMinus{Qt::Key_Up, Qt::NoModifier};
    KeyBinding rotateYPlus{Qt::Key_Right, Qt::ShiftModifier};
    KeyBinding rotateYMinus{Qt::Key_Left, Qt::ShiftModifier};
    KeyBinding rotateZPlus{Qt::Key_Right, Qt::NoModifier};
    KeyBinding rotateZMinus{Qt::Key_Left, Qt::NoModifier};
    KeyBinding scaleXPlus{Qt::Key_Right, Qt::AltModifier};
    KeyBinding scaleXMinus{Qt::Key_Left, Qt::AltModifier};
    KeyBinding scaleYMinus{Qt::Key_Down, Qt::AltModifier};
    KeyBinding scaleYPlus{Qt::Key_Up, Qt::AltModifier};
    KeyBinding scaleZMinus{Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier};
    KeyBinding scaleZPlus{Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier};
    KeyBinding zoomOut{Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier};
    KeyBinding zoomIn{Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier};
    KeyBinding shiftXPlus{Qt::Key_Right, Qt::ControlModifier};
    KeyBinding shiftXMinus{Qt::Key_Left, Qt::ControlModifier};
    KeyBinding shiftYMinus{Qt::Key_Down, Qt::ControlModifier};
    KeyBinding shiftYPlus{Qt::Key_Up, Qt::ControlModifier};
};

/// Pixels that one key press stands for.
struct KeySpeeds
{
    double rotation = 3.0;
    double scale = 5.0;
    double shift = 5.0;
};

/// Bits of the hot-key mask: which letter keys act.
enum HotKey : unsigned {
    LightingHotKey = 1,  ///< L
    SelectingHotKey = 2, ///< S
    InfoHotKey = 4,      ///< I
    NormalsHotKey = 8,   ///< N
    AutoScaleHotKey = 16 ///< A
};

} // namespace Zel3D
