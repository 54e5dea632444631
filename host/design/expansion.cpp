#include "host/design/expansion.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace host {
namespace {

/// Where a count stays: sums of two such still fit.
constexpr std::size_t kMost = std::numeric_limits<std::size_t>::max() / 4;

/// How far the count of a component has come.
enum class State { Untouched, Open, Done };

struct Count {
    State state = State::Untouched;
    std::size_t nextChild = 0;
    std::size_t occurrences = 0;
    std::size_t levels = 0;
};

/// Depth first over the components, each once. The stack is a list, so that a hostile depth costs
/// memory and not the program.
class Counter {
public:
    explicit Counter(const DesignData& data) : data_(data), counts_(data.components.size()) {}

    Expansion run() {
        Expansion result;
        for (std::size_t index = 0; index < counts_.size() && !result.cycle; ++index) {
            result.cycle = countFrom(index);
        }
        result.occurrences = counts_[0].occurrences;
        result.levels = counts_[0].levels;
        return result;
    }

private:
    std::optional<std::size_t> countFrom(std::size_t start) {
        if (counts_[start].state == State::Done) {
            return std::nullopt;
        }
        open(start);
        while (!stack_.empty()) {
            const std::size_t index = stack_.back();
            const OccurrenceData* child = nextChildOf(index);
            if (child == nullptr) {
                counts_[index].state = State::Done;
                stack_.pop_back();
            } else if (counts_[child->component].state == State::Open) {
                return child->component;
            } else if (counts_[child->component].state == State::Untouched) {
                open(child->component);
            } else {
                add(counts_[index], counts_[child->component]);
            }
        }
        return std::nullopt;
    }

    void open(std::size_t index) {
        counts_[index].state = State::Open;
        stack_.push_back(index);
    }

    /// The next child to look at; one that is counted already is passed.
    const OccurrenceData* nextChildOf(std::size_t index) {
        Count& count = counts_[index];
        const std::vector<OccurrenceData>& children = data_.components[index].children;
        while (count.nextChild < children.size()) {
            const OccurrenceData& child = children[count.nextChild];
            const bool stays = !child.absent && counts_[child.component].state != State::Done;
            count.nextChild += stays ? 0 : 1;
            if (!child.absent) {
                return &child;
            }
        }
        return nullptr;
    }

    static void add(Count& assembly, const Count& child) {
        assembly.occurrences = std::min(kMost, assembly.occurrences + 1 + child.occurrences);
        assembly.levels = std::max(assembly.levels, 1 + child.levels);
    }

    const DesignData& data_;
    std::vector<Count> counts_;
    std::vector<std::size_t> stack_;
};

}  // namespace

Expansion expand(const DesignData& data) { return Counter(data).run(); }

}  // namespace host
