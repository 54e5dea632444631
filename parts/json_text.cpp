#include "parts/json_text.h"

#include <algorithm>

namespace parts {
namespace {

/// Whether a character is itself in a string of JSON. Others are left to the library.
bool isPlain(char each) {
    constexpr char kDelete = '\x7f';
    return each >= ' ' && each < kDelete && each != '"' && each != '\\';
}

}  // namespace

void JsonText::begin(char bracket) {
    separate();
    text_ += bracket;
}

void JsonText::end(char bracket) { text_ += bracket; }

void JsonText::name(std::string_view name) {
    separate();
    append(name);
    text_ += ':';
}

void JsonText::string(std::string_view value) {
    separate();
    append(value);
}

void JsonText::whole(std::int64_t value) {
    separate();
    text_ += std::to_string(value);
}

void JsonText::number(double value) {
    separate();
    text_ += Json(value).dump();
}

void JsonText::flag(bool value) {
    separate();
    text_ += value ? "true" : "false";
}

void JsonText::null() {
    separate();
    text_ += "null";
}

/// A string ends with a quote, so that what comes last says where it is.
void JsonText::separate() {
    constexpr std::string_view kBeginnings = "{[:";
    if (!text_.empty() && kBeginnings.find(text_.back()) == std::string_view::npos) {
        text_ += ',';
    }
}

void JsonText::append(std::string_view string) {
    if (!std::ranges::all_of(string, isPlain)) {
        text_ += dumped(Json(string));
        return;
    }
    text_ += '"';
    text_ += string;
    text_ += '"';
}

}  // namespace parts
