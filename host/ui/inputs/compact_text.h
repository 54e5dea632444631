#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace host::ui {

/// A text that takes the place of a pointer, and nothing else while it is empty, as most cells are.
class CompactText {
public:
    CompactText() = default;
    explicit CompactText(std::string_view text) { *this = text; }

    CompactText& operator=(std::string_view text) {
        const auto size = static_cast<std::uint32_t>(text.size());
        std::unique_ptr<char[]> block;
        if (size > 0) {
            block = std::make_unique_for_overwrite<char[]>(sizeof size + size);
            std::memcpy(block.get(), &size, sizeof size);
            std::memcpy(block.get() + sizeof size, text.data(), size);
        }
        block_ = std::move(block);
        return *this;
    }

    [[nodiscard]] std::string_view view() const {
        if (block_ == nullptr) return {};
        std::uint32_t size = 0;
        std::memcpy(&size, block_.get(), sizeof size);
        return {block_.get() + sizeof size, size};
    }

    [[nodiscard]] std::string text() const { return std::string(view()); }

    bool operator==(std::string_view other) const { return view() == other; }

private:
    std::unique_ptr<char[]> block_;  ///< four bytes with the size, then the text
};

}  // namespace host::ui
