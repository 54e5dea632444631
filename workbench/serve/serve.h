#pragma once

#include "workbench/serve/serve_request.h"

namespace workbench::serve {

/// Serves the host on a port of 127.0.0.1, prints the address for the browser, and returns when the
/// program is asked to end. Throws a `Failure` where the port or the add-in cannot be used, and in
/// a build without an HTTP library.
void serve(ServeRequest request);

}  // namespace workbench::serve
