#include "host/cloud/storage_pace.h"

namespace host {

StoragePace& storagePace() {
    static StoragePace pace;
    return pace;
}

}  // namespace host
