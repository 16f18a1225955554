#include <benchmark/benchmark.h>

#include "tests/host/simhost/SimHost.h"

// What a host pays when it takes the plug-in in: REALPluginMain registering
// every class with its declarations, read back by the simulated host, and
// the first chart the application makes.  The shared object stays loaded, so
// the time is registration, not dlopen.

namespace {

void BM_PluginRegistration(benchmark::State &state) {
    size_t classes = 0;
    for (auto _ : state) {
        simhost::SimHost host(VISTREL_PLUGIN_PATH);
        classes = host.pluginClasses().size();
        benchmark::DoNotOptimize(classes);
    }
    state.counters["classes"] = (double)classes;
}
BENCHMARK(BM_PluginRegistration)->Unit(benchmark::kMillisecond);

void BM_RegistrationAndFirstChart(benchmark::State &state) {
    for (auto _ : state) {
        simhost::SimHost host(VISTREL_PLUGIN_PATH);
        simhost::Value chart =
            host.create("VSMultiChartXPG", {simhost::I(320), simhost::I(200)}).value;
        host.call(chart, "addTitle", {simhost::S("Start-up")});
        simhost::CallResult png = host.call(chart, "makeChart", {simhost::I(0)});
        if (png.raised || png.value.isNil()) {
            state.SkipWithError("makeChart gave no picture");
            break;
        }
        benchmark::DoNotOptimize(png.value.ref.get());
    }
}
BENCHMARK(BM_RegistrationAndFirstChart)->Unit(benchmark::kMillisecond);

}  // namespace
