#pragma once

#include <string>
#include <vector>

namespace workbench {

struct OpenLocalOptions {
    std::vector<std::string> files;
    std::string out;    ///< folder for the designs; empty: the current one
    std::string data;   ///< folder whose folders are projects; empty: the user's own
    int timeout = 300;  ///< seconds until what still waits for a file is cancelled
    std::string addin;  ///< folder of the add-in; empty: the one beside the program
};

/// Has "Open local file" bring files into the host, and saves each document that it opened as a
/// design file. Ctrl-C presses Cancel in what the add-in waits for; a second one ends the program.
///
/// Throws a `Failure` where not every file became a document; those that did are saved.
void runOpenLocal(const OpenLocalOptions& options);

}  // namespace workbench
