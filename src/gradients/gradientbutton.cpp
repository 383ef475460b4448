#include "gradients/gradientbutton.h"

#include "gradients/gradienteditdialog.h"
#include "gradients/gradientlistdialog.h"
#include "gradients/gradientlistmodel.h"
#include "gradients/gradientmanager.h"
#include "gradients/gradientpainter.h"
#include "gradients/gradientpresets.h"
#include "gradients/swatchmenustyle.h"

#include <QActionGroup>
#include <QEvent>
#include <QMenu>

namespace Zel3D {

GradientButton::GradientButton(GradientManager* gradientManager, QWidget* parent)
    : QToolButton(parent), manager(gradientManager), gradient(QLinearGradient())
{
    setPopupMode(QToolButton::InstantPopup);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Gradient"));
    setMenu(new QMenu(this));
    menu()->setStyle(new SwatchMenuStyle(fontMetrics().height() * 3, menu()));
    connect(menu(), &QMenu::aboutToShow, this, &GradientButton::fillMenu);
    connect(manager, &GradientManager::currentChange, this, &GradientButton::setCurrentName);
    connect(manager, &GradientManager::gradientRemoved, this, &GradientButton::leave);
    connect(manager, &GradientManager::gradientAdded, this,
            [this](const QString& name, const QGradient& added) {
                if (current.isEmpty())
                    take(name, added);
            });
    connect(manager, &GradientManager::gradientChanged, this,
            [this](const QString& name, const QGradient& changed) {
                if (name == current)
                    take(name, changed);
            });
    leave(QString());
}

void GradientButton::setCurrentName(const QString& name)
{
    const QMap<QString, QGradient> all = manager->gradients();
    if (all.contains(name) && name != current)
        take(name, all.value(name));
}

void GradientButton::clearCurrent()
{
    if (!current.isEmpty())
        take(QString(), QLinearGradient());
}

void GradientButton::take(const QString& name, const QGradient& newGradient)
{
    current = name;
    gradient = newGradient;
    showSwatch();
    emit gradientChanged(current, gradient);
}

void GradientButton::leave(const QString& removed)
{
    if (removed != current)
        return;
    // The store still holds what is about to be removed.
    QMap<QString, QGradient> all = manager->gradients();
    all.remove(removed);
    const QString builtIn = GradientListModel::protectedName();
    const QString next = all.contains(builtIn) || all.isEmpty() ? builtIn : all.firstKey();
    take(all.isEmpty() ? QString() : next, all.value(next, QLinearGradient()));
}

void GradientButton::showSwatch()
{
    const int height = fontMetrics().height();
    const QSize size(height * 5, height);
    // The arrow of the popup has its place beside the swatch.
    const int room = height * 2 / 3;
    setIconSize(size + QSize(room, 0));
    setIcon(gradientSwatch(gradient, size, *this, room));
    setToolTip(current.isEmpty() ? tr("No gradient") : tr("Gradient: %1").arg(gradientTitle(current)));
    setAccessibleDescription(gradientTitle(current));
}

void GradientButton::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        showSwatch();
}

void GradientButton::fillMenu()
{
    menu()->clear();
    auto* group = new QActionGroup(menu());
    connect(menu(), &QMenu::aboutToHide, group, &QObject::deleteLater);
    const QSize size(fontMetrics().height() * 3, fontMetrics().height());
    const QMap<QString, QGradient> all = manager->gradients();
    for (auto it = all.begin(); it != all.end(); ++it) {
        // An ampersand of a name is no mnemonic.
        QString text = gradientTitle(it.key());
        QAction* action = menu()->addAction(gradientSwatch(it.value(), size, *this), text.replace('&', "&&"));
        action->setCheckable(true);
        action->setChecked(it.key() == current);
        if (it.key() == current)
            menu()->setDefaultAction(action); // in bold
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, name = it.key()] { setCurrentName(name); });
    }
    menu()->addSeparator();
    const bool isChangeable = GradientListModel::isChangeable(*manager, current);
    QAction* edit = menu()->addAction(isChangeable ? tr("&Edit...") : tr("&Edit a copy..."));
    edit->setEnabled(!current.isEmpty());
    connect(edit, &QAction::triggered, this, &GradientButton::editCurrent);
    connect(menu()->addAction(tr("&All gradients...")), &QAction::triggered, this, &GradientButton::openList);
}

void GradientButton::editCurrent()
{
    if (current.isEmpty())
        return;
    if (GradientListModel::isChangeable(*manager, current)) {
        GradientEditDialog::edit(*manager, current, this);
        return;
    }
    const QString before = current;
    const QString copy = manager->addGradient(current, gradient);
    setCurrentName(copy);
    GradientEditDialog* dialog = GradientEditDialog::edit(*manager, copy, this);
    // Later, because the dialog also ends while the store is removing the copy.
    connect(
        dialog, &QDialog::rejected, this,
        [this, before, copy] {
            setCurrentName(before);
            manager->removeGradient(copy);
        },
        Qt::QueuedConnection);
}

void GradientButton::openList()
{
    auto* dialog = new GradientListDialog(manager, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setCurrentName(current);
    connect(dialog, &GradientListDialog::currentGradientChanged, this,
            [this](const QString& name, const QGradient&) { setCurrentName(name); });
    dialog->open();
}

} // namespace Zel3D
