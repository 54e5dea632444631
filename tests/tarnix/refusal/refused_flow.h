#pragma once

#include "tests/support/refusal.h"

#include <cstdint>
#include <ostream>
#include <vector>

/// What the user does with the add-in, flow by flow: every host call of each is refused once.
///
/// Whatever the host fails to do at a single place, the add-in neither crashes nor loses memory.
/// What else holds then each flow checks for itself.
namespace refusal {

struct RefusedFlow {
    const char* name = "";
    test_support::RefusalSweep (*sweep)() = nullptr;

    /// Fewer calls than this mean that the flow did not get where it should.
    std::uint64_t leastCalls = 0;
};

inline std::ostream& operator<<(std::ostream& out, const RefusedFlow& flow) {
    return out << flow.name;
}

using RefusedFlows = std::vector<RefusedFlow>;

RefusedFlows addinFlows();          ///< start and end of the add-in, and the BOM dialog as a whole
RefusedFlows columnFlows();         ///< the choice of columns in the BOM dialog
RefusedFlows rowFlows();            ///< folding, sorting and hiding of rows
RefusedFlows writeFlows();          ///< the write-back of the tables
RefusedFlows propertiesFlows();     ///< "Edit custom properties"
RefusedFlows configurationFlows();  ///< "Tarnix Configuration"
RefusedFlows commandFlows();        ///< the small commands
RefusedFlows helpdeskFlows();       ///< the commands of the helpdesk panel

}  // namespace refusal
