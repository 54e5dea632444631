#include "host/session/process_state.h"

namespace host {

ProcessState& processState() {
    static auto* state = new ProcessState;
    return *state;
}

}  // namespace host
