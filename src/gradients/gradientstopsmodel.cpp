#include "gradients/gradientstopsmodel.h"

#include "gradients/gradientcolors.h"

#include <algorithm>
#include <cmath>

namespace Zel3D {

namespace {

constexpr int maximumSteps = 500;

double clamped(double position)
{
    return std::isnan(position) ? 0.0 : qBound(0.0, position, 1.0);
}

/// The colour as a plot can show it: 8 bits a component.
QColor plain(const QColor& color)
{
    return QColor::fromRgba(color.rgba());
}

} // namespace

bool GradientStopsModel::Stop::operator==(const Stop& other) const
{
    return id == other.id && position == other.position && color == other.color;
}

GradientStopsModel::GradientStopsModel(QObject* parent) : QObject(parent), base(gradientOf({})) {}

void GradientStopsModel::setGradient(const QGradient& gradient)
{
    base = gradient.type() == QGradient::NoGradient ? gradientOf({}) : gradient;
    setStops(editableStops(gradient));
}

void GradientStopsModel::setStops(const QGradientStops& stops)
{
    State next;
    for (int i = 0; i < std::min(stops.size(), maximumStops); ++i)
        next.stops.append({nextId++, clamped(stops[i].first), plain(stops[i].second)});
    sort(next.stops);
    next.currentId = next.stops.isEmpty() ? -1 : next.stops.first().id;
    undoStates.clear();
    redoStates.clear();
    lastKind = Kind::Other;
    draggedId = -1;
    show(next);
    emit historyChanged();
}

QGradientStops GradientStopsModel::getStops() const
{
    QGradientStops stops;
    for (const Stop& stop : state.stops)
        stops.append({stop.position, stop.color});
    return stops;
}

QGradient GradientStopsModel::getGradient() const
{
    QGradient gradient = base;
    gradient.setStops(count() > 0 ? gradientOf(coveringStops(getStops())).stops() : QGradientStops());
    return gradient;
}

double GradientStopsModel::getPosition(int index) const
{
    return contains(index) ? state.stops[index].position : 0.0;
}

QColor GradientStopsModel::getColor(int index) const
{
    return contains(index) ? state.stops[index].color : QColor();
}

QColor GradientStopsModel::colorAt(double position) const
{
    return stopsColor(getStops(), position);
}

int GradientStopsModel::getCurrent() const
{
    return indexOf(state.stops, state.currentId);
}

void GradientStopsModel::setCurrent(int index)
{
    if (!contains(index) || state.stops[index].id == state.currentId)
        return;
    State next = state;
    next.currentId = state.stops[index].id;
    lastKind = Kind::Other;
    show(next);
}

int GradientStopsModel::insert(double position, const QColor& color)
{
    endDrag();
    if (count() >= maximumStops)
        return -1;
    State next = state;
    next.currentId = nextId++;
    next.stops.append({next.currentId, clamped(position), plain(color)});
    sort(next.stops);
    commit(next);
    return getCurrent();
}

int GradientStopsModel::insert(double position)
{
    const QColor color = colorAt(clamped(position));
    return insert(position, color.isValid() ? color : QColor(Qt::black));
}

int GradientStopsModel::insertAfterCurrent()
{
    const int index = getCurrent();
    if (index < 0)
        return insert(0.0);
    const int other = index + 1 < count() ? index + 1 : index - 1;
    if (other < 0)
        return insert(getPosition(index) < 1.0 ? 1.0 : 0.0);
    return insert((getPosition(index) + getPosition(other)) / 2.0);
}

bool GradientStopsModel::remove(int index)
{
    endDrag();
    if (!contains(index) || count() == 1)
        return false;
    commit(without(state, state.stops[index].id));
    return true;
}

int GradientStopsModel::move(int index, double position)
{
    endDrag();
    if (!contains(index))
        return -1;
    if (state.stops[index].id != state.currentId)
        setCurrent(index);
    if (clamped(position) != state.stops[index].position)
        commit(withMoved(state, state.currentId, clamped(position)), Kind::Move);
    return getCurrent();
}

void GradientStopsModel::setColor(int index, const QColor& color)
{
    endDrag();
    if (!contains(index) || !color.isValid() || plain(color) == state.stops[index].color)
        return;
    if (state.stops[index].id != state.currentId)
        setCurrent(index);
    State next = state;
    next.stops[index].color = plain(color);
    commit(next, Kind::Color);
}

void GradientStopsModel::reverse()
{
    endDrag();
    State next = state;
    std::reverse(next.stops.begin(), next.stops.end());
    for (Stop& stop : next.stops)
        stop.position = 1.0 - stop.position;
    commit(next);
}

void GradientStopsModel::distribute()
{
    endDrag();
    if (count() < 2)
        return;
    State next = state;
    double first = next.stops.first().position;
    double last = next.stops.last().position;
    if (first == last) {
        first = 0.0;
        last = 1.0;
    }
    for (int i = 0; i < next.stops.size(); ++i)
        next.stops[i].position = first + (last - first) * i / (next.stops.size() - 1);
    commit(next);
}

void GradientStopsModel::snap()
{
    endDrag();
    State next = state;
    for (Stop& stop : next.stops)
        stop.position = snapped(stop.position);
    commit(next);
}

double GradientStopsModel::snapped(double position)
{
    // Divided by a whole number, so that the nearest number to 0.15 comes out and not 3 times that to 0.05.
    const double steps = std::round(1.0 / snapStep);
    return std::round(clamped(position) * steps) / steps;
}

void GradientStopsModel::beginDrag(int index)
{
    if (!contains(index))
        return;
    setCurrent(index);
    dragStart = state;
    draggedId = state.currentId;
}

void GradientStopsModel::drag(double position)
{
    if (isDragging())
        show(withMoved(dragStart, draggedId, clamped(position)));
}

void GradientStopsModel::dragOff()
{
    if (isDragging() && dragStart.stops.size() > 1)
        show(without(dragStart, draggedId));
}

void GradientStopsModel::endDrag()
{
    if (!isDragging())
        return;
    draggedId = -1;
    if (!(state.stops == dragStart.stops))
        remember(dragStart, Kind::Other);
}

void GradientStopsModel::cancelDrag()
{
    if (!isDragging())
        return;
    draggedId = -1;
    show(dragStart);
}

void GradientStopsModel::undo()
{
    cancelDrag();
    if (!canUndo())
        return;
    redoStates.append(state);
    lastKind = Kind::Other;
    show(undoStates.takeLast());
    emit historyChanged();
}

void GradientStopsModel::redo()
{
    cancelDrag();
    if (!canRedo())
        return;
    undoStates.append(state);
    lastKind = Kind::Other;
    show(redoStates.takeLast());
    emit historyChanged();
}

int GradientStopsModel::indexOf(const QVector<Stop>& stops, int id)
{
    for (int i = 0; i < stops.size(); ++i) {
        if (stops[i].id == id)
            return i;
    }
    return -1;
}

void GradientStopsModel::sort(QVector<Stop>& stops)
{
    std::stable_sort(stops.begin(), stops.end(),
                     [](const Stop& a, const Stop& b) { return a.position < b.position; });
}

GradientStopsModel::State GradientStopsModel::withMoved(State from, int id, double position)
{
    const int index = indexOf(from.stops, id);
    from.stops[index].position = position;
    sort(from.stops);
    return from;
}

GradientStopsModel::State GradientStopsModel::without(State from, int id)
{
    const int index = indexOf(from.stops, id);
    from.stops.remove(index);
    from.currentId = from.stops[std::min(index, from.stops.size() - 1)].id;
    return from;
}

void GradientStopsModel::show(const State& next)
{
    const bool stopsDiffer = !(next.stops == state.stops);
    const int before = getCurrent();
    const bool currentDiffers = next.currentId != state.currentId;
    state = next;
    if (stopsDiffer)
        emit stopsChanged();
    if (currentDiffers || getCurrent() != before)
        emit currentChanged(getCurrent());
}

void GradientStopsModel::commit(const State& next, Kind kind)
{
    if (next.stops == state.stops)
        return;
    const State before = state;
    show(next);
    remember(before, kind);
}

void GradientStopsModel::remember(const State& before, Kind kind)
{
    const bool continues = kind != Kind::Other && kind == lastKind && canUndo();
    lastKind = kind;
    if (!continues) {
        undoStates.append(before);
    } else if (undoStates.last().stops == state.stops) { // Back where it began: there is nothing to undo.
        undoStates.removeLast();
        lastKind = Kind::Other;
    }
    if (undoStates.size() > maximumSteps)
        undoStates.removeFirst();
    redoStates.clear();
    emit historyChanged();
}

} // namespace Zel3D
