#pragma once

#include "core/export.h"
#include "settings/bindingsmodel.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTableView;

namespace Zel3D {

class GestureEdit;

/// Shows the bindings of mouse and keys and lets a person change them. OK waits until none clash.
class VORANPLOT_EXPORT BindingsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit BindingsDialog(const PlotBindings& shown, QWidget* parent = nullptr);

    BindingsModel& getModel() { return *model; }
    const PlotBindings& getBindings() const { return model->getBindings(); }
    void setCurrentRow(int row);
    int getCurrentRow() const;

    QSize sizeHint() const override;

public slots:
    void resetCurrent();
    void swapCurrent();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeEditing();
    QWidget* makeButtons();
    void fitTable();
    void refresh();

    BindingsModel* model;
    QTableView* table;
    GestureEdit* edit;
    QLabel* note;
    QPushButton* swapButton;
    QPushButton* resetButton;
    QPushButton* okButton = nullptr;
};

} // namespace Zel3D
