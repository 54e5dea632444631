#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace host {

/// Strings that many objects have in common, each kept once.
class StringPool {
public:
    /// The one copy of a string; it stays where it is as long as the pool lives.
    const std::string* share(std::string_view value) {
        const std::string* const known = find(value);
        return known != nullptr ? known : &*strings_.emplace(value).first;
    }

    /// The copy that there is, null for none.
    [[nodiscard]] const std::string* find(std::string_view value) const {
        static const std::string kEmpty;
        if (value.empty()) return &kEmpty;
        const auto found = strings_.find(value);
        return found == strings_.end() ? nullptr : &*found;
    }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>()(text);
        }
    };

    std::unordered_set<std::string, Hash, std::equal_to<>> strings_;
};

}  // namespace host
