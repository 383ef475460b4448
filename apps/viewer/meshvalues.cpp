#include "meshvalues.h"

#include "core/celldata.h"
#include "plots/shplot.h"

MeshValues::MeshValues(Zel3D::SHPlot& plot) : PlotValues(plot), m_data(*plot.getCellData()) {}

int MeshValues::rows() const
{
    return m_data.getVertices().size();
}

int MeshValues::cells() const
{
    return m_data.getCells().size();
}

double MeshValues::value(int column, int row) const
{
    return double(m_data.getVertices().at(row)[column]);
}

QVector3D MeshValues::drawn(int /*column*/, int row) const
{
    return m_data.getVertices().at(row);
}

std::optional<ValuePlace> MeshValues::find(const Zel3D::SelectedObjectsInfo& picked) const
{
    if (!picked.valid)
        return std::nullopt;
    const QVector3D wanted{float(picked.x), float(picked.y), float(picked.z)};
    const int row = m_data.getVertices().indexOf(wanted);
    return row < 0 ? std::nullopt : std::optional<ValuePlace>({2, row});
}

void MeshValues::visitHeights(const std::function<void(double)>& take) const
{
    for (int row = 0; row < rows(); ++row)
        take(value(2, row));
}
