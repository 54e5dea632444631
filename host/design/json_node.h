#pragma once

#include "host/design/json_document.h"

#include <cstddef>
#include <string>

namespace host {

/// A place in a JSON document, which knows the way to it: what is asked of it and is not there is
/// refused with a `DesignError` that names the place and what is expected there.
///
/// It refers to the document and to the node that it was reached from.
class JsonNode {
public:
    explicit JsonNode(const JsonDocument& document) : document_(document) {}

    /// A member that has to be there; this has to be an object. Of two of one name the last counts.
    [[nodiscard]] JsonNode member(const char* key) const;

    /// Calls `read` with a member if it is there and not null.
    template <class Read>
    void ifMember(const char* key, const Read& read) const {
        const std::size_t found = find(key);
        if (found != kNowhere && document_.at(found).kind != JsonDocument::Kind::Null) {
            read(JsonNode(*this, found, key, /*index=*/0));
        }
    }

    /// Calls `read` with each element in turn; this has to be an array.
    template <class Read>
    void forEach(const Read& read) const {
        const std::size_t count = size();
        std::size_t next = place_ + 1;
        for (std::size_t index = 0; index < count; ++index) {
            read(JsonNode(*this, next, /*key=*/nullptr, index));
            next = document_.after(next);
        }
    }

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
    static constexpr std::size_t kNowhere = 0;  ///< the whole is no member

    JsonNode(const JsonNode& parent, std::size_t place, const char* key, std::size_t index)
        : document_(parent.document_), place_(place), parent_(&parent), key_(key), index_(index) {}

    [[nodiscard]] const JsonDocument::Value& value() const { return document_.at(place_); }
    [[nodiscard]] std::size_t find(const char* key) const;
    [[nodiscard]] std::string way() const;

    const JsonDocument& document_;
    std::size_t place_ = 0;
    const JsonNode* parent_ = nullptr;
    const char* key_ = nullptr;
    std::size_t index_ = 0;
};

}  // namespace host
