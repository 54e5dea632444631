#pragma once

#include "host/import/reader_connection.h"

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace host {

/// What the reader answers to a request, for which it has the time that is limited. Throws a
/// `std::runtime_error` with the reason why there is no answer. For any thread.
nlohmann::json answerOf(ReaderConnection& reader, const std::string& request);

}  // namespace host
