#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A JSON text, parsed into one list of values.
///
/// A design of 100,000 occurrences has millions of values, so a value takes 16 bytes and no memory
/// of its own, and all of them are gone at once. A list or an object comes before what is in it; in
/// an object, each value comes after its key.
class JsonDocument {
public:
    enum class Kind : std::uint8_t {
        Null,
        Flag,
        Whole,   ///< a number without sign, fraction and exponent that fits into 64 bits
        Number,  ///< any other
        Text,
        List,
        Object,
    };

    struct Value {
        Kind kind = Kind::Null;
        std::uint32_t size = 0;  ///< bytes of a text, entries of a list, members of an object

        /// A flag, a whole number, the bits of another number, where a text begins, or the place
        /// after what is in a list or object.
        std::uint64_t content = 0;

        [[nodiscard]] double number() const {
            return kind == Kind::Number ? std::bit_cast<double>(content)
                                        : static_cast<double>(content);
        }
    };

    /// Parses a text in UTF-8, with or without a mark at its begin; a text that is moved here is
    /// gone as soon as it is parsed. Throws `DesignError` for what is not JSON, and for brackets
    /// that are nested more than a hundred levels deep.
    explicit JsonDocument(std::string text);

    /// The value at a place; the whole is at 0.
    [[nodiscard]] const Value& at(std::size_t place) const { return values_[place]; }

    [[nodiscard]] std::string_view textAt(std::size_t place) const {
        return std::string_view(texts_).substr(values_[place].content, values_[place].size);
    }

    /// The place after a value and what is in it.
    [[nodiscard]] std::size_t after(std::size_t place) const {
        const Value& value = values_[place];
        const bool isContainer = value.kind == Kind::List || value.kind == Kind::Object;
        return isContainer ? static_cast<std::size_t>(value.content) : place + 1;
    }

private:
    class Builder;

    std::vector<Value> values_;
    std::string texts_;
};

}  // namespace host
