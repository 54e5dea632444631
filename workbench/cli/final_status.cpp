#include "workbench/cli/final_status.h"

namespace workbench {
namespace {

ExitCode status = ExitCode::Success;

}  // namespace

ExitCode finalStatus() { return status; }

void setFinalStatus(ExitCode found) { status = found; }

}  // namespace workbench
