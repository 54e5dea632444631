#pragma once

#include <string>
#include <vector>

/// What of the add-in can be seen in the host: "definition", "panel" or "palette" and the id, in
/// the host's order.
std::vector<std::string> tracesOfAddin();
