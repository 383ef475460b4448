#pragma once

#include "settings/valueeditor.h"

#include <QPointer>

class GradientManager;

namespace Zel3D {

class GradientButton;

/// Edits a GradientValue: a button that offers the gradients of a plot and the dialogs to change them. What
/// is done in one visit of a dialog is one gesture.
class GradientEditor : public ValueEditor
{
    Q_OBJECT
public:
    explicit GradientEditor(QWidget* parent = nullptr);

    void show(const QVariant& value) override;
    QWidget* focusTarget() override;

private:
    void fill();
    void send();
    void showName();

    GradientManager* manager;
    GradientButton* button;
    QVariantMap shown;
    bool showing = false;
    QPointer<QWidget> visited; ///< the dialog of the last edit
    int gesture = 0;
};

} // namespace Zel3D
