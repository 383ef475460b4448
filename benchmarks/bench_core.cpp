// What a node costs without OpenGL: storing it, its normal, its colour. The counter is nodes a second.

#include "core/colortable.h"
#include "core/griddata.h"
#include "core/spectrumdata.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace {

std::vector<double> heights(std::size_t nodes)
{
    std::vector<double> values(nodes * nodes);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = std::sin(0.01 * double(i / nodes)) * std::cos(0.02 * double(i % nodes));
    return values;
}

std::vector<double*> columnsOf(std::vector<double>& values, std::size_t nodes)
{
    std::vector<double*> columns;
    for (std::size_t i = 0; i < nodes; ++i)
        columns.push_back(&values[i * nodes]);
    return columns;
}

void countNodes(benchmark::State& state)
{
    state.counters["nodes/s"] = benchmark::Counter(double(state.range(0) * state.range(0)),
                                                   benchmark::Counter::kIsIterationInvariantRate);
}

void loadGrid(benchmark::State& state)
{
    const auto nodes = unsigned(state.range(0));
    std::vector<double> values = heights(nodes);
    const std::vector<double*> columns = columnsOf(values, nodes);
    Zel3D::GridData grid;
    for (auto _ : state)
        grid.setData(const_cast<double**>(columns.data()), nodes, nodes, 0.0, 1.0, 0.0, 1.0);
    countNodes(state);
}

void normals(benchmark::State& state)
{
    const auto nodes = unsigned(state.range(0));
    std::vector<double> values = heights(nodes);
    std::vector<double*> columns = columnsOf(values, nodes);
    Zel3D::GridData grid;
    grid.setData(columns.data(), nodes, nodes, 0.0, 1.0, 0.0, 1.0);
    for (auto _ : state)
        grid.calcNormals();
    countNodes(state);
}

void colours(benchmark::State& state)
{
    const std::vector<double> values = heights(std::size_t(state.range(0)));
    QGradientStops stops;
    for (int i = 0; i <= 4; ++i)
        stops.append({0.25 * i, QColor(60 * i, 255 - 30 * i, 128)});
    const Zel3D::ColorTable table(stops);
    for (auto _ : state) {
        for (double value : values)
            benchmark::DoNotOptimize(table.channelsAt(value, -1.0, 1.0));
    }
    countNodes(state);
}

void reloadSpectra(benchmark::State& state)
{
    Zel3D::SpectrumData::Map map;
    for (int k = 0; k < state.range(0); ++k) {
        for (int i = 0; i < state.range(0); ++i)
            map[k][i] = std::sin(0.1 * i + k);
    }
    Zel3D::SpectrumData data;
    data.setData(map);
    for (auto _ : state)
        benchmark::DoNotOptimize(data.setHeights(map));
    countNodes(state);
}

BENCHMARK(loadGrid)->Arg(128)->Arg(1024)->Unit(benchmark::kMillisecond);
BENCHMARK(normals)->Arg(128)->Arg(1024)->Unit(benchmark::kMillisecond);
BENCHMARK(colours)->Arg(128)->Arg(1024)->Unit(benchmark::kMillisecond);
BENCHMARK(reloadSpectra)->Arg(128)->Arg(512)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
