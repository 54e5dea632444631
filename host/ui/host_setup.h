#pragma once

#include "host/base/clock.h"

#include <string>
#include <vector>

/// What a host is started with.
namespace host {

/// A workspace of the host.
struct WorkspaceSetup {
    std::string id;
    std::string name;
    std::string productType = "DesignProductType";  ///< of any other type: it shows no design
};

/// Which changes that code makes to inputs of the open dialog are told to its handlers, as if a
/// person had made them. They are told after the running notification.
enum class CodeChanges {
    None,
    Lists,  ///< items selected in drop-downs that stood in the dialog before that notification
    All,    ///< every changed value of inputs that stood in it
};

struct HostSetup {
    std::vector<WorkspaceSetup> workspaces = {
        {"FusionSolidEnvironment", "Design", "DesignProductType"},
        {"CAMEnvironment", "Manufacture", "CAMProductType"},
        {"FusionRenderEnvironment", "Render", "DesignProductType"},
        {"FusionDocumentationEnvironment", "Drawing", "DrawingProductType"},
    };
    CodeChanges codeChanges = CodeChanges::Lists;

    /// Whether waiting takes a module real time.
    clock::ClockMode clock = clock::ClockMode::Virtual;

    /// How many seconds a progress dialog may wait before the host presses its Cancel: what nobody
    /// is there to end comes to an end all the same.
    double longestWait = 86400;

    /// Whether the host's own command "SelectCommand" is announced whenever no other runs.
    bool selectCommand = false;

    /// Whether the panel for scripts and add-ins holds the control "RepeatCommand".
    bool repeatControl = false;
};

}  // namespace host
