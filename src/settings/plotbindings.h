#pragma once

#include "core/export.h"
#include "settings/gesture.h"

#include <QString>
#include <QStringList>
#include <QVector>

class QSettings;

namespace Zel3D {

class ZelGLWidget;

/// Which gesture does what in a view: all bindings of mouse and keys as one value that can be changed,
/// checked and kept. A plot follows it only after applyTo().
class VORANPLOT_EXPORT PlotBindings
{
public:
    /// Something that a gesture does.
    struct VORANPLOT_EXPORT Action
    {
        QString id;        ///< the same in every language, such as "drag/zoom"
        const char* label; ///< in English
        /// In the language of now.
        QString title() const;
        Gesture standard;
        Qt::Orientation drag = Qt::Horizontal; ///< the part of a drag that acts
    };

    /// The defaults.
    PlotBindings();
    /// Those of a view.
    static PlotBindings of(const ZelGLWidget& view);
    void applyTo(ZelGLWidget& view) const;

    /// All actions; the indices below are those of this list.
    static const QVector<Action>& actions();
    /// -1 for an unknown id.
    static int indexOf(const QString& id);

    const Gesture& gesture(int action) const { return gestures.at(action); }
    /// False for a gesture of another kind, one that is not valid or the one held.
    bool setGesture(int action, const Gesture& gesture);
    bool isStandard(int action) const { return gestures.at(action) == actions().at(action).standard; }

    /// The first other action that the same gesture triggers, or -1. One drag may do two things when one
    /// follows its horizontal and one its vertical part.
    int partner(int action) const;
    /// Why the gesture of an action cannot be used, as a sentence; empty when it can.
    QString clash(int action) const;
    bool hasClash() const;
    /// The sentence of a gesture that does this, too.
    static QString sameGesture(const Action& other);

    /// Under the keys "bindings/" and an action's id; what is standard is left out.
    void save(QSettings& store) const;
    /// What is unknown or no gesture, and what clashes, is left at its default and told in \a problems, a
    /// sentence each.
    static PlotBindings load(QSettings& store, QStringList* problems = nullptr);

    bool operator==(const PlotBindings& other) const { return gestures == other.gestures; }

private:
    void solveClashes(QStringList& problems);

    QVector<Gesture> gestures;
};

} // namespace Zel3D
