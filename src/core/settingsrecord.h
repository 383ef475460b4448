#pragma once

#include "core/export.h"
#include "core/types.h"

namespace Zel3D {

/// A group of persisted settings with a mark for saving. The setters of the records return whether the value
/// changed and mark the record when it did; only a marked record writes its keys.
class VORANPLOT_EXPORT SettingsRecord
{
public:
    SettingsRecord() = default;
    SettingsRecord(const SettingsRecord&) = default;
    SettingsRecord& operator=(const SettingsRecord&) = default;
    virtual ~SettingsRecord();

    bool isSaveNeeded() const { return needSave; }
    /// Marks the record, so that the next save writes it.
    void markForSaving() { needSave = true; }
    /// Clears the mark, and those of the records inside.
    virtual void resetNeedSave();

protected:
    /// Stores a value that differs and marks the record; returns whether it did.
    template <class T>
    bool store(T& field, const T& value)
    {
        if (!(field != value))
            return false;
        field = value;
        needSave = true;
        return true;
    }
    /// Compares with isZero() and refuses a value that is not a number.
    bool store(double& field, double value);

    bool needSave = false;
};

} // namespace Zel3D
