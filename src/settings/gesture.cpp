#include "settings/gesture.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QStringList>

namespace Zel3D {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Gesture)
};

struct Button
{
    Qt::MouseButton button;
    const char* stored;
    const char* text;
};

constexpr Button buttonNames[] = {
    {Qt::LeftButton, "LeftButton", QT_TRANSLATE_NOOP("Gesture", "Left button")},
    {Qt::MiddleButton, "MiddleButton", QT_TRANSLATE_NOOP("Gesture", "Middle button")},
    {Qt::RightButton, "RightButton", QT_TRANSLATE_NOOP("Gesture", "Right button")},
    {Qt::BackButton, "BackButton", QT_TRANSLATE_NOOP("Gesture", "Back button")},
    {Qt::ForwardButton, "ForwardButton", QT_TRANSLATE_NOOP("Gesture", "Forward button")},
};

struct Modifier
{
    Qt::KeyboardModifier modifier;
    const char* stored;
};

/// In the order in which key sequences are written.
constexpr Modifier modifierNames[] = {
    {Qt::MetaModifier, "Meta"},   {Qt::ControlModifier, "Ctrl"}, {Qt::AltModifier, "Alt"},
    {Qt::ShiftModifier, "Shift"}, {Qt::KeypadModifier, "Num"},
};

QStringList modifiersOf(Qt::KeyboardModifiers held, bool forPeople)
{
    QStringList names;
    for (const Modifier& known : modifierNames) {
        if (!(held & known.modifier))
            continue;
        // Qt knows the names of the platform.
        const QString native = QKeySequence(int(known.modifier)).toString(QKeySequence::NativeText);
        names.append(forPeople && native.endsWith('+') ? native.chopped(1) : QString(known.stored));
    }
    return names;
}

bool takeModifier(Gesture& gesture, const QString& name)
{
    for (const Modifier& known : modifierNames) {
        if (name == QLatin1String(known.stored)) {
            gesture.modifiers |= known.modifier;
            return true;
        }
    }
    return false;
}

bool takeButton(Gesture& gesture, const QString& name)
{
    for (const Button& known : buttonNames) {
        if (name == QLatin1String(known.stored)) {
            gesture.buttons |= known.button;
            return true;
        }
    }
    return false;
}

bool takeKey(Gesture& gesture, const QString& name)
{
    const QKeySequence sequence = QKeySequence::fromString(name, QKeySequence::PortableText);
    const int code = sequence.count() == 1 ? sequence[0] : 0;
    if (gesture.key != 0 || code == 0 || (code & int(Qt::KeyboardModifierMask)) != 0)
        return false;
    gesture.key = code;
    return true;
}

bool isModifierKey(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr ||
           key == Qt::Key_unknown;
}

} // namespace

bool Gesture::operator==(const Gesture& other) const
{
    return kind == other.kind && buttons == other.buttons && key == other.key && modifiers == other.modifiers;
}

bool Gesture::isValid() const
{
    switch (kind) {
    case Drag:
        return buttons != Qt::NoButton;
    case Key:
        return key > 0 && !isModifierKey(key);
    case Hover:
        return true;
    }
    return false;
}

QString Gesture::text() const
{
    QStringList parts = modifiersOf(modifiers, true);
    for (const Button& known : buttonNames) {
        if (kind == Drag && (buttons & known.button))
            parts.append(Words::tr(known.text));
    }
    if (kind == Key)
        parts.append(QKeySequence(key).toString(QKeySequence::NativeText));
    return parts.isEmpty() ? Words::tr("No modifier") : parts.join('+');
}

QString Gesture::stored() const
{
    QStringList parts = modifiersOf(modifiers, false);
    for (const Button& known : buttonNames) {
        if (kind == Drag && (buttons & known.button))
            parts.append(known.stored);
    }
    if (kind == Key)
        parts.append(QKeySequence(key).toString(QKeySequence::PortableText));
    return parts.isEmpty() ? QStringLiteral("None") : parts.join('+');
}

std::optional<Gesture> Gesture::fromStored(Kind kind, const QString& text)
{
    Gesture gesture;
    gesture.kind = kind;
    if (kind == Hover && text == QLatin1String("None"))
        return gesture;
    QString rest = text;
    while (!rest.isEmpty()) {
        // The key may be a plus sign itself.
        const int sign = rest.indexOf('+', 1);
        const QString part = rest.left(sign);
        rest = sign < 0 ? QString() : rest.mid(sign + 1);
        const bool taken = takeModifier(gesture, part) || (kind == Drag && takeButton(gesture, part)) ||
                           (kind == Key && takeKey(gesture, part));
        if (!taken || (sign >= 0 && rest.isEmpty()))
            return {};
    }
    return gesture.isValid() && !text.isEmpty() ? std::optional<Gesture>(gesture) : std::nullopt;
}

} // namespace Zel3D
