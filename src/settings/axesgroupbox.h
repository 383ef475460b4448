#pragma once

#include "core/types.h"
#include "settings/abstractsettingsgroupbox.h"

class QCheckBox;
class QComboBox;
class QStackedWidget;

namespace Zel3D {

class BoxPicker;
class FieldBinder;
class GroupColumn;
struct FieldGroup;

/// The settings of the twelve axes: one is chosen in a drawing of the box or in a list, and is highlighted in
/// the plot while the box is shown. On demand, and from the beginning, the axes of one direction are edited
/// together.
class AxesGroupBox : public AbstractSettingsGroupBox
{
    Q_OBJECT
public:
    /// The groups of one axis follow each other, with its name as their tab, in the order of listedAxes().
    AxesGroupBox(const QVector<FieldGroup>& groups, FieldBinder& fieldBinder, QWidget* parent = nullptr);
    ~AxesGroupBox() override;

    QVector<FieldForm*> getForms() const override;
    void prepare(const QString& id) override;
    void bringToFront(FieldForm* form) override;

    AxisType getChosen() const;
    void choose(AxisType type);
    BoxPicker& getPicker() const { return *picker; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* makeChoice();
    QVector<AxisType> chosenAxes() const;
    void showChosen();
    void highlight(bool on);

    FieldBinder& binder;
    BoxPicker* picker;
    QComboBox* list;
    QCheckBox* alike;
    QStackedWidget* stack;
    QVector<GroupColumn*> columns;
};

} // namespace Zel3D
