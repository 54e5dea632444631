#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace fuzz {

/// Decisions taken from bytes, one after the other. The same bytes give the same decisions
/// everywhere; when they are used up, the first of each choice is taken.
class Choices {
public:
    explicit Choices(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    [[nodiscard]] bool isOver() const { return next_ >= bytes_.size(); }

    /// A number below `bound`, which is above 0.
    std::size_t below(std::size_t bound) {
        if (isOver()) {
            return 0;
        }
        constexpr std::size_t kByte = 256;
        std::size_t number = bytes_[next_++];
        if (bound > kByte && !isOver()) {
            number = number * kByte + bytes_[next_++];
        }
        return number % bound;
    }

    /// True once in so many; false when the bytes are used up.
    bool oneIn(std::size_t chances) { return below(chances) == 1 % chances; }

    template <class List>
    const auto& pick(const List& list) {
        return list[below(list.size())];
    }

private:
    std::span<const std::uint8_t> bytes_;
    std::size_t next_ = 0;
};

}  // namespace fuzz
