#include "settings/axesgroupbox.h"

#include "plots/baseplot.h"
#include "scene/boxedges.h"
#include "scene/coordinatesystem.h"
#include "settings/boxpicker.h"
#include "settings/fieldbinder.h"
#include "settings/fieldform.h"
#include "settings/groupcolumn.h"
#include "settings/tabbedgroupbox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Zel3D {

AxesGroupBox::AxesGroupBox(const QVector<FieldGroup>& groups, FieldBinder& fieldBinder, QWidget* parent)
    : AbstractSettingsGroupBox(tr("Axis"), parent),
      binder(fieldBinder),
      picker(new BoxPicker(this)),
      list(new QComboBox(this)),
      alike(new QCheckBox(tr("Edit all axes of this direction"), this)),
      stack(new QStackedWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeChoice());
    layout->addWidget(stack);
    layout->setContentsMargins(0, layout->contentsMargins().top(), 0, 0);
    for (const QVector<FieldGroup>& together : groupsByTab(groups)) {
        auto* column = new GroupColumn(together, binder);
        connect(column, &GroupColumn::built, this, &AbstractSettingsGroupBox::formsAdded);
        columns.append(column);
        stack->addWidget(column);
    }
    columns.first()->build();
    connect(picker, &BoxPicker::edgePicked, this, &AxesGroupBox::choose);
    connect(list, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &AxesGroupBox::showChosen);
    connect(alike, &QCheckBox::toggled, this, &AxesGroupBox::showChosen);
    alike->setChecked(binder.isAlike());
    showChosen();
}

AxesGroupBox::~AxesGroupBox()
{
    highlight(false);
}

QWidget* AxesGroupBox::makeChoice()
{
    auto* choice = new QWidget(this);
    auto* row = new QHBoxLayout(choice);
    row->setContentsMargins(row->contentsMargins().left(), 0, row->contentsMargins().right(), 0);
    auto* column = new QVBoxLayout;
    auto* label = new QLabel(tr("Axis"), choice);
    label->setBuddy(list);
    for (AxisType type : listedAxes())
        list->addItem(axisName(type), int(type));
    list->setAccessibleName(tr("Axis"));
    list->setToolTip(tr("The axis that is edited below; it is marked in the plot."));
    label->setToolTip(list->toolTip());
    list->setFocusPolicy(Qt::StrongFocus);
    picker->setToolTip(tr("Click an edge of the box to edit its axis."));
    alike->setObjectName("alike");
    alike->setToolTip(tr("What is edited below holds for the four axes that run in this direction."));
    alike->setAccessibleName(alike->text());
    column->addStretch(1);
    column->addWidget(label);
    column->addWidget(list);
    column->addSpacing(fontMetrics().height() / 2);
    column->addWidget(alike);
    column->addStretch(1);
    row->addWidget(picker);
    row->addSpacing(fontMetrics().height());
    row->addLayout(column);
    row->addStretch(1);
    return choice;
}

QVector<FieldForm*> AxesGroupBox::getForms() const
{
    QVector<FieldForm*> forms;
    for (const GroupColumn* column : columns)
        forms += column->getForms();
    return forms;
}

void AxesGroupBox::prepare(const QString& id)
{
    for (GroupColumn* column : qAsConst(columns)) {
        if (column->contains(id))
            column->build();
    }
}

void AxesGroupBox::bringToFront(FieldForm* form)
{
    for (int i = 0; i < columns.size(); ++i) {
        if (columns.at(i)->isAncestorOf(form))
            list->setCurrentIndex(i);
    }
}

AxisType AxesGroupBox::getChosen() const
{
    return AxisType(list->currentData().toInt());
}

void AxesGroupBox::choose(AxisType type)
{
    list->setCurrentIndex(list->findData(int(type)));
}

QVector<AxisType> AxesGroupBox::chosenAxes() const
{
    if (!alike->isChecked())
        return {getChosen()};
    const std::array<AxisType, 4>& all = axesOf(baseAxisType(getChosen()));
    return {all.begin(), all.end()};
}

void AxesGroupBox::showChosen()
{
    binder.setAlike(alike->isChecked());
    picker->setPicked(getChosen());
    picker->setAlong(chosenAxes());
    stack->setCurrentIndex(list->currentIndex());
    if (isVisible())
        highlight(true);
}

void AxesGroupBox::highlight(bool on)
{
    if (!binder.getPlot())
        return;
    CoordinateSystem& system = binder.getPlot()->getCoordinateSystem();
    const QVector<AxisType> marked = on ? chosenAxes() : QVector<AxisType>();
    for (AxisType type : listedAxes())
        system.getAxis(type).setHighlighted(marked.contains(type));
    system.setHighlight(on);
    binder.getPlot()->update();
}

void AxesGroupBox::showEvent(QShowEvent* event)
{
    AbstractSettingsGroupBox::showEvent(event);
    highlight(true);
}

void AxesGroupBox::hideEvent(QHideEvent* event)
{
    highlight(false);
    AbstractSettingsGroupBox::hideEvent(event);
}

} // namespace Zel3D
