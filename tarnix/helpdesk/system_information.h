#pragma once

#include "tarnix/text/command_texts.h"

#include <string>

namespace tarnix {

inline constexpr CommandTexts kSystemInfoCommand = {
    .id = "QM_HD_systemInfo",
    .name = "System info",
    .tooltip = "Save information about your system in a text file",
    .resourceFolder = "Resources/SaveSystemInfo"};

/// Writes "SystemInfo.txt" into the support folder, in the place of an earlier one: the processor,
/// how many logical processors there are, and the memory. Shows nothing, whether it worked or not.
void writeSystemInfo();

/// The name that the processor gives itself in the leaves 0x80000002 to 0x80000004 of CPUID, up to
/// its first zero byte. Empty, or a part of it, where the processor has fewer extended leaves.
std::string processorBrand();

}  // namespace tarnix
