#pragma once

#include "core/export.h"

#include <QString>
#include <Qt>

#include <optional>

namespace Zel3D {

/// What a person does to change the view: drag with mouse buttons, press a key, or hover, each while
/// modifiers are held.
struct VORANPLOT_EXPORT Gesture
{
    enum Kind { Drag, Key, Hover };

    /// As people read it, in their language: "Shift+Left button", "Ctrl+Up", "No modifier".
    QString text() const;
    /// As it is kept: "Shift+LeftButton", "Ctrl+Up", "None".
    QString stored() const;
    /// Nothing for what is no gesture of the kind.
    static std::optional<Gesture> fromStored(Kind kind, const QString& text);
    /// Whether it can be used: a drag has buttons, a key gesture a key that is no modifier.
    bool isValid() const;

    bool operator==(const Gesture& other) const;
    bool operator!=(const Gesture& other) const { return !(*this == other); }

    Kind kind = Hover;
    Qt::MouseButtons buttons = Qt::NoButton; ///< of a drag
    int key = 0;                             ///< a Qt::Key
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

} // namespace Zel3D
