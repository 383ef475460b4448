#pragma once

#include "core/export.h"

#include <QVariant>
#include <QWidget>

namespace Zel3D {

struct Field;

/// The widget that shows one value and lets a person change it. It knows nothing of plots.
class VORANPLOT_EXPORT ValueEditor : public QWidget
{
    Q_OBJECT
public:
    explicit ValueEditor(QWidget* parent = nullptr);

    /// Shows a value; nothing is emitted.
    virtual void show(const QVariant& value) = 0;
    /// The widget that takes the keyboard and to which the label belongs.
    virtual QWidget* focusTarget() = 0;

    /// The editor of a field's kind, or the field's own.
    static ValueEditor* make(const Field& field);

    /// Keeps from the parts below a widget what is not for them: the wheel while they have no focus, because
    /// scrolling a page must not change what lies under the mouse, and the keys of undo and redo.
    void guard(const QWidget& root);
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A person changed the value. Steps with the same \a gesture, when it is not 0, belong together.
    void edited(const QVariant& value, int gesture);

protected:
    /// Lays the parts out in a line.
    void arrange(const QList<QWidget*>& parts);
    /// Gestures of different editors never have the same number.
    static int nextGesture();
};

} // namespace Zel3D
