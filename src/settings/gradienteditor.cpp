#include "settings/gradienteditor.h"

#include "gradients/gradientbutton.h"
#include "gradients/gradientlistmodel.h"
#include "gradients/gradientmanager.h"
#include "gradients/gradientpresets.h"
#include "settings/gradientvalue.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QTimer>

namespace Zel3D {

namespace {

/// What the store begins with: a plot may have none.
QGradient usualGradient()
{
    QLinearGradient gradient;
    gradient.setStops(gradientPresets().first().stops);
    return gradient;
}

} // namespace

GradientEditor::GradientEditor(QWidget* parent)
    : ValueEditor(parent),
      manager(new GradientManager(this, usualGradient())),
      button(new GradientButton(manager, this))
{
    // The signals of the store come before it has changed.
    auto* later = new QTimer(this);
    later->setSingleShot(true);
    later->setInterval(0);
    connect(later, &QTimer::timeout, this, &GradientEditor::send);
    const auto sendLater = [this, later] {
        if (!showing)
            later->start();
    };
    connect(manager, &GradientManager::gradientAdded, this, sendLater);
    connect(manager, &GradientManager::gradientRemoved, this, sendLater);
    connect(manager, &GradientManager::gradientChanged, this, sendLater);
    connect(button, &GradientButton::gradientChanged, this, &GradientEditor::send);
    connect(button, &GradientButton::gradientChanged, this, &GradientEditor::showName);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    arrange({button});
    static_cast<QHBoxLayout*>(layout())->addStretch(1);
}

QWidget* GradientEditor::focusTarget()
{
    return button;
}

void GradientEditor::show(const QVariant& value)
{
    if (value.toMap() == shown)
        return;
    shown = value.toMap();
    showing = true;
    fill();
    showing = false;
    showName();
}

void GradientEditor::showName()
{
    const QString name = button->getCurrentName();
    button->setText(name.isEmpty() ? tr("None") : gradientTitle(name).replace('&', "&&"));
    // The button tells of the gradient, the field of what it is for.
    button->setToolTip(toolTip());
}

void GradientEditor::fill()
{
    const GradientValue value = GradientValue::from(shown);
    const QMap<QString, QGradient> held = manager->gradients();
    for (const QString& name : held.keys()) {
        if (!value.gradients.contains(name) && name != GradientListModel::protectedName())
            manager->removeGradient(name);
    }
    for (auto wanted = value.gradients.cbegin(); wanted != value.gradients.cend(); ++wanted) {
        if (held.contains(wanted.key()))
            manager->changeGradient(wanted.key(), wanted.key(), wanted.value());
        else
            manager->addGradient(wanted.key(), wanted.value());
    }
    if (value.gradients.contains(value.current))
        button->setCurrentName(value.current);
    else
        button->clearCurrent();
}

void GradientEditor::send()
{
    if (showing)
        return;
    GradientValue value{button->getCurrentName(), manager->gradients()};
    // The store is told after the button.
    if (!value.current.isEmpty())
        value.gradients.insert(value.current, button->getCurrentGradient());
    // The built-in gradient is offered whether the plot has it or not.
    const QString builtIn = GradientListModel::protectedName();
    if (value.current != builtIn && !GradientValue::from(shown).gradients.contains(builtIn))
        value.gradients.remove(builtIn);
    if (value.toMap() == shown)
        return;
    shown = value.toMap();
    auto* dialog = button->findChild<QDialog*>();
    if (!dialog || dialog != visited)
        gesture = nextGesture();
    visited = dialog;
    emit edited(shown, dialog ? gesture : 0);
}

} // namespace Zel3D
