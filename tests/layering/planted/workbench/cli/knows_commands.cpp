// Planted: an option knows a command, and how lists are written.
#include "workbench/commands/commands.h"
#include "workbench/output/bom_list.h"
