#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace host::ui {

class InputState;

/// Finds the inputs of one collection by their ids.
///
/// Ids may repeat: inputs of one id form a chain in the order they were added, and the first one
/// is found. Adding, removing and finding take constant time. The places hold the hashes as well:
/// an input is anywhere in memory, and one of another id is skipped without reading it.
class IdIndex {
public:
    /// Adds an input after the others of its id.
    void add(InputState& input);

    void remove(InputState& input);

    /// The first input of this id, null where there is none.
    [[nodiscard]] InputState* find(const std::string& id) const;

    void clear();

private:
    struct Place {
        InputState* first = nullptr;
        std::uint32_t hash = 0;
    };

    [[nodiscard]] std::size_t placeOf(const std::string& id, std::uint32_t hash) const;
    void grow();
    void vacate(std::size_t place);

    std::vector<Place> places_;  ///< open addressing; the size is a power of two
    std::size_t used_ = 0;
};

}  // namespace host::ui
