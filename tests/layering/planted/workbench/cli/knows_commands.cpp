// Planted: an option knows a command.
#include "workbench/commands/commands.h"
