#pragma once

// The API's types are named `core::Application` and `fusion::Design` all over the host. The
// namespaces are declared empty here, so that a header need not include what it does not use.
namespace adsk::core {}
namespace adsk::fusion {}

namespace host {

namespace core = adsk::core;
namespace fusion = adsk::fusion;

}  // namespace host
