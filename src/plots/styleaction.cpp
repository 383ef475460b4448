#include "plots/styleaction.h"

namespace Zel3D {

StyleAction::StyleAction(int plotStyle, const QIcon& icon, const QString& text, QObject* parent)
    : QAction(icon, text, parent), style(plotStyle), label(text)
{
    setCheckable(true);
    setToolTip(text);
    setStatusTip(text);
    setMenuRole(QAction::NoRole);
}

void StyleAction::setLabel(const QString& words)
{
    if (text() == label)
        setText(words);
    if (toolTip() == label)
        setToolTip(words);
    if (statusTip() == label)
        setStatusTip(words);
    label = words;
}

} // namespace Zel3D
