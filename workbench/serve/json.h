#pragma once

#include <nlohmann/json.hpp>

namespace workbench::serve {

using Json = nlohmann::json;

/// JSON on one line. What is no UTF-8 is replaced.
inline std::string textOf(const Json& json) {
    return json.dump(-1, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace);
}

}  // namespace workbench::serve
