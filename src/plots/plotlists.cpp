#include "plots/plotlists.h"

#include <utility>

namespace Zel3D {

void PlotLists::Drawing::remove()
{
    for (DisplayList* list : {&normals, &additions, &data, &mesh})
        list->remove();
    isMeshApart = false;
}

void PlotLists::Drawing::forget()
{
    for (DisplayList* list : {&normals, &additions, &data, &mesh})
        list->forget();
    isMeshApart = false;
}

ListExchange::ListExchange(PlotLists& plotLists, PlotLists::Drawing& others) : lists(plotLists), other(others)
{
    std::swap(lists.drawing, other);
    lists.areExchanged = true;
}

ListExchange::~ListExchange()
{
    std::swap(lists.drawing, other);
    lists.areExchanged = false;
}

} // namespace Zel3D
