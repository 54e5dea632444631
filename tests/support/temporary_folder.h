#pragma once

#include "host/session/session_folder.h"

#include <filesystem>

namespace test_support {

/// A fresh folder, deleted with this object.
class TemporaryFolder {
public:
    TemporaryFolder() : folder_(host::SessionFolder::makeFresh({})) {}
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { folder_.discard({}); }

    [[nodiscard]] const std::filesystem::path& path() const { return folder_.path(); }

private:
    host::SessionFolder folder_;
};

}  // namespace test_support
