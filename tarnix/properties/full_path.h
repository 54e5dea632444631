#pragma once

#include <Core/CoreAll.h>

#include <string>

namespace tarnix {

/// Where the file of the picked component lies in the user's data: project, folders and file, as
/// HTML with "RefDoc: " before it for a referenced document and "ThisDoc: " for the active one.
///
/// `inputs` is a collection that finds the dialog's selection. The file is the active document's,
/// unless exactly one entity is selected, and that is an occurrence of a component of another
/// document. Empty where no file is found, as for a document that was never saved. A file
/// without a project throws a plain `std::exception`.
std::string formatFullPath(adsk::core::Ptr<adsk::core::CommandInputs> inputs);

}  // namespace tarnix
