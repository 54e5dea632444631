#include "workbench/cli/quiet.h"

namespace workbench {
namespace {

bool quiet = false;

}  // namespace

bool isQuiet() { return quiet; }

void beQuiet() { quiet = true; }

}  // namespace workbench
