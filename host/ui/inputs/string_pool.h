#pragma once

#include <string>
#include <unordered_set>

namespace host::ui {

/// Strings that many inputs have in common, each kept once.
class StringPool {
public:
    /// The one copy of a string; it stays where it is as long as the pool lives.
    const std::string* share(const std::string& value) {
        static const std::string kEmpty;
        return value.empty() ? &kEmpty : &*strings_.insert(value).first;
    }

private:
    std::unordered_set<std::string> strings_;
};

}  // namespace host::ui
