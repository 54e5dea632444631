#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace parts {

/// Members stay in the order in which they are given.
using Json = nlohmann::ordered_json;

/// In one line. A design file holds any bytes; what is no UTF-8 is replaced.
inline std::string dumped(const Json& value) {
    return value.dump(/*indent=*/-1, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace);
}

/// JSON in one line, put together value by value: for what comes in such numbers that a tree of
/// values would take several times as long. The bytes are those that `dumped` returns of that tree.
class JsonText {
public:
    /// '{' or '[', and its end.
    void begin(char bracket);
    void end(char bracket);

    /// Of the member whose value comes next.
    void name(std::string_view name);

    void string(std::string_view value);
    void whole(std::int64_t value);
    void number(double value);
    void flag(bool value);
    void null();

    [[nodiscard]] const std::string& text() const { return text_; }
    void clear() { text_.clear(); }

private:
    void separate();
    void append(std::string_view string);

    std::string text_;
};

}  // namespace parts
