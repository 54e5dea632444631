#pragma once

#include "host/ui/inputs/input_id.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace host::ui {

class InputState;

/// Finds the inputs of one collection by their ids.
///
/// Ids may repeat: inputs of one id form a chain in the order they were added, and the first one
/// is found. Adding, removing and finding take constant time. There is a list of the hashes as
/// well: an input is anywhere in memory, and one of another id is skipped without reading it.
class IdIndex {
public:
    /// Adds an input after the others of its id.
    void add(InputState& input);

    void remove(InputState& input);

    /// The first input of this id, null where there is none.
    [[nodiscard]] InputState* find(const InputId& id) const;

    void clear();

private:
    [[nodiscard]] std::size_t mask() const { return firsts_.size() - 1; }
    [[nodiscard]] std::size_t placeOf(const InputId& id) const;
    void grow();
    void vacate(std::size_t place);

    /// @name Open addressing; the size is a power of two
    /// @{
    std::vector<InputState*> firsts_;
    std::vector<std::uint32_t> hashes_;  ///< of the inputs in the same places
    /// @}
    std::size_t used_ = 0;
};

}  // namespace host::ui
