#pragma once

#include "host/base/api_names.h"

#include <Core/Base.h>

#include <string>

/// The kinds of entities that a selection input can be limited to.
namespace host::ui {

class UserInterfaceObject;

/// Whether the host knows a filter of this name.
bool isSelectionFilter(const std::string& name);

/// Whether an entity is of the kind that a filter names.
bool passesFilter(const core::Ptr<core::Base>& entity, const std::string& filter,
                  const UserInterfaceObject& ui);

}  // namespace host::ui
