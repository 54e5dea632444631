#include "host/design/json_node.h"

#include "host/design/design_check.h"

#include <string_view>

namespace host {

using Kind = JsonDocument::Kind;

std::size_t JsonNode::find(const char* key) const {
    if (value().kind != Kind::Object) {
        refuse("should be an object");
    }
    const std::string_view wanted = key;
    const std::size_t end = document_.after(place_);
    std::size_t found = kNowhere;
    for (std::size_t at = place_ + 1; at < end; at = document_.after(at + 1)) {
        if (document_.textAt(at) == wanted) {
            found = at + 1;
        }
    }
    return found;
}

JsonNode JsonNode::member(const char* key) const {
    const std::size_t found = find(key);
    if (found == kNowhere) {
        refuse("\"" + std::string(key) + "\" is missing");
    }
    return {*this, found, key, /*index=*/0};
}

std::size_t JsonNode::size() const {
    if (value().kind != Kind::List) {
        refuse("should be a list");
    }
    return value().size;
}

std::string JsonNode::text() const {
    if (value().kind != Kind::Text) {
        refuse("should be a text");
    }
    return std::string(document_.textAt(place_));
}

double JsonNode::number() const {
    if (value().kind != Kind::Number && value().kind != Kind::Whole) {
        refuse("should be a number");
    }
    return value().number();
}

bool JsonNode::flag() const {
    if (value().kind != Kind::Flag) {
        refuse("should be true or false");
    }
    return value().content != 0;
}

std::size_t JsonNode::whole(std::size_t highest) const {
    if (value().kind != Kind::Whole || value().content > highest) {
        refuse("should be a whole number from 0 to " + std::to_string(highest));
    }
    return static_cast<std::size_t>(value().content);
}

std::string JsonNode::textOr(const char* key, const std::string& otherwise) const {
    std::string result = otherwise;
    ifMember(key, [&](const JsonNode& found) { result = found.text(); });
    return result;
}

bool JsonNode::flagOr(const char* key, bool otherwise) const {
    bool result = otherwise;
    ifMember(key, [&](const JsonNode& found) { result = found.flag(); });
    return result;
}

void JsonNode::refuse(const std::string& reason) const {
    const std::string where = way();
    throw DesignError((where.empty() ? "the whole" : where) + ": " + reason);
}

std::string JsonNode::way() const {
    if (parent_ == nullptr) {
        return {};
    }
    const std::string above = parent_->way();
    if (key_ == nullptr) {
        return above + "[" + std::to_string(index_) + "]";
    }
    return above.empty() ? key_ : above + "." + key_;
}

}  // namespace host
