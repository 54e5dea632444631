#pragma once

#include <string>

namespace tarnix {

/// An input's id is a base that names the column, "_", and a number that names the row.

/// What follows the last "_" of `id`: the whole id where it has none.
std::string idTail(const std::string& id);

/// What precedes the last "_" of `id`: the whole id where it has none.
std::string idBase(const std::string& id);

/// The number after the last "_" of `id`; throws as `parseInt` does where there is none.
int idNumber(const std::string& id);

}  // namespace tarnix
