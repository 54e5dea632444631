#pragma once

#include "host/base/string_pool.h"

#include <cstdint>
#include <optional>
#include <string>

namespace host::ui {

/// The id of an input, without memory of its own.
///
/// A dialog can hold millions of cells, called alike but for the number of their row. So an id is a
/// stem, which they share in the pool of their command, and the decimal number that it ends in. Two
/// ids of one pool are equal exactly when their texts are. It is valid as long as the pool.
class InputId {
public:
    InputId(const std::string& text, StringPool& pool);

    /// The id of a text that an input of the pool can have; none where no stem in it fits.
    static std::optional<InputId> find(const std::string& text, const StringPool& pool);

    [[nodiscard]] std::string text() const;

    [[nodiscard]] std::uint32_t hash() const;
    [[nodiscard]] const std::string* stem() const { return stem_; }

    /// The same id without the pool; `text` is its text, and outlives it.
    [[nodiscard]] static InputId of(const std::string& text) { return {&text, kNone}; }

    bool operator==(const InputId&) const = default;

private:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    InputId(const std::string* stem, std::uint32_t number) : stem_(stem), number_(number) {}

    const std::string* stem_;
    std::uint32_t number_;  ///< `kNone` where the id ends in no number
};

}  // namespace host::ui
