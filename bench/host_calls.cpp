// The host calls of the BOM dialog by operation, and what a design will cost in a host where a call
// takes a microsecond and physical properties take five milliseconds.
//
//     host_calls [OCCURRENCES]        by default 5000, all different, directly under the root
//
// Counts are exact: the gate of the stand-in counts each call of the add-in by its name.

#include "bench/bench_design.h"
#include "bench/bench_session.h"

#include "host/base/gate.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <set>
#include <string>

namespace {

using Counts = std::map<std::string, std::uint64_t>;

constexpr std::size_t kOccurrences = 5000;
constexpr double kSecondsOfACall = 1e-6;
constexpr double kSecondsOfProperties = 5e-3;

Counts callsOf(const std::function<void()>& action) {
    host::gate::reset();
    action();
    return host::gate::counts();
}

bool givesProperties(const std::string& name) {
    return name.ends_with("::physicalProperties") || name.ends_with("::getPhysicalProperties");
}

void printSum(const char* action, const Counts& counts) {
    std::uint64_t all = 0;
    std::uint64_t properties = 0;
    for (const auto& [name, count] : counts) {
        all += count;
        properties += givesProperties(name) ? count : 0;
    }
    const double seconds = static_cast<double>(all) * kSecondsOfACall +
                           static_cast<double>(properties) * kSecondsOfProperties;
    std::printf("%s: %llu calls, %llu of them for physical properties: %.1f s\n", action,
                static_cast<unsigned long long>(all), static_cast<unsigned long long>(properties),
                seconds);
}

void printTable(const Counts& open, const Counts& structure, double occurrences) {
    std::set<std::string> names;
    for (const Counts* const counts : {&open, &structure}) {
        for (const auto& [name, count] : *counts) {
            names.insert(name);
        }
    }
    const auto each = [&](const Counts& counts, const std::string& name) {
        const auto found = counts.find(name);
        return found == counts.end() ? 0 : static_cast<double>(found->second) / occurrences;
    };
    // What is called a few times in all is not a matter of the design's size.
    constexpr double kFew = 0.5;
    std::printf("| Operation | Open | First \"Structure\" |\n|---|---|---|\n");
    for (const std::string& name : names) {
        if (each(open, name) > kFew || each(structure, name) > kFew) {
            std::printf("| `%s` | %.0f | %.0f |\n", name.c_str(), each(open, name),
                        each(structure, name));
        }
    }
}

}  // namespace

int main(int count, char** words) {
    const std::size_t occurrences =
        count > 1 ? std::strtoull(words[1], nullptr, /*base=*/10) : kOccurrences;
    host::Session session(bench::addinOptions());
    session.openDesign(bench::makeDesign(bench::Shape::FlatDifferent, occurrences));
    session.run();
    const Counts open = callsOf([&] { session.press("QM_TX_BOM"); });
    const Counts structure = callsOf([&] { session.activateTab(bench::kStructure); });
    printTable(open, structure, static_cast<double>(occurrences));
    printSum("Open", open);
    printSum("First \"Structure\"", structure);
}
