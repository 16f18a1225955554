// Pie throughput: a flat pie of many sectors with side labels that must be
// spread, and a 3D donut whose walls are cut and ordered, each made and
// encoded as PNG; and the spreading of one long label column alone.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "draw/pixel/ColorWords.h"
#include "families/pie/PieChart.h"
#include "families/pie/label/SideLabelColumn.h"
#include "foundation/Constants.h"

namespace {

const int kSectors = 60;

std::vector<double> sectorValues() {
    std::vector<double> v;
    for (int i = 0; i < kSectors; ++i) v.push_back(i % 7 == 0 ? 40 : 1 + i % 3);
    return v;
}

void makePie(benchmark::State &state, bool deep) {
    std::vector<double> values = sectorValues();
    std::vector<std::string> names;
    for (int i = 0; i < kSectors; ++i) names.push_back("Sector " + std::to_string(i));
    std::vector<const char *> labels;
    for (const std::string &n : names) labels.push_back(n.c_str());
    for (auto _ : state) {
        PieChart *c = PieChart::create(800, 600, 0xFFFFFF, kTransparent, 0);
        c->setData(DoubleArray(values.data(), kSectors), StringArray(labels.data(), kSectors));
        if (deep) {
            c->setDonutSize(400, 280, 200, 90);
            c->set3D(30, 50, false);
            c->setSectorStyle(kRoundedEdgeShading, -1, -1);
            c->setExplode(3, -1);
        } else {
            c->setPieSize(400, 300, 180);
            c->setLabelLayout(kSideLayout, 40, -1, -1);
        }
        MemBlock png = c->makeChart2(kPNG);
        benchmark::DoNotOptimize(png.len);
        c->destroy();
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_FlatPieWithSideLabels(benchmark::State &state) {
    makePie(state, false);
}

void BM_Donut3DWithCircleLabels(benchmark::State &state) {
    makePie(state, true);
}

void BM_SpreadSideLabelColumn(benchmark::State &state) {
    int n = (int)state.range(0);
    for (auto _ : state) {
        SideLabelColumn column(0, n * 14);
        for (int i = 0; i < n; ++i) column.add(n * 7 + (i % 5), 12);
        column.spread();
        benchmark::DoNotOptimize(column.getY(n - 1));
    }
    state.SetItemsProcessed(state.iterations() * n);
}

}  // namespace

BENCHMARK(BM_FlatPieWithSideLabels)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Donut3DWithCircleLabels)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SpreadSideLabelColumn)->Arg(50)->Arg(500)->Unit(benchmark::kMicrosecond);
