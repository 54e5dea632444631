#include "host/import/reader/tree_check.h"

#include <algorithm>
#include <cstdint>

namespace step {
namespace {

class TreeCheck {
public:
    TreeCheck(const Assembly& assembly, const host::ReadingLimits& limits)
        : assembly_(assembly),
          limits_(limits),
          states_(assembly.components.size()),
          occurrences_(assembly.components.size()) {}

    void run() {
        for (std::size_t index = 0; index < states_.size(); ++index) {
            visit(index);
        }
        std::size_t total = assembly_.roots.size() == 1 ? 0 : assembly_.roots.size();
        for (const std::size_t root : assembly_.roots) {
            total += occurrences_[root];
        }
        if (assembly_.roots.empty() || total > limits_.occurrences) {
            throw TooManyOccurrences(
                "would become more than " + std::to_string(limits_.occurrences) +
                " occurrences; open a part of the assembly, or increase the limit");
        }
    }

private:
    enum class State : std::uint8_t { Untouched, Open, Done };

    // The way stops at the first level too many, so the recursion stays as shallow as the limit.
    void visit(std::size_t index) {
        if (states_[index] == State::Done) {
            return;
        }
        way_.push_back(index);
        if (states_[index] == State::Open) {
            throw ReadError("holds an assembly that contains itself (" + wayRound() +
                            "); such a tree has no end");
        }
        if (way_.size() > limits_.levels + 1) {
            throw ReadError("nests assemblies more than " + std::to_string(limits_.levels) +
                            " levels deep; open a part of the assembly");
        }
        states_[index] = State::Open;
        std::size_t total = 0;
        for (const Use& use : assembly_.components[index].uses) {
            visit(use.component);
            // Each number is at most one above the limit, so no sum runs over.
            total = std::min(total + 1 + occurrences_[use.component], limits_.occurrences + 1);
        }
        occurrences_[index] = total;
        states_[index] = State::Done;
        way_.pop_back();
    }

    [[nodiscard]] std::string wayRound() const {
        std::string text;
        for (auto at = std::find(way_.begin(), way_.end(), way_.back()); at != way_.end(); ++at) {
            text += (text.empty() ? "" : " > ") + assembly_.components[*at].name;
        }
        return text;
    }

    const Assembly& assembly_;
    const host::ReadingLimits& limits_;
    std::vector<State> states_;
    std::vector<std::size_t> occurrences_;
    std::vector<std::size_t> way_;
};

}  // namespace

void checkTree(const Assembly& assembly, const host::ReadingLimits& limits) {
    TreeCheck(assembly, limits).run();
}

}  // namespace step
