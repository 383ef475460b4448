#include "settings/plotbindings.h"

#include "view/zelglwidget.h"

#include <QCoreApplication>
#include <QSettings>

namespace Zel3D {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(PlotBindings)
};

constexpr int longestQuote = 60;

/// A drag as the view keeps it.
struct DragAction
{
    MouseBinding MouseBindings::*binding;
    const char* id;
    const char* label;
    Qt::Orientation direction;
};

constexpr DragAction dragActions[] = {
    {&MouseBindings::rotateX, "drag/rotateX", QT_TRANSLATE_NOOP("PlotBindings", "Turn around X"),
     Qt::Vertical},
    {&MouseBindings::rotateY, "drag/rotateY", QT_TRANSLATE_NOOP("PlotBindings", "Turn around Y"),
     Qt::Horizontal},
    {&MouseBindings::rotateZ, "drag/rotateZ", QT_TRANSLATE_NOOP("PlotBindings", "Turn around Z"),
     Qt::Horizontal},
    {&MouseBindings::scaleX, "drag/scaleX", QT_TRANSLATE_NOOP("PlotBindings", "Stretch along X"),
     Qt::Horizontal},
    {&MouseBindings::scaleY, "drag/scaleY", QT_TRANSLATE_NOOP("PlotBindings", "Stretch along Y"),
     Qt::Vertical},
    {&MouseBindings::scaleZ, "drag/scaleZ", QT_TRANSLATE_NOOP("PlotBindings", "Stretch along Z"),
     Qt::Vertical},
    {&MouseBindings::zoom, "drag/zoom", QT_TRANSLATE_NOOP("PlotBindings", "Zoom"), Qt::Vertical},
    {&MouseBindings::shiftX, "drag/shiftX", QT_TRANSLATE_NOOP("PlotBindings", "Move sideways"),
     Qt::Horizontal},
    {&MouseBindings::shiftY, "drag/shiftY", QT_TRANSLATE_NOOP("PlotBindings", "Move up and down"),
     Qt::Vertical},
};

/// A key as the view keeps it.
struct KeyAction
{
    KeyBinding KeyBindings::*binding;
    const char* id;
    const char* label;
};

constexpr KeyAction keyActions[] = {
    {&KeyBindings::rotateXPlus, "key/rotateXPlus",
     QT_TRANSLATE_NOOP("PlotBindings", "Turn around X, forward")},
    {&KeyBindings::rotateXMinus, "key/rotateXMinus",
     QT_TRANSLATE_NOOP("PlotBindings", "Turn around X, back")},
    {&KeyBindings::rotateYPlus, "key/rotateYPlus",
     QT_TRANSLATE_NOOP("PlotBindings", "Turn around Y, forward")},
    {&KeyBindings::rotateYMinus, "key/rotateYMinus",
     QT_TRANSLATE_NOOP("PlotBindings", "Turn around Y, back")},
    {&KeyBindings::rotateZPlus, "key/rotateZPlus",
     QT_TRANSLATE_NOOP("PlotBindings", "Turn around Z, forward")},
    {&KeyBindings::rotateZMinus, "key/rotateZMinus",
     QT_TRANSLATE_NOOP("PlotBindings", "Turn around Z, back")},
    {&KeyBindings::scaleXPlus, "key/scaleXPlus", QT_TRANSLATE_NOOP("PlotBindings", "Stretch along X")},
    {&KeyBindings::scaleXMinus, "key/scaleXMinus", QT_TRANSLATE_NOOP("PlotBindings", "Shrink along X")},
    {&KeyBindings::scaleYPlus, "key/scaleYPlus", QT_TRANSLATE_NOOP("PlotBindings", "Stretch along Y")},
    {&KeyBindings::scaleYMinus, "key/scaleYMinus", QT_TRANSLATE_NOOP("PlotBindings", "Shrink along Y")},
    {&KeyBindings::scaleZPlus, "key/scaleZPlus", QT_TRANSLATE_NOOP("PlotBindings", "Stretch along Z")},
    {&KeyBindings::scaleZMinus, "key/scaleZMinus", QT_TRANSLATE_NOOP("PlotBindings", "Shrink along Z")},
    {&KeyBindings::zoomIn, "key/zoomIn", QT_TRANSLATE_NOOP("PlotBindings", "Zoom in")},
    {&KeyBindings::zoomOut, "key/zoomOut", QT_TRANSLATE_NOOP("PlotBindings", "Zoom out")},
    {&KeyBindings::shiftXPlus, "key/shiftXPlus", QT_TRANSLATE_NOOP("PlotBindings", "Move right")},
    {&KeyBindings::shiftXMinus, "key/shiftXMinus", QT_TRANSLATE_NOOP("PlotBindings", "Move left")},
    {&KeyBindings::shiftYPlus, "key/shiftYPlus", QT_TRANSLATE_NOOP("PlotBindings", "Move up")},
    {&KeyBindings::shiftYMinus, "key/shiftYMinus", QT_TRANSLATE_NOOP("PlotBindings", "Move down")},
};

const QString hoverId = QStringLiteral("hover/pick");

/// The letters that switch something, whatever the modifiers.
QString switchedBy(int key)
{
    switch (key) {
    case Qt::Key_L:
        return Words::tr("The key switches the lighting.");
    case Qt::Key_S:
        return Words::tr("The key switches the picking of values.");
    case Qt::Key_I:
        return Words::tr("The key switches the information on frames.");
    case Qt::Key_N:
        return Words::tr("The key switches the normals.");
    case Qt::Key_A:
        return Words::tr("The key switches automatic scaling.");
    default:
        return {};
    }
}

Gesture fromBinding(const MouseBinding& binding)
{
    return {Gesture::Drag, binding.first, 0, binding.second};
}

Gesture fromBinding(const KeyBinding& binding)
{
    return {Gesture::Key, Qt::NoButton, binding.first, binding.second};
}

QVector<PlotBindings::Action> allActions()
{
    QVector<PlotBindings::Action> all;
    const MouseBindings mouse;
    for (const DragAction& action : dragActions)
        all.append({action.id, action.label, fromBinding(mouse.*action.binding), action.direction});
    const KeyBindings keys;
    for (const KeyAction& action : keyActions)
        all.append({action.id, action.label, fromBinding(keys.*action.binding), {}});
    all.append({hoverId, QT_TRANSLATE_NOOP("PlotBindings", "Pick values"), Gesture(), {}});
    return all;
}

} // namespace

QString PlotBindings::Action::title() const
{
    return Words::tr(label);
}

PlotBindings::PlotBindings()
{
    for (const Action& action : actions())
        gestures.append(action.standard);
}

const QVector<PlotBindings::Action>& PlotBindings::actions()
{
    static const QVector<Action> all = allActions();
    return all;
}

int PlotBindings::indexOf(const QString& id)
{
    for (int i = 0; i < actions().size(); ++i) {
        if (actions().at(i).id == id)
            return i;
    }
    return -1;
}

PlotBindings PlotBindings::of(const ZelGLWidget& view)
{
    PlotBindings result;
    for (const DragAction& action : dragActions)
        result.gestures[indexOf(action.id)] = fromBinding(view.getMouseBindings().*action.binding);
    for (const KeyAction& action : keyActions)
        result.gestures[indexOf(action.id)] = fromBinding(view.getKeyBindings().*action.binding);
    result.gestures[indexOf(hoverId)].modifiers = view.getSelectingModifiers();
    return result;
}

void PlotBindings::applyTo(ZelGLWidget& view) const
{
    MouseBindings m;
    for (const DragAction& action : dragActions) {
        const Gesture& drag = gesture(indexOf(action.id));
        m.*action.binding = {drag.buttons, drag.modifiers};
    }
    view.assignMouseRotation(m.rotateX, m.rotateY, m.rotateZ);
    view.assignMouseScale(m.scaleX, m.scaleY, m.scaleZ);
    view.assignMouseZoom(m.zoom);
    view.assignMouseShift(m.shiftX, m.shiftY);
    KeyBindings k;
    for (const KeyAction& action : keyActions) {
        const Gesture& press = gesture(indexOf(action.id));
        k.*action.binding = {press.key, press.modifiers};
    }
    view.assignKeyboardRotation(k.rotateXPlus, k.rotateXMinus, k.rotateYPlus, k.rotateYMinus, k.rotateZPlus,
                                k.rotateZMinus);
    view.assignKeyboardScale(k.scaleXPlus, k.scaleXMinus, k.scaleYMinus, k.scaleYPlus, k.scaleZMinus,
                             k.scaleZPlus);
    view.assignKeyboardZoom(k.zoomOut, k.zoomIn);
    view.assignKeyboardShift(k.shiftXPlus, k.shiftXMinus, k.shiftYMinus, k.shiftYPlus);
    view.assignSelecting(gesture(indexOf(hoverId)).modifiers);
}

bool PlotBindings::setGesture(int action, const Gesture& wanted)
{
    Gesture& held = gestures[action];
    if (wanted.kind != held.kind || !wanted.isValid() || wanted == held)
        return false;
    held = wanted;
    return true;
}

int PlotBindings::partner(int action) const
{
    for (int other = 0; other < gestures.size(); ++other) {
        if (other != action && gestures.at(other) == gestures.at(action) &&
            actions().at(other).drag == actions().at(action).drag)
            return other;
    }
    return -1;
}

QString PlotBindings::sameGesture(const Action& other)
{
    return Words::tr("The same gesture does \"%1\".").arg(other.title());
}

QString PlotBindings::clash(int action) const
{
    const Gesture& own = gestures.at(action);
    const int other = partner(action);
    if (other >= 0)
        return sameGesture(actions().at(other));
    if (own.kind == Gesture::Drag && (own.buttons & Qt::RightButton))
        return Words::tr("The right button opens the menu.");
    return own.kind == Gesture::Key ? switchedBy(own.key) : QString();
}

bool PlotBindings::hasClash() const
{
    for (int i = 0; i < gestures.size(); ++i) {
        if (!clash(i).isEmpty())
            return true;
    }
    return false;
}

void PlotBindings::save(QSettings& store) const
{
    store.remove("bindings");
    for (int i = 0; i < gestures.size(); ++i) {
        if (!isStandard(i))
            store.setValue("bindings/" + actions().at(i).id, gestures.at(i).stored());
    }
}

PlotBindings PlotBindings::load(QSettings& store, QStringList* problems)
{
    PlotBindings result;
    QStringList found;
    store.beginGroup("bindings");
    for (const QString& key : store.allKeys()) {
        const QString text = store.value(key).toString();
        const int action = indexOf(key);
        if (action < 0) {
            found.append(
                Words::tr("There is no action \"%1\" of mouse or keys.").arg(key.left(longestQuote)));
            continue;
        }
        const auto gesture = Gesture::fromStored(actions().at(action).standard.kind, text);
        if (gesture)
            result.gestures[action] = *gesture;
        else
            found.append(Words::tr("\"%1\" is no gesture for \"%2\".")
                             .arg(text.left(longestQuote), actions().at(action).title()));
    }
    store.endGroup();
    result.solveClashes(found);
    if (problems)
        *problems = found;
    return result;
}

void PlotBindings::solveClashes(QStringList& problems)
{
    // A default may clash with what another action took from it: until all hold.
    for (bool solved = false; !solved;) {
        solved = true;
        for (int i = 0; i < gestures.size(); ++i) {
            const QString sentence = clash(i);
            if (sentence.isEmpty() || isStandard(i))
                continue;
            problems.append(Words::tr("\"%1\" is not used for \"%2\": %3")
                                .arg(gestures.at(i).text(), actions().at(i).title(), sentence));
            gestures[i] = actions().at(i).standard;
            solved = false;
        }
    }
}

} // namespace Zel3D
