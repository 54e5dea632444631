#pragma once

namespace tarnix {

/// How a command shows in the host's user interface. Each command declares its own in its header.
struct CommandTexts {
    const char* id = "";
    const char* name = "";  ///< the caption of its button
    const char* tooltip = "";
    const char* resourceFolder =
        "";  ///< its icons, resolved by the host against the module's folder
};

}  // namespace tarnix
