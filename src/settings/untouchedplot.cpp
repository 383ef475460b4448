#include "settings/untouchedplot.h"

namespace Zel3D {

UntouchedPlot::UntouchedPlot() : BasePlot(QString(), QString(), QString()) {}

void UntouchedPlot::updateDataType(int /*type*/) {}

void UntouchedPlot::clearData() {}

void UntouchedPlot::createNormals() {}

} // namespace Zel3D
