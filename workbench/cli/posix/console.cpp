#include "workbench/cli/console.h"

#include <unistd.h>

namespace workbench::console {

void prepare() {}

std::vector<std::string> arguments(int count, char** values) { return {values, values + count}; }

bool errorIsTerminal() { return ::isatty(STDERR_FILENO) == 1; }

}  // namespace workbench::console
