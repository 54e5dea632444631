#pragma once

#include <optional>
#include <string>

namespace workbench {

struct ConfigureOptions {
    std::optional<std::string> supportUrl;  ///< an address, or "default"; none: only print
    std::string addin;                      ///< folder of the add-in; empty: beside the program
};

/// Chooses this user's support provider in the add-in's dialog, if one is given, and prints what
/// the dialog then shows. The address is taken as it stands. Throws a `Failure` when the dialog
/// cannot be used, or when it shows another provider when it opens again.
void runConfigure(const ConfigureOptions& options);

}  // namespace workbench
