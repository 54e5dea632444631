#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <functional>
#include <string>

namespace host {

/// A place in a JSON text, which knows the way to it: what is asked of it and is not there is
/// refused with a `DesignError` that names the place and what is expected there.
class JsonNode {
public:
    explicit JsonNode(const nlohmann::json& value) : value_(value) {}

    /// A member that has to be there; this has to be an object.
    [[nodiscard]] JsonNode member(const char* key) const;

    /// Calls `read` with a member if it is there and not null.
    void ifMember(const char* key, const std::function<void(const JsonNode&)>& read) const;

    /// Calls `read` with each element in turn; this has to be an array.
    void forEach(const std::function<void(const JsonNode&)>& read) const;

    [[nodiscard]] std::size_t size() const;
    [[nodiscard]] std::string text() const;
    [[nodiscard]] double number() const;
    [[nodiscard]] bool flag() const;

    /// A whole number that is not negative and not above `highest`.
    [[nodiscard]] std::size_t whole(std::size_t highest) const;

    /// The texts and numbers of members that may be missing.
    [[nodiscard]] std::string textOr(const char* key, const std::string& otherwise) const;
    [[nodiscard]] bool flagOr(const char* key, bool otherwise) const;

    [[noreturn]] void refuse(const std::string& reason) const;

private:
    JsonNode(const nlohmann::json& value, const JsonNode* parent, const char* key,
             std::size_t index)
        : value_(value), parent_(parent), key_(key), index_(index) {}

    [[nodiscard]] std::string place() const;

    const nlohmann::json& value_;
    const JsonNode* parent_ = nullptr;
    const char* key_ = nullptr;
    std::size_t index_ = 0;
};

}  // namespace host
