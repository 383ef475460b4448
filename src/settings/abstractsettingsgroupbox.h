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

    /// All forms, those in the background included.
    virtual QVector<FieldForm*> getForms() const = 0;
    /// Makes a form of the box the visible one.
    virtual void bringToFront(FieldForm* form) = 0;

    QVector<FieldEditor*> getEditors() const;
    /// The editor of a field, in front; null when the box has none.
    FieldEditor* reveal(const QString& id);
};

} // namespace Zel3D
