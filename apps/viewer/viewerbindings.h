#pragma once

#include "settings/plotbindings.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;

/// The gestures of mouse and keys that the person chose: kept over sessions, given to every plot of the
/// window, and changed in a dialog.
class ViewerBindings : public QObject
{
    Q_OBJECT
public:
    /// Reads what was kept. \a window, which owns the object, is the parent of the dialog; its shortcuts
    /// cannot be bound.
    explicit ViewerBindings(QWidget* window, Zel3D::ZelGLWidget* view = nullptr);

    /// Gives the gestures to a view, now and after every change.
    void attach(Zel3D::ZelGLWidget* view);
    /// "Mouse and keys...", for a menu.
    QAction* action() const { return m_action; }
    const Zel3D::PlotBindings& bindings() const { return m_bindings; }
    /// Keeps other gestures and gives them to the views.
    void setBindings(const Zel3D::PlotBindings& bindings);

public slots:
    void edit();

private:
    QWidget* m_window;
    QAction* m_action;
    Zel3D::PlotBindings m_bindings;
    QList<QPointer<Zel3D::ZelGLWidget>> m_views;
};
