#pragma once

#include "host/session/session.h"

#include <string>
#include <vector>

/// The dialog that edits a component's properties.
namespace workbench {

/// One line of the dialog.
struct PropertyLine {
    std::string id;
    std::string name;
    std::string value;  ///< of buttons: the captions of those that are on
};

/// What the open dialog shows of the picked component, in its order.
std::vector<PropertyLine> readProperties(const host::Session& session);

/// Puts a value into the line of that name, and returns the line's id. Of buttons the one of that
/// caption is switched on and all others off; an empty value leaves none on. Throws a `Failure` for
/// a name or a caption that the dialog does not have.
std::string setProperty(host::Session& session, const std::string& name, const std::string& value);

}  // namespace workbench
