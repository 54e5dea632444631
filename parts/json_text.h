#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace parts {

/// Members stay in the order in which they are given.
using Json = nlohmann::ordered_json;

/// In one line. A design file holds any bytes; what is no UTF-8 is replaced.
inline std::string dumped(const Json& value) {
    return value.dump(/*indent=*/-1, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace);
}

}  // namespace parts
