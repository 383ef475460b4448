#pragma once

#include "core/export.h"

namespace Zel3D {

/// The root of the plot's settings records: the flag that marks unsaved changes and the rule of every setter.
class VORANPLOT_EXPORT SettingsRecord
{
public:
    virtual ~SettingsRecord();

    /// Whether a setter changed something since the flag was cleared; only then the record writes its keys.
    bool isSaveNeeded() const { return needSave; }
    void resetNeedSave() { needSave = false; }

protected:
    SettingsRecord() = default;
    SettingsRecord(const SettingsRecord&) = default;
    SettingsRecord& operator=(const SettingsRecord&) = default;

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

    bool needSave = false;
};

} // namespace Zel3D
