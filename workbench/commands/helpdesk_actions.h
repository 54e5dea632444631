#pragma once

namespace workbench {

/// A helpdesk button.
struct HelpdeskAction {
    const char* name;  ///< as the command line has it
    const char* command;
};

inline constexpr HelpdeskAction kHelpdeskActions[] = {
    {"open", "QM_HD_openFolder"},
    {"capture-screen", "QM_HD_captureScreen"},
    {"capture-host", "QM_HD_captureFusion"},
    {"system-info", "QM_HD_systemInfo"},
    {"zip", "QM_HD_compressFolder"},
    {"clear", "QM_HD_clearFolder"},
    {"guide", "QM_HD_openHelp"},
    {"go", "QM_HD_openHelpdesk"},
};

/// What the support folder is called, in the folder for temporary files.
inline constexpr const char* kSupportFolder = "Helpdesk";

}  // namespace workbench
