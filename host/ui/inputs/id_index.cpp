#include "host/ui/inputs/id_index.h"

#include "host/ui/inputs/input_state.h"

#include <utility>

namespace host::ui {
namespace {

constexpr std::size_t kFirstSize = 16;

/// At most three quarters of the places are used.
bool isFull(std::size_t used, std::size_t places) { return 4 * used > 3 * places; }

}  // namespace

std::size_t IdIndex::placeOf(const InputId& id) const {
    const std::uint32_t hash = id.hash();
    std::size_t place = hash & mask();
    while (firsts_[place] != nullptr &&
           (hashes_[place] != hash || firsts_[place]->compactId() != id)) {
        place = (place + 1) & mask();
    }
    return place;
}

void IdIndex::grow() {
    const std::size_t size = firsts_.empty() ? kFirstSize : 2 * firsts_.size();
    const auto firsts = std::exchange(firsts_, std::vector<InputState*>(size));
    const auto hashes = std::exchange(hashes_, std::vector<std::uint32_t>(size));
    for (std::size_t old = 0; old < firsts.size(); ++old) {
        if (firsts[old] == nullptr) continue;
        std::size_t place = hashes[old] & mask();
        while (firsts_[place] != nullptr) {
            place = (place + 1) & mask();
        }
        firsts_[place] = firsts[old];
        hashes_[place] = hashes[old];
    }
}

void IdIndex::add(InputState& input) {
    if (isFull(used_ + 1, firsts_.size())) {
        grow();
    }
    const std::size_t place = placeOf(input.compactId());
    InputState* first = firsts_[place];
    if (first == nullptr) {
        firsts_[place] = &input;
        hashes_[place] = input.compactId().hash();
        input.previousSameId = &input;
        ++used_;
        return;
    }
    InputState* last = first->previousSameId;
    last->nextSameId = &input;
    input.previousSameId = last;
    first->previousSameId = &input;
}

void IdIndex::remove(InputState& input) {
    const std::size_t place = placeOf(input.compactId());
    InputState* first = firsts_[place];
    InputState* next = input.nextSameId;
    if (first == &input) {
        if (next == nullptr) {
            vacate(place);
        } else {
            next->previousSameId = input.previousSameId;
            firsts_[place] = next;
        }
    } else {
        input.previousSameId->nextSameId = next;
        (next == nullptr ? first : next)->previousSameId = input.previousSameId;
    }
    input.nextSameId = nullptr;
    input.previousSameId = nullptr;
}

// Moves up the entries after a place that becomes free, as far as they were kept from their own
// one.
void IdIndex::vacate(std::size_t place) {
    --used_;
    for (std::size_t next = (place + 1) & mask(); firsts_[next] != nullptr;
         next = (next + 1) & mask()) {
        const std::size_t wanted = hashes_[next] & mask();
        if (((next - wanted) & mask()) >= ((next - place) & mask())) {
            firsts_[place] = firsts_[next];
            hashes_[place] = hashes_[next];
            place = next;
        }
    }
    firsts_[place] = nullptr;
}

InputState* IdIndex::find(const InputId& id) const {
    return firsts_.empty() ? nullptr : firsts_[placeOf(id)];
}

void IdIndex::clear() {
    firsts_.clear();
    hashes_.clear();
    used_ = 0;
}

}  // namespace host::ui
