#include "workbench/serve/serve.h"

#include "workbench/cli/exit_code.h"

namespace workbench::serve {

void serve(ServeRequest /*request*/) {
    throw Failure(
        ExitCode::BadUsage,
        "serve does not work on Windows, for want of cpp-httplib; use the other commands");
}

}  // namespace workbench::serve
