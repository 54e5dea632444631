#pragma once

#include "parts/parts_list.h"

#include <ostream>

namespace parts {

enum class JsonLayout {
    Indented,
    Line,  ///< the whole list in one line
};

/// The list as a JSON object, by the schema docs/parts.schema.json. Numbers keep all their digits.
void writeJson(const PartsList& list, JsonLayout layout, std::ostream& stream);

}  // namespace parts
