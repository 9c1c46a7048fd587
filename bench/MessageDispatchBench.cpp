// Every host message goes through PluginMain and the framework, which borrows the framework
// suite by name for each one; these cases keep that path and the registry lookup cheap.
#include <loader/PluginManager.hpp>
#include <runtime/Runtime.hpp>

#include <zelmora/ZMNotifierSuite.h>

#include <benchmark/benchmark.h>

namespace {

void BM_SuiteAcquireAndRelease(benchmark::State& state) {
    zm::host::Runtime runtime;
    for (auto _ : state) {
        const void* table = nullptr;
        runtime.suites.Acquire("ZM Art Suite", 17, &table);
        runtime.suites.Release("ZM Art Suite", 17);
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK(BM_SuiteAcquireAndRelease);

// One notification to the real Tolvane bundle: message, framework dispatch, handler.
void BM_NotificationRoundTrip(benchmark::State& state) {
    zm::host::Runtime runtime;
    runtime.plugins.Scan({ZELMORA_BENCH_PLUGIN_DIR});
    if (runtime.plugins.StartAll() == 0) {
        state.SkipWithError("the Tolvane bundle did not start");
        return;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(runtime.plugins.Notify(ZM_NOTIFIER_DOCUMENT_CHANGED, nullptr));
    }
}
BENCHMARK(BM_NotificationRoundTrip);

}  // namespace
