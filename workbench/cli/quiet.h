#pragma once

namespace workbench {

/// Whether the user wants the result and errors alone: no progress, no warnings, no remarks.
bool isQuiet();

/// To be called before anything is reported.
void beQuiet();

}  // namespace workbench
