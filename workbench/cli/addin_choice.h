#pragma once

#include <chrono>
#include <string>

namespace workbench {

/// Which add-in a subcommand uses, and whose settings.
struct AddinChoice {
    std::string addin;     ///< folder of the add-in; empty: the one beside the program
    std::string dataHome;  ///< folder of the settings kept between runs; empty: the user's own
    std::chrono::seconds lockTimeout{300};  ///< for a data home that another run changes
};

}  // namespace workbench
