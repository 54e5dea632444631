#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// The terminal the program runs in, if it runs in one.
namespace workbench::console {

/// Makes both streams pass on bytes unchanged, as UTF-8 where a terminal shows them. To be called
/// once, before anything is written.
void prepare();

/// The command line in UTF-8, the program's name first.
std::vector<std::string> arguments(int count, char** values);

/// What a terminal of this user can show.
enum class Charset { Ascii, Utf8 };

/// As the user's locale says.
Charset charset();

/// True when stdout or stderr goes to a terminal.
bool outputIsTerminal();
bool errorIsTerminal();

/// True when a line on the terminal can be overwritten: not on one that calls itself "dumb".
bool canOverwrite();

/// The columns of the terminal that stderr goes to; 80 where they are not known.
std::size_t width();

/// The same of the one that stdout goes to.
std::size_t outputWidth();

/// True when the system has a program that opens files and addresses for others.
bool opensFiles();

}  // namespace workbench::console
