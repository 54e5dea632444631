#include "host/base/documented_points.h"

#include "host/base/host_state.h"

namespace host {

DocumentedPoints documentedPoints() {
    const auto* points = HostState::currentPart<DocumentedPoints>();
    return points == nullptr ? DocumentedPoints() : *points;
}

}  // namespace host
