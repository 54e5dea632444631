#pragma once

#include "host/import/reader/assembly.h"

#include <TopTools_IndexedMapOfShape.hxx>

#include <nlohmann/json.hpp>

#include <istream>

/// What the reader sends, a line of JSON each, in this order:
///
///     {"progress": {"stage": "Reading", "fraction": 0}}      any number of times
///     {"faults": "..."}                                      what may explain a crash from here on
///     {"warning": {"code": "...", "text": "...", ...}}       any number of times
///     {"error": "..."}   and it ends, or; with "limit": "occurrences" where that is exceeded
///     {"design": {...}}  and it responds to requests until its input ends:
///
///     measure SHAPE                  {"area": cm2, "volume": cm3}
///     box SHAPE C0 ... C11           {"min": [x, y, z], "max": [x, y, z]} in cm, or {} without
///     extent
///
/// A component of the design has the number of its shape, or -1 where it has none, and of its
/// bodies; bodies without a shape were not built.
///
/// C0 to C11 are the first three rows of a placement, translation in cm. A response that cannot be
/// computed is {"error": "..."}.
namespace step {

/// Sends one line to the process that started the program.
void sendLine(const nlohmann::json& line);

/// Sends a warning; members without a value are left out.
void sendWarning(const Warning& warning);

/// The tree with the components that its roots lead to.
nlohmann::json designOf(const Assembly& assembly);

/// Answers requests until there are no more.
void answerRequests(std::istream& requests, const TopTools_IndexedMapOfShape& shapes);

}  // namespace step
