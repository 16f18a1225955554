#include <benchmark/benchmark.h>

#include <vector>

#include "chart/base/MultiChart.h"
#include "chart/xy/XYChart.h"
#include "draw/canvas/DrawArea.h"
#include "host/classes/PluginEntry.h"
#include "host/glue/HostValues.h"
#include "layers/LayerKinds.h"
#include "tests/host/simhost/SimHost.h"

// What a host call costs beyond the engine: the glue of the loaded plug-in
// against the engine called directly, a line chart of many points made both
// ways, and the copy of a host array with the element function fetched once
// against item by item.

namespace {

const int kLines = 1000;
const int kItems = 1000000;

using LineGlue = void (*)(REALobject, double, double, double, double, RBInteger, RBInteger);
using PlainGlue = void (*)(REALobject);

REALproc glueOf(const simhost::SimClass *cls, const std::string &text) {
    for (const simhost::SimMethod &m : cls->methods)
        if (m.text.compare(0, text.size(), text) == 0) return m.function;
    return nullptr;
}

// Each pass draws its lines in a dynamic layer and rolls them back.
void BM_LinesThroughThePlugin(benchmark::State &state) {
    simhost::SimHost host(VISTREL_PLUGIN_PATH);
    simhost::Value canvas = host.create("VSDrawAreaXPG").value;
    host.call(canvas, "setSize", {simhost::I(400), simhost::I(300)});
    const simhost::SimClass *cls = host.findClass("VSDrawAreaXPG");
    auto line = reinterpret_cast<LineGlue>(glueOf(cls,
                                                  "line(x1 as double, y1 as double, x2 as "
                                                  "double, y2 as double, colorValue as integer"));
    auto begin = reinterpret_cast<PlainGlue>(glueOf(cls, "initDynamicLayer"));
    auto self = reinterpret_cast<REALobject>(canvas.ref.get());
    using RollBack = void (*)(REALobject, RBBoolean);
    auto end = reinterpret_cast<RollBack>(glueOf(cls, "removeDynamicLayer"));
    for (auto _ : state) {
        begin(self);
        for (int i = 0; i < kLines; ++i) line(self, i % 400, 10, 399 - i % 400, 290, 0x336699, 1);
        end(self, 0);
    }
    state.SetItemsProcessed(state.iterations() * kLines);
}
BENCHMARK(BM_LinesThroughThePlugin);

void BM_LinesOnTheEngine(benchmark::State &state) {
    DrawArea *d = DrawArea::create();
    d->setSize(400, 300, 0xffffff);
    for (auto _ : state) {
        d->initDynamicLayer();
        for (int i = 0; i < kLines; ++i) d->line(i % 400, 10, 399 - i % 400, 290, 0x336699, 1);
        d->removeDynamicLayer();
    }
    d->destroy();
    state.SetItemsProcessed(state.iterations() * kLines);
}
BENCHMARK(BM_LinesOnTheEngine);

// A part a chart hands out costs a host object with two locks: the glue of
// addText against the engine's addText, on a new chart each pass.
const int kTexts = 100;

void BM_ChartTextsThroughThePlugin(benchmark::State &state) {
    simhost::SimHost host(VISTREL_PLUGIN_PATH);
    const simhost::SimClass *cls = host.findClass("VSBaseChartXPG");
    // Declared with defaults after the text: the glue takes them all.
    using Full = REALobject (*)(REALobject, RBInteger, RBInteger, REALstring, REALstring, double,
                                RBInteger, RBInteger, double, RBBoolean);
    auto addText = reinterpret_cast<Full>(
        glueOf(cls, "addText(x as integer, y as integer, text as string, font as string = "));
    simhost::SimString *label = host.newString("label", kREALTextEncodingUTF8);
    simhost::SimString *noFont = host.newString("", kREALTextEncodingUTF8);
    auto text = reinterpret_cast<REALstring>(label), font = reinterpret_cast<REALstring>(noFont);
    for (auto _ : state) {
        simhost::Value chart =
            host.create("VSMultiChartXPG", {simhost::I(300), simhost::I(200)}).value;
        auto self = reinterpret_cast<REALobject>(chart.ref.get());
        for (int i = 0; i < kTexts; ++i) {
            REALobject box = addText(self, i, i, text, font, 8, -65534, 7, 0, 0);
            host.unlock(reinterpret_cast<simhost::RefHeader *>(box));
        }
    }
    host.unlock(&label->header);
    host.unlock(&noFont->header);
    state.SetItemsProcessed(state.iterations() * kTexts);
}
BENCHMARK(BM_ChartTextsThroughThePlugin);

void BM_ChartTextsOnTheEngine(benchmark::State &state) {
    for (auto _ : state) {
        MultiChart *c = MultiChart::create(300, 200, 0xffff0000, 0xff000000, 0);
        for (int i = 0; i < kTexts; ++i) c->addText(i, i, "label", "", 8, -65534, 7, 0, false);
        c->destroy();
    }
    state.SetItemsProcessed(state.iterations() * kTexts);
}
BENCHMARK(BM_ChartTextsOnTheEngine);

// A line of many points over a 500-pixel plot, laid out and drawn: through the
// plug-in the host array is copied once more, and the chart's parts are host
// objects.
const int kLinePoints = 200000;

std::vector<double> linePoints() {
    std::vector<double> v(kLinePoints);
    for (int i = 0; i < kLinePoints; ++i) v[i] = (i * 7919) % 1000 + i * 0.01;
    return v;
}

void BM_LineChartThroughThePlugin(benchmark::State &state) {
    simhost::SimHost host(VISTREL_PLUGIN_PATH);
    simhost::Value data = host.doubles(linePoints());
    for (auto _ : state) {
        simhost::Value c = host.create("VSXYChartXPG", {simhost::I(600), simhost::I(300)}).value;
        host.call(c, "setPlotArea",
                  {simhost::I(50), simhost::I(20), simhost::I(500), simhost::I(250)});
        host.call(c, "addLineLayer", {data});
        host.call(c, "makeChart");
    }
    state.SetItemsProcessed(state.iterations() * kLinePoints);
}
BENCHMARK(BM_LineChartThroughThePlugin)->Unit(benchmark::kMillisecond);

void BM_LineChartOnTheEngine(benchmark::State &state) {
    LayerKinds::install();
    std::vector<double> data = linePoints();
    for (auto _ : state) {
        XYChart *c = XYChart::create(600, 300, 0xffff0000, 0xff000000, 0);
        c->setPlotArea(50, 20, 500, 250, 0xff000000, -1, -1, 0xc0c0c0, 0xff000000);
        c->addLineLayer(DoubleArray(data.data(), kLinePoints), -1, "", 0);
        c->makeChart();
        c->destroy();
    }
    state.SetItemsProcessed(state.iterations() * kLinePoints);
}
BENCHMARK(BM_LineChartOnTheEngine)->Unit(benchmark::kMillisecond);

template <class Copy>
void copyArray(benchmark::State &state, Copy copy) {
    simhost::SimHost host(&pluginMain);
    std::vector<double> items(kItems);
    for (int i = 0; i < kItems; ++i) items[i] = i * 0.5;
    simhost::Value array = host.doubles(items);
    auto a = reinterpret_cast<REALarray>(array.ref.get());
    for (auto _ : state) benchmark::DoNotOptimize(copy(a));
    state.SetItemsProcessed(state.iterations() * kItems);
}

void BM_HostArrayCopy(benchmark::State &state) {
    copyArray(state, [](REALarray a) { return RBDoubleArray(a).items().size(); });
}
BENCHMARK(BM_HostArrayCopy);

void BM_HostArrayCopyByItem(benchmark::State &state) {
    copyArray(state, [](REALarray a) { return readDoublesByItem(a).size(); });
}
BENCHMARK(BM_HostArrayCopyByItem);

}  // namespace
