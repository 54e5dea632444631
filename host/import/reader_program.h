#pragma once

#include <filesystem>

namespace host {

/// Where the program that reads STEP files is: beside the host's library, else beside the
/// running program. Throws `ImportError` when it is at neither place.
std::filesystem::path findStepReader();

}  // namespace host
