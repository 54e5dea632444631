// Planted: a dialog knows the command that uses it.
#include "workbench/commands/bom_request.h"
