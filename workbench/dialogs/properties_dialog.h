#pragma once

#include "host/session/session.h"

#include <string>
#include <vector>

namespace workbench {

inline constexpr const char* kPropertiesCommand = "QEMA_EditPropertiesCmd";

/// One line of the dialog that edits a component's properties.
struct ShownProperty {
    std::string id;
    std::string name;
    std::string value;  ///< of buttons: the captions of those that are on
};

/// What the open dialog shows of the picked component, in its order.
std::vector<ShownProperty> readProperties(const host::Session& session);

/// Puts a value into the line of that name, and returns the line's id. Of buttons the one of that
/// caption goes on and all others go off; an empty value leaves none on. Throws a `Failure` for a
/// name or a caption that the dialog does not have.
std::string setProperty(host::Session& session, const std::string& name, const std::string& value);

}  // namespace workbench
