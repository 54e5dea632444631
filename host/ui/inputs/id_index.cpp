#include "host/ui/inputs/id_index.h"

#include "host/ui/inputs/input_state.h"

#include <cstdint>
#include <functional>

namespace host::ui {
namespace {

constexpr std::size_t kFirstSize = 16;

}  // namespace

std::size_t IdIndex::placeOf(const std::string& id, std::uint32_t hash) const {
    const std::size_t mask = places_.size() - 1;
    std::size_t place = hash & mask;
    while (places_[place].first != nullptr &&
           (places_[place].hash != hash || places_[place].first->id() != id)) {
        place = (place + 1) & mask;
    }
    return place;
}

void IdIndex::grow() {
    const std::vector<Place> old = std::exchange(
        places_, std::vector<Place>(places_.empty() ? kFirstSize : 2 * places_.size()));
    const std::size_t mask = places_.size() - 1;
    for (const Place& each : old) {
        if (each.first == nullptr) continue;
        std::size_t place = each.hash & mask;
        while (places_[place].first != nullptr) {
            place = (place + 1) & mask;
        }
        places_[place] = each;
    }
}

void IdIndex::add(InputState& input) {
    if (2 * (used_ + 1) > places_.size()) {
        grow();
    }
    Place& place = places_[placeOf(input.id(), input.hash)];
    InputState* first = place.first;
    if (first == nullptr) {
        place = {&input, input.hash};
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
    InputState* first = places_[place].first;
    InputState* next = input.nextSameId;
    if (first == &input) {
        if (next == nullptr) {
            vacate(place);
        } else {
            next->previousSameId = input.previousSameId;
            places_[place].first = next;
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
    const std::size_t mask = places_.size() - 1;
    --used_;
    for (std::size_t next = (place + 1) & mask; places_[next].first != nullptr;
         next = (next + 1) & mask) {
        const std::size_t wanted = places_[next].hash & mask;
        if (((next - wanted) & mask) >= ((next - place) & mask)) {
            places_[place] = places_[next];
            place = next;
        }
    }
    places_[place] = {};
}

InputState* IdIndex::find(const std::string& id) const {
    if (places_.empty()) return nullptr;
    return places_[placeOf(id, static_cast<std::uint32_t>(std::hash<std::string>()(id)))].first;
}

void IdIndex::clear() {
    places_.clear();
    used_ = 0;
}

}  // namespace host::ui
