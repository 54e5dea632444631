#include "workbench/cli/nearest_word.h"

#include "parts/ascii.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace workbench {
namespace {

using Costs = std::vector<std::size_t>;

/// The costs of turning the first i + 1 characters of `from` into each beginning of `to`.
Costs nextCosts(const std::string& from, const std::string& to, std::size_t i, const Costs& before,
                const Costs& twoBefore) {
    Costs costs(to.size() + 1, i + 1);
    for (std::size_t j = 0; j < to.size(); ++j) {
        const std::size_t changed = before[j] + (from[i] == to[j] ? 0 : 1);
        costs[j + 1] = std::min({changed, before[j + 1] + 1, costs[j] + 1});
        const bool exchanged = i > 0 && j > 0 && from[i] == to[j - 1] && from[i - 1] == to[j];
        if (exchanged) {
            costs[j + 1] = std::min(costs[j + 1], twoBefore[j - 1] + 1);
        }
    }
    return costs;
}

std::size_t distance(const std::string& from, const std::string& to) {
    Costs twoBefore;
    Costs before(to.size() + 1);
    std::iota(before.begin(), before.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        Costs costs = nextCosts(from, to, i, before, twoBefore);
        twoBefore = std::move(before);
        before = std::move(costs);
    }
    return before.back();
}

}  // namespace

std::string nearestWord(const std::string& word, const std::vector<std::string>& candidates) {
    constexpr std::size_t kLongest = 100;  // of a word that is worth comparing
    constexpr std::size_t kShareThatMayDiffer = 3;
    if (word.size() > kLongest) {
        return {};
    }
    std::string nearest;
    std::size_t least = std::max<std::size_t>(1, word.size() / kShareThatMayDiffer) + 1;
    for (const std::string& each : candidates) {
        const std::size_t cost = distance(parts::lowerCase(word), parts::lowerCase(each));
        if (cost < least) {
            least = cost;
            nearest = each;
        }
    }
    return nearest;
}

}  // namespace workbench
