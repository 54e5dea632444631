#include "host/design/json_node.h"

#include "host/design/design_check.h"

namespace host {

JsonNode JsonNode::member(const char* key) const {
    if (!value_.is_object()) {
        refuse("should be an object");
    }
    const auto found = value_.find(key);
    if (found == value_.end()) {
        refuse("\"" + std::string(key) + "\" is missing");
    }
    return {*found, this, key, 0};
}

void JsonNode::ifMember(const char* key, const std::function<void(const JsonNode&)>& read) const {
    if (!value_.is_object()) {
        refuse("should be an object");
    }
    const auto found = value_.find(key);
    if (found != value_.end() && !found->is_null()) {
        read({*found, this, key, 0});
    }
}

void JsonNode::forEach(const std::function<void(const JsonNode&)>& read) const {
    const std::size_t count = size();
    for (std::size_t index = 0; index < count; ++index) {
        read({value_[index], this, nullptr, index});
    }
}

std::size_t JsonNode::size() const {
    if (!value_.is_array()) {
        refuse("should be a list");
    }
    return value_.size();
}

std::string JsonNode::text() const {
    if (!value_.is_string()) {
        refuse("should be a text");
    }
    return value_.get<std::string>();
}

double JsonNode::number() const {
    if (!value_.is_number()) {
        refuse("should be a number");
    }
    return value_.get<double>();
}

bool JsonNode::flag() const {
    if (!value_.is_boolean()) {
        refuse("should be true or false");
    }
    return value_.get<bool>();
}

std::size_t JsonNode::whole(std::size_t highest) const {
    if (!value_.is_number_unsigned() || value_.get<std::size_t>() > highest) {
        refuse("should be a whole number from 0 to " + std::to_string(highest));
    }
    return value_.get<std::size_t>();
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
    const std::string where = place();
    throw DesignError((where.empty() ? "the whole" : where) + ": " + reason);
}

std::string JsonNode::place() const {
    if (parent_ == nullptr) {
        return {};
    }
    const std::string above = parent_->place();
    if (key_ == nullptr) {
        return above + "[" + std::to_string(index_) + "]";
    }
    return above.empty() ? key_ : above + "." + key_;
}

}  // namespace host
