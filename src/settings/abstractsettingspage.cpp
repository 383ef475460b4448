#include "settings/abstractsettingspage.h"

#include "settings/fieldbinder.h"
#include "settings/fieldeditor.h"
#include "settings/fieldform.h"
#include "settings/formgroupbox.h"
#include "settings/tabbedgroupbox.h"

#include <QEvent>
#include <QHash>
#include <QVBoxLayout>

#include <algorithm>

namespace Zel3D {

namespace {

/// Short labels leave the editors where they stand on most pages.
constexpr int fewestLabelLetters = 16;

/// A field that a plot as constructed does not have, or whose value there is not offered, goes back to what
/// it was when the dialog was opened.
QVariant usableDefault(const Field& field, const QVariant& asConstructed)
{
    const bool offered = field.offers.isEmpty() ||
                         std::any_of(field.offers.cbegin(), field.offers.cend(),
                                     [&](const Field::Offer& offer) { return offer.value == asConstructed; });
    return asConstructed.isValid() && offered && field.resets ? asConstructed : field.read();
}

} // namespace

AbstractSettingsPage::AbstractSettingsPage(QWidget* parent) : QWidget(parent) {}

void AbstractSettingsPage::build(FieldBinder& binder, BasePlot& untouched)
{
    QHash<QString, QVariant> defaults;
    const QVector<FieldGroup> asConstructed = describe(untouched);
    for (const FieldGroup& group : asConstructed) {
        for (const Field& field : group.fields)
            defaults.insert(field.id, field.read());
    }
    described = describe(*binder.getPlot());
    for (const FieldGroup& group : qAsConst(described)) {
        for (const Field& field : group.fields)
            binder.add(field, usableDefault(field, defaults.value(field.id)));
    }
    addBoxes(binder);
    alignLabels();
}

void AbstractSettingsPage::addBoxes(FieldBinder& binder)
{
    auto* layout = new QVBoxLayout(this);
    for (int i = 0; i < described.size();) {
        QVector<FieldGroup> together{described.at(i++)};
        while (i < described.size() && !together.first().tab.isEmpty() && !described.at(i).tab.isEmpty())
            together.append(described.at(i++));
        AbstractSettingsGroupBox* box = nullptr;
        if (together.first().tab.isEmpty())
            box = new FormGroupBox(together.first(), binder, this);
        else
            box = makeTabs(together, binder);
        connect(box, &AbstractSettingsGroupBox::formsAdded, this, &AbstractSettingsPage::alignLabels);
        boxes.append(box);
        layout->addWidget(box);
    }
    layout->addStretch(1);
}

AbstractSettingsGroupBox* AbstractSettingsPage::makeTabs(const QVector<FieldGroup>& groups,
                                                         FieldBinder& binder)
{
    return new TabbedGroupBox(groups, binder, this);
}

void AbstractSettingsPage::alignLabels()
{
    int width = fontMetrics().averageCharWidth() * fewestLabelLetters;
    for (const AbstractSettingsGroupBox* box : qAsConst(boxes)) {
        for (const FieldForm* form : box->getForms())
            width = std::max(width, form->getLabelWidth());
    }
    for (const AbstractSettingsGroupBox* box : qAsConst(boxes)) {
        for (FieldForm* form : box->getForms())
            form->setLabelWidth(width);
    }
}

QVector<FieldEditor*> AbstractSettingsPage::getEditors() const
{
    QVector<FieldEditor*> editors;
    for (const AbstractSettingsGroupBox* box : boxes)
        editors += box->getEditors();
    return editors;
}

QStringList AbstractSettingsPage::getIds() const
{
    QStringList ids;
    for (const FieldGroup& group : described) {
        for (const Field& field : group.fields)
            ids.append(field.id);
    }
    return ids;
}

void AbstractSettingsPage::refresh()
{
    for (const AbstractSettingsGroupBox* box : qAsConst(boxes)) {
        for (FieldForm* form : box->getForms()) {
            if (form->isVisible())
                form->refresh();
        }
    }
}

FieldEditor* AbstractSettingsPage::reveal(const QString& id)
{
    for (AbstractSettingsGroupBox* box : qAsConst(boxes)) {
        if (FieldEditor* editor = box->reveal(id))
            return editor;
    }
    return nullptr;
}

void AbstractSettingsPage::showEvent(QShowEvent* event)
{
    alignLabels();
    QWidget::showEvent(event);
}

void AbstractSettingsPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        alignLabels();
}

} // namespace Zel3D
