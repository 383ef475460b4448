#pragma once

#include <QString>

/// What a person prefers for everything the viewer shows, as opposed to what was changed on one plot. Read
/// from and written to the viewer's settings at once.
namespace ViewerPreferences {

/// The largest and the smallest budget that make sense, and the usual one, in nodes.
constexpr int leastNodes = 10000;
constexpr int mostNodes = 100000000;
constexpr int usualNodes = 4000000;

/// The code of a language with translations such as "de", or empty for that of the system.
QString language();
void setLanguage(const QString& code);

/// The name of the look that new plots are dressed in, or empty for that of the last plot.
QString standardLook();
void setStandardLook(const QString& name);

/// Grids of more nodes than this are read thinned. What is stored beyond the limits counts as the limit.
int nodeBudget();
void setNodeBudget(int nodes);

/// Whether large grids are shown coarser while they are turned.
bool isPreviewing();
void setPreviewing(bool on);

} // namespace ViewerPreferences
