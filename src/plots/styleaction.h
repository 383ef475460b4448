#pragma once

#include "core/export.h"

#include <QAction>

namespace Zel3D {

/// The checkable action of one plot style.
class VORANPLOT_EXPORT StyleAction : public QAction
{
public:
    /// \a plotStyle is the index that the plot understands; \a label is the text and both tips.
    StyleAction(int plotStyle, const QIcon& icon, const QString& label, QObject* parent);

    /// The index of the plot style that the action selects.
    int getStyle() const { return style; }

private:
    int style;
};

} // namespace Zel3D
