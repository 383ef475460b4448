#include "plots/styleaction.h"

namespace Zel3D {

StyleAction::StyleAction(int plotStyle, const QIcon& icon, const QString& label, QObject* parent)
    : QAction(icon, label, parent), style(plotStyle)
{
    setCheckable(true);
    setToolTip(label);
    setStatusTip(label);
    setMenuRole(QAction::NoRole);
}

} // namespace Zel3D
