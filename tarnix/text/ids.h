#pragma once

#include <string>

namespace tarnix {

/// An input's id is a base that tells the column, "_", and a number that tells the row.

/// What stands behind the last "_" of `id`: the whole id where it has none.
std::string idTail(const std::string& id);

/// What stands in front of the last "_" of `id`: the whole id where it has none.
std::string idBase(const std::string& id);

/// The number behind the last "_" of `id`; throws as `parseInt` does where there is none.
int idNumber(const std::string& id);

}  // namespace tarnix
