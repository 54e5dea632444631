#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace host::ui {

/// A list that is appended to and removed from, with fast access by index and by slot.
///
/// An entry is put into a slot, which stays its own until `tidy` moves it; its index is its place
/// among the entries that are left. Appending and removing cost logarithmic time at most, and
/// so does finding index from slot or slot from index; as long as nothing was removed they are the
/// same number. `T` is a handle or pointer, and a null one marks a slot that is free.
template <class T>
class Sequence {
public:
    [[nodiscard]] std::size_t count() const { return count_; }

    /// Adds an entry after the others; returns its slot.
    std::size_t append(T value) {
        slots_.push_back(std::move(value));
        ++count_;
        if (!sums_.empty()) {
            appendSum();
        }
        return slots_.size() - 1;
    }

    /// The entry at an index below `count`.
    [[nodiscard]] const T& at(std::size_t index) const {
        return slots_[sums_.empty() ? index : slotOf(index)];
    }

    /// The entry in a slot, null for a free one.
    [[nodiscard]] const T& inSlot(std::size_t slot) const { return slots_[slot]; }

    /// The number of entries before the one in `slot`.
    [[nodiscard]] std::size_t indexOf(std::size_t slot) const {
        if (sums_.empty()) return slot;
        std::size_t sum = 0;
        for (std::size_t node = slot; node > 0; node &= node - 1) {
            sum += sums_[node];
        }
        return sum;
    }

    /// Removes the entry from its slot and returns it.
    T remove(std::size_t slot) {
        if (sums_.empty()) {
            buildSums();
        }
        for (std::size_t node = slot + 1; node < sums_.size(); node += node & (~node + 1)) {
            --sums_[node];
        }
        --count_;
        return std::exchange(slots_[slot], T());
    }

    /// Closes the gaps once they are more than the entries, and then calls `moved(entry, slot)`
    /// with the new slot of each entry.
    template <class Moved>
    void tidy(const Moved& moved) {
        if (slots_.size() < 2 * count_ + kTidyFrom) return;
        std::size_t next = 0;
        for (T& each : slots_) {
            if (!each) continue;
            T entry = std::exchange(each, T());
            slots_[next] = std::move(entry);
            moved(slots_[next], next);
            ++next;
        }
        slots_.resize(next);
        sums_.clear();
    }

    /// Calls `visit` with each entry in order.
    template <class Visit>
    void each(const Visit& visit) const {
        for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
            if (slots_[slot]) visit(slots_[slot]);
        }
    }

    void clear() {
        slots_.clear();
        sums_.clear();
        count_ = 0;
    }

private:
    static constexpr std::size_t kTidyFrom = 64;

    /// Counts of entries as a Fenwick tree: node n sums as many slots as its lowest bit
    /// says, up to slot n - 1.
    void buildSums() {
        sums_.assign(slots_.size() + 1, 0);
        for (std::size_t node = 1; node < sums_.size(); ++node) {
            sums_[node] += slots_[node - 1] ? 1 : 0;
            const std::size_t parent = node + (node & (~node + 1));
            if (parent < sums_.size()) {
                sums_[parent] += sums_[node];
            }
        }
    }

    void appendSum() {
        const std::size_t node = sums_.size();
        const std::size_t first = node & (node - 1);
        std::uint32_t sum = 1;
        for (std::size_t below = node - 1; below > first; below &= below - 1) {
            sum += sums_[below];
        }
        sums_.push_back(sum);
    }

    [[nodiscard]] std::size_t slotOf(std::size_t index) const {
        std::size_t node = 0;
        for (std::size_t step = std::bit_floor(sums_.size() - 1); step > 0; step /= 2) {
            if (node + step < sums_.size() && sums_[node + step] <= index) {
                node += step;
                index -= sums_[node];
            }
        }
        return node;
    }

    std::vector<T> slots_;
    std::vector<std::uint32_t> sums_;  ///< empty as long as there is no gap
    std::size_t count_ = 0;
};

}  // namespace host::ui
