#pragma once

#include "core/export.h"
#include "core/types.h"

namespace Zel3D {

/// A group of persisted settings with a mark for saving. The setters of the records return whether the value
/// changed and mark the record when it did.
class VORANPLOT_EXPORT SettingsRecord
{
public:
    SettingsRecord() = default;
    SettingsRecord(const SettingsRecord&) = default;
    SettingsRecord& operator=(const SettingsRecord&) = default;
    virtual ~SettingsRecord() = default;

    bool isSaveNeeded() const { return needSave; }
    /// Marks the record, so that the next save writes it.
    void markForSaving() { needSave = true; }

protected:
    template <class T>
    bool store(T& field, const T& value)
    {
        if (field == value)
            return false;
        field = value;
        needSave = true;
        return true;
    }
    /// Refuses a value that is not a number.
    bool store(double& field, double value)
    {
        if (value != value || isZero(field, value))
            return false;
        field = value;
        needSave = true;
        return true;
    }

    bool needSave = false;
};

} // namespace Zel3D
