#pragma once

#include "host/import/read_design.h"
#include "host/session/session.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace workbench::serve {

/// Reads the design of a file for the page; throws where it cannot be read.
using ReadFile = std::function<host::DesignData(const std::filesystem::path& file,
                                                const host::ImportProgress& progress,
                                                std::vector<host::ReadingWarning>& warnings)>;

struct ServeRequest {
    int port = 0;  ///< 0 for any that is free
    host::SessionOptions session;
    std::filesystem::path given;  ///< the file that is open at first, absolute; may be empty
    std::string givenName;        ///< as the user spelt it
    std::filesystem::path data;   ///< the user's data, absolute
    ReadFile read;
    host::DesignData design;  ///< of the given file
    std::vector<host::ReadingWarning> warnings;
};

}  // namespace workbench::serve
