#pragma once

#include <string>
#include <vector>

/// The terminal the program runs in, if it runs in one.
namespace workbench::console {

/// Makes both streams pass on bytes unchanged, as UTF-8 where a terminal shows them. To be called
/// once, before anything is written.
void prepare();

/// The command line in UTF-8, the program's name first.
std::vector<std::string> arguments(int count, char** values);

/// True when stderr goes to a terminal.
bool errorIsTerminal();

}  // namespace workbench::console
