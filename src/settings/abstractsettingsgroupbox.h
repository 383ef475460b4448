#pragma once

#include "core/export.h"

#include <QGroupBox>
#include <QVector>

namespace Zel3D {

class FieldEditor;
class FieldForm;

/// A titled box on a page of the settings dialog that holds forms of fields, one a record.
class VORANPLOT_EXPORT AbstractSettingsGroupBox : public QGroupBox
{
    Q_OBJECT
public:
    explicit AbstractSettingsGroupBox(const QString& title, QWidget* parent = nullptr);

    /// The forms made so far, those in the background included.
    virtual QVector<FieldForm*> getForms() const = 0;
    /// Makes the form of a field if the box has it and makes its forms late.
    virtual void prepare(const QString& /*id*/) {}
    /// Makes a form of the box the visible one.
    virtual void bringToFront(FieldForm* form) = 0;

    QVector<FieldEditor*> getEditors() const;
    /// The editor of a field, in front; null when the box has none.
    FieldEditor* reveal(const QString& id);

signals:
    /// More forms have been made.
    void formsAdded();
};

} // namespace Zel3D
