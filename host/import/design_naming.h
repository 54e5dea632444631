#pragma once

#include "host/design/design_data.h"

namespace host {

/// Gives the components of a design their unique names and their part numbers, and their uses the
/// instance numbers, by the rules of step_import.h.
///
/// Before it the components are as the file has them: names may repeat, none is empty, and a part
/// number is the product's id, empty if the file has none.
void assignNamesAndNumbers(DesignData& design);

}  // namespace host
