#pragma once

#include <string>
#include <vector>

/// The terminal the program runs in, if it runs in one.
namespace workbench::console {

/// Makes both streams carry the bytes that are written, as UTF-8 where a terminal shows them. To be
/// called once, first of all.
void prepare();

/// The command line in UTF-8, the program's name first.
std::vector<std::string> arguments(int count, char** values);

/// True when what goes to stderr is read by a person.
bool errorIsTerminal();

}  // namespace workbench::console
