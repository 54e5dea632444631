#include "workbench/dialogs/unmeasured.h"

#include "workbench/cli/exit_code.h"

#include <cstddef>
#include <string>

namespace workbench {

void refuseUnmeasured(const std::vector<host::Unmeasured>& components) {
    if (components.empty()) {
        return;
    }
    const std::size_t others = components.size() - 1;
    const std::string more = others == 0
                                 ? ""
                                 : " and " + std::to_string(others) +
                                       (others == 1 ? " other component" : " other components");
    throw Failure(ExitCode::BadInput, components.front().reason + "; \"" +
                                          components.front().component + "\"" + more +
                                          " would have no mass");
}

}  // namespace workbench
