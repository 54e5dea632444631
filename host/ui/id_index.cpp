#include "host/ui/id_index.h"

#include "host/ui/input.h"

#include <cstdint>
#include <functional>

namespace host::ui {
namespace {

constexpr std::size_t kFirstSize = 16;

}  // namespace

std::size_t IdIndex::placeOf(const std::string& id, std::size_t hash) const {
    const std::size_t mask = firsts_.size() - 1;
    std::size_t place = hash & mask;
    while (firsts_[place] != nullptr &&
           (firsts_[place]->hash != hash || firsts_[place]->id() != id)) {
        place = (place + 1) & mask;
    }
    return place;
}

void IdIndex::grow() {
    const std::vector<InputState*> old = std::exchange(
        firsts_, std::vector<InputState*>(firsts_.empty() ? kFirstSize : 2 * firsts_.size()));
    const std::size_t mask = firsts_.size() - 1;
    for (InputState* each : old) {
        if (each == nullptr) continue;
        std::size_t place = each->hash & mask;
        while (firsts_[place] != nullptr) {
            place = (place + 1) & mask;
        }
        firsts_[place] = each;
    }
}

void IdIndex::add(InputState& input) {
    if (2 * (used_ + 1) > firsts_.size()) {
        grow();
    }
    InputState*& first = firsts_[placeOf(input.id(), input.hash)];
    if (first == nullptr) {
        first = &input;
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
    const std::size_t place = placeOf(input.id(), input.hash);
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

// Moves up what stands behind a place that becomes free, as far as it was kept from its own one.
void IdIndex::vacate(std::size_t place) {
    const std::size_t mask = firsts_.size() - 1;
    --used_;
    for (std::size_t next = (place + 1) & mask; firsts_[next] != nullptr;
         next = (next + 1) & mask) {
        const std::size_t wanted = firsts_[next]->hash & mask;
        if (((next - wanted) & mask) >= ((next - place) & mask)) {
            firsts_[place] = firsts_[next];
            place = next;
        }
    }
    firsts_[place] = nullptr;
}

InputState* IdIndex::find(const std::string& id) const {
    if (firsts_.empty()) return nullptr;
    return firsts_[placeOf(id, static_cast<std::uint32_t>(std::hash<std::string>()(id)))];
}

void IdIndex::clear() {
    firsts_.clear();
    used_ = 0;
}

}  // namespace host::ui
