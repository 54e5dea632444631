#pragma once

#include <string>

namespace workbench {

struct UserPropertiesOptions {
    enum class Action { List, Add, Remove };

    Action action = Action::List;
    std::string name;   ///< of the property to add or to remove
    std::string addin;  ///< folder of the add-in; empty: the one beside the program
};

/// Prints this user's list of custom properties, a name on each line, after a change of it if one
/// is asked for. The list is edited in the add-in's dialog; a name that the dialog does not take
/// throws a `Failure` with what the dialog says, and changes nothing. Another is thrown where the
/// dialog does not show the changed list when it opens again.
void runUserProperties(const UserPropertiesOptions& options);

}  // namespace workbench
