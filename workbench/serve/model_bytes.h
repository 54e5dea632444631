#pragma once

#include "workbench/serve/served_host.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

namespace workbench::serve {

/// The newest model as binary glTF, written once however many pages ask for it. For any thread.
class ModelBytes {
public:
    /// Empty for a design of which nothing can be seen.
    std::shared_ptr<const std::string> of(const ModelSource& source);

private:
    std::mutex mutex_;
    std::uint64_t revision_ = 0;
    std::shared_ptr<const std::string> bytes_;
};

}  // namespace workbench::serve
