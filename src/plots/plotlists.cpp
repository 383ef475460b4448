#include "plots/plotlists.h"

namespace Zel3D {

void PlotLists::Drawing::remove()
{
    for (DisplayList* list : {&normals, &data, &mesh})
        list->remove();
    isMeshApart = false;
}

void PlotLists::Drawing::forget()
{
    for (DisplayList* list : {&normals, &data, &mesh})
        list->forget();
    isMeshApart = false;
}

} // namespace Zel3D
