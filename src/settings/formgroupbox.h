#pragma once

#include "settings/abstractsettingsgroupbox.h"

namespace Zel3D {

class FieldBinder;
struct FieldGroup;

/// The box of one record: a single form.
class VORANPLOT_EXPORT FormGroupBox : public AbstractSettingsGroupBox
{
    Q_OBJECT
public:
    FormGroupBox(const FieldGroup& group, FieldBinder& binder, QWidget* parent = nullptr);

    QVector<FieldForm*> getForms() const override { return {form}; }
    void bringToFront(FieldForm* shown) override;

private:
    FieldForm* form;
};

} // namespace Zel3D
