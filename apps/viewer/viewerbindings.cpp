#include "viewerbindings.h"

#include "settings/bindingsdialog.h"
#include "view/zelglwidget.h"

#include <QAction>
#include <QSettings>

namespace {

/// What the actions of a window take before a plot sees it.
void reserveShortcuts(Zel3D::BindingsModel& model, const QWidget& window)
{
    for (const QAction* action : window.findChildren<QAction*>()) {
        for (const QKeySequence& shortcut : action->shortcuts()) {
            const int code = shortcut.count() == 1 ? shortcut[0] : 0;
            if (code != 0)
                model.reserve(code & ~int(Qt::KeyboardModifierMask),
                              Qt::KeyboardModifiers(code & int(Qt::KeyboardModifierMask)),
                              action->text().remove('&'));
        }
    }
}

} // namespace

ViewerBindings::ViewerBindings(QWidget* window, Zel3D::ZelGLWidget* view)
    : QObject(window), m_window(window), m_action(new QAction(tr("&Mouse and keys..."), this))
{
    m_action->setStatusTip(tr("Which drags and keys turn, move and stretch the plot"));
    connect(m_action, &QAction::triggered, this, &ViewerBindings::edit);
    QSettings store;
    QStringList problems;
    m_bindings = Zel3D::PlotBindings::load(store, &problems);
    for (const QString& problem : qAsConst(problems))
        qWarning("voranview: %s", qPrintable(problem));
    if (view)
        attach(view);
}

void ViewerBindings::attach(Zel3D::ZelGLWidget* view)
{
    m_views.removeAll(nullptr);
    m_views.append(view);
    m_bindings.applyTo(*view);
}

void ViewerBindings::setBindings(const Zel3D::PlotBindings& bindings)
{
    m_bindings = bindings;
    QSettings store;
    m_bindings.save(store);
    for (const QPointer<Zel3D::ZelGLWidget>& view : qAsConst(m_views)) {
        if (view)
            m_bindings.applyTo(*view);
    }
}

void ViewerBindings::edit()
{
    Zel3D::BindingsDialog dialog(m_bindings, m_window);
    reserveShortcuts(dialog.getModel(), *m_window);
    if (dialog.exec() == QDialog::Accepted)
        setBindings(dialog.getBindings());
}
