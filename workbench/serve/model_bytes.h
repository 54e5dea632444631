#pragma once

#include "workbench/serve/served_host.h"

#include "host/design/shape_data.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace workbench::serve {

/// The newest model as binary glTF. Its shapes are read once for a document, and it is written once
/// for a revision, however many pages ask for it. For any thread: the one that asks reads, so the
/// host goes on meanwhile.
class ModelBytes {
public:
    using Warn = std::function<void(const std::vector<std::string>& warnings)>;

    /// Empty for a design of which nothing can be seen. `warn` gets what could not be drawn. Throws
    /// a `ProtocolError` where nothing could be drawn, with the reason, and where another document
    /// is shown by now or the program ends.
    std::shared_ptr<const std::string> of(const ModelSource& source, const Warn& warn);

    /// The program ends: what is being read is given up.
    void end() { ended_ = true; }

private:
    void read(const ModelSource& source, const Warn& warn);
    void checkIsWanted(const ModelSource& source) const;

    std::atomic<std::uint64_t> newestDocument_ = 0;
    std::atomic<bool> ended_ = false;
    std::mutex mutex_;
    std::uint64_t document_ = 0;  ///< of the shapes; 0 for none
    std::shared_ptr<const host::ShapeData> shapes_;
    std::uint64_t revision_ = 0;
    std::shared_ptr<const std::string> bytes_;
};

}  // namespace workbench::serve
