// Time and host calls of the BOM dialog, for designs of 100 to 100,000 occurrences in three shapes.
//
// A row of the output is one design. Its time is that of opening the dialog and showing the tab
// "Structure" for the first time; the counters hold each action, as milliseconds and as calls of
// the host's API. Counts are stable; times are those of the machine.

#include "bench/bench_session.h"
#include "bench/measure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace bench {
namespace {

using host::Session;

/// An editable cell of the first data row of the tab "Data of Model".
constexpr const char* kCell = "modelPartNumberOcc_1";

void measureDialog(benchmark::State& state, Shape shape) {
    for (auto iteration : state) {
        (void)iteration;
        Session session(addinOptions());
        start(session, shape, state);

        double first = measure(state, "open", [&] { session.press("QM_TX_BOM"); });
        measure(state, "key", [&] { session.paste(kCell, "P-1"); });
        first += measure(state, "structure", [&] { session.activateTab(kStructure); });
        session.activateTab(kConfiguration);
        measure(state, "later_tab", [&] { session.activateTab(kStructure); });
        session.activateTab(kModel);
        measure(state, "export", [&] { session.click("QEMA_btnExportXls"); });
        state.counters["peak_MB"] = bench::peakMegabytes();
        state.SetIterationTime(first / 1000);
    }
}

/// Writes settings with six BOM columns, as the Configuration tab saves them.
void configureColumns(const Session& session) {
    std::ofstream settings(session.addin().folder / "Tarnix_configuration.xml");
    settings << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                "<configuration nameOfApplication=\"Tarnix\"><category name=\"bomItems\">";
    for (const char* name :
         {"Quantity", "Part Name", "Description", "Mass", "Physical Material", "Bounding Box"}) {
        settings << "<item_bomItems id=\"QEMA_" << name << "\"><displayName>" << name
                 << "</displayName></item_bomItems>";
    }
    settings << "</category></configuration>";
}

double medianOfFive(const std::function<double()>& figure) {
    std::array<double, 5> figures = {};
    std::generate(figures.begin(), figures.end(), figure);
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

/// The export alone, of rows with six configured columns.
void measureExport(benchmark::State& state) {
    for (auto iteration : state) {
        (void)iteration;
        Session session(addinOptions());
        configureColumns(session);
        start(session, Shape::FlatDifferent, state);
        session.press("QM_TX_BOM");
        // A click also walks the design; what remains is the writing.
        const double walkMs = medianOfFive(
            [&] { return measure(state, "walk", [&] { session.paste(kCell, "P-1"); }); });
        const double clickMs = medianOfFive(
            [&] { return measure(state, "click", [&] { session.click("QEMA_btnExportXls"); }); });
        const auto csv = session.addin().folder / "TarnixBOM.csv";
        const double megabytes = static_cast<double>(std::filesystem::file_size(csv)) / 1e6;
        state.counters["csv_MB"] = megabytes;
        state.counters["csv_MB_per_s"] = megabytes / (clickMs - walkMs) * 1000;
        state.SetIterationTime((clickMs - walkMs) / 1000);
    }
}

BENCHMARK_CAPTURE(measureDialog, flat_different, Shape::FlatDifferent)->Apply(sizesFrom<100>);
BENCHMARK_CAPTURE(measureDialog, flat_shared, Shape::FlatShared)->Apply(sizesFrom<100>);
BENCHMARK_CAPTURE(measureDialog, nested, Shape::Nested)->Apply(sizesFrom<100>);
BENCHMARK(measureExport)->Apply(sizesFrom<100>);

}  // namespace
}  // namespace bench

BENCHMARK_MAIN();
