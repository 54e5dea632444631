// Time and host calls of what the user does in the open BOM dialog, for designs of 1,000 to 100,000
// rows: a sort, a click that unfolds and one that folds the top assembly, saving the columns, the
// write-back, and saving the design. A row of the output is one design; its time is that of the
// action the benchmark is named after, and the counters hold the others beside it.

#include "bench/bench_session.h"
#include "bench/measure.h"

#include <benchmark/benchmark.h>

#include <functional>

namespace bench {
namespace {

using host::Session;

constexpr double kMillisecondsASecond = 1000;

/// Opens the dialog on a design, does something in it once, and notes the seconds it took.
void inDialog(benchmark::State& state, Shape shape, const std::function<double(Session&)>& act) {
    for (auto iteration : state) {
        (void)iteration;
        Session session(addinOptions());
        start(session, shape, state);
        session.press("QM_TX_BOM");
        state.SetIterationTime(act(session) / kMillisecondsASecond);
    }
}

void sortRows(benchmark::State& state) {
    inDialog(state, Shape::FlatDifferent, [&](Session& session) {
        session.activateTab(kStructure);
        session.choose("QEMA_droDown_AscDesc", "Descending");
        measure(state, "by_number", [&] { session.click("positionOcc_0"); });
        return measure(state, "by_text", [&] { session.click("partNumberOcc_0"); });
    });
}

void foldTop(benchmark::State& state) {
    inDialog(state, Shape::UnderOne, [&](Session& session) {
        session.activateTab(kModel);
        const double unfold = measure(state, "unfold", [&] { session.click("modelColapseRow_1"); });
        return unfold + measure(state, "fold", [&] { session.click("modelColapseRow_1"); });
    });
}

void saveColumns(benchmark::State& state) {
    inDialog(state, Shape::FlatDifferent, [&](Session& session) {
        session.activateTab(kConfiguration);
        measure(state, "choose", [&] { session.choose("iProperty_0", "Mass"); });
        return measure(state, "save", [&] { session.click("QEMA_btnSaveConfigBom"); });
    });
}

/// Accepting also opens the dialog again, which is measured apart to be known.
void writeBack(benchmark::State& state, Shape shape, const char* tab) {
    inDialog(state, shape, [&](Session& session) {
        session.activateTab(tab);
        const double accept = measure(state, "accept", [&] { session.ok(); });
        if (session.dialogOpen()) {
            session.cancel();
        }
        const double reopen = measure(state, "reopen", [&] { session.press("QM_TX_BOM"); });
        session.cancel();
        const auto file = session.folder() / "measured.design.json";
        measure(state, "save_design", [&] { session.save(file); });
        return accept - reopen;
    });
}

BENCHMARK(sortRows)->Apply(sizesFrom<1000>);
BENCHMARK(foldTop)->Apply(sizesFrom<1000>);
BENCHMARK(saveColumns)->Apply(sizesFrom<1000>);
BENCHMARK_CAPTURE(writeBack, model, Shape::FlatDifferent, kModel)->Apply(sizesFrom<1000>);
BENCHMARK_CAPTURE(writeBack, structure, Shape::FlatDifferent, kStructure)->Apply(sizesFrom<1000>);
BENCHMARK_CAPTURE(writeBack, shared_structure, Shape::FlatShared, kStructure)
    ->Apply(sizesFrom<1000>);

}  // namespace
}  // namespace bench

BENCHMARK_MAIN();
