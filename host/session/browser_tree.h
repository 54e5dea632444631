#pragma once

#include <Core/Base.h>
#include <Fusion/Design.h>

#include <string>

namespace host {

/// What the user picks in the browser tree: the root component by its name or by an empty path, an
/// occurrence by its full path name. Throws a `SessionError` that lists what there is at the level
/// at which the path fails.
adsk::core::Ptr<adsk::core::Base> inBrowserTree(const adsk::core::Ptr<adsk::fusion::Design>& design,
                                                const std::string& path);

}  // namespace host
