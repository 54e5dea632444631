#include "host/cloud/storage_pace.h"

#include "host/base/host_state.h"

namespace host {

StoragePace& storagePace() { return HostState::required().part<StoragePace>(); }

}  // namespace host
