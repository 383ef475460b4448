#pragma once

#include "core/export.h"

#include <QAction>

namespace Zel3D {

/// The checkable action of one plot style.
class VORANPLOT_EXPORT StyleAction : public QAction
{
public:
    /// \a plotStyle is the index that the plot understands; \a text is also both tips.
    StyleAction(int plotStyle, const QIcon& icon, const QString& text, QObject* parent);

    /// The index of the plot style that the action selects.
    int getStyle() const { return style; }
    /// Another text and other tips, as after a change of the language. What a host has set itself stays.
    void setLabel(const QString& words);

private:
    int style;
    QString label;
};

} // namespace Zel3D
