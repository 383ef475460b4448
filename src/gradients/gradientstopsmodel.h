#pragma once

#include <QGradient>
#include <QObject>
#include <QVector>

namespace Zel3D {

/// The stops of a gradient while a person edits them: sorted, one of them current, with undo and redo.
///
/// Positions are clamped to 0 ... 1, also those that are no numbers (to 0). Stops may share a position, which
/// makes a sharp edge; they keep their order then. The current stop stays current when others move past it.
/// Indices outside the stops are ignored. One stop at least remains when there was one.
class Q_DECL_EXPORT GradientStopsModel : public QObject
{
    Q_OBJECT
public:
    static constexpr int maximumStops = 4096;
    /// The distance of the positions at which snap() puts stops.
    static constexpr double snapStep = 0.05;

    explicit GradientStopsModel(QObject* parent = nullptr);

    /// Takes over the stops that were really added to the gradient and forgets what could be undone. The
    /// first stop becomes current.
    void setGradient(const QGradient& gradient);
    /// The same from stops in any order; those beyond maximumStops are left out.
    void setStops(const QGradientStops& stops);
    QGradientStops getStops() const;
    /// The gradient that was set, linear without one, with the stops as a plot needs them: the end colours
    /// reach to 0 and 1, sharp edges are kept.
    QGradient getGradient() const;

    int count() const { return state.stops.size(); }
    double getPosition(int index) const;
    QColor getColor(int index) const;
    /// The colour at any position, as a plot computes it.
    QColor colorAt(double position) const;
    /// Index of the current stop; -1 without stops.
    int getCurrent() const;
    void setCurrent(int index);

    /// Adds a stop and makes it current. Returns its index; -1 when there are too many.
    int insert(double position, const QColor& color);
    /// With the colour that the gradient has there.
    int insert(double position);
    /// In the middle between the current stop and the next one, behind the last one to the one before it.
    int insertAfterCurrent();
    /// False when it is the only stop. The stop that takes its place becomes current, or the last one.
    bool remove(int index);
    /// Moves a stop, past others if need be, and makes it current. Returns its new index.
    int move(int index, double position);
    /// Invalid colours are ignored.
    void setColor(int index, const QColor& color);
    void reverse();
    /// Spreads the stops evenly between the first and the last one; between 0 and 1 when these coincide.
    void distribute();
    /// Moves every stop to the nearest multiple of snapStep.
    void snap();
    static double snapped(double position);

    /// Between beginDrag() and endDrag() a stop follows the mouse, as one step for undo. drag() and dragOff()
    /// start from what was there at the beginning: a stop that was dragged off comes back. Any other change
    /// ends the drag first, undo and redo cancel it.
    void beginDrag(int index);
    void drag(double position);
    /// The gradient without the stop; nothing happens to the only one.
    void dragOff();
    void endDrag();
    /// Puts everything back.
    void cancelDrag();
    bool isDragging() const { return draggedId >= 0; }

    /// Steps in a row that move the same stop, or colour it, are undone at once.
    bool canUndo() const { return !undoStates.isEmpty(); }
    bool canRedo() const { return !redoStates.isEmpty(); }
    void undo();
    void redo();

signals:
    /// Stops were added, removed, moved or coloured.
    void stopsChanged();
    /// Another stop is the current one, or its index changed.
    void currentChanged(int index);
    /// canUndo() or canRedo() changed, or may have.
    void historyChanged();

private:
    struct Stop
    {
        int id;
        double position;
        QColor color;
        bool operator==(const Stop& other) const;
    };
    struct State
    {
        QVector<Stop> stops;
        int currentId = -1;
    };
    enum class Kind { Other, Move, Color };

    bool contains(int index) const { return index >= 0 && index < state.stops.size(); }
    static int indexOf(const QVector<Stop>& stops, int id);
    static void sort(QVector<Stop>& stops);
    static State withMoved(State from, int id, double position);
    static State without(State from, int id);
    void show(const State& next);
    void commit(const State& next, Kind kind = Kind::Other);
    void remember(const State& before, Kind kind);

    QGradient base;
    State state;
    QVector<State> undoStates;
    QVector<State> redoStates;
    Kind lastKind = Kind::Other;
    State dragStart;
    int draggedId = -1;
    int nextId = 0;
};

} // namespace Zel3D
