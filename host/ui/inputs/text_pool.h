#pragma once

#include <string>
#include <unordered_set>

namespace host::ui {

/// Texts that many inputs have in common, each kept once.
class StringPool {
public:
    /// The one copy of a text; it stays where it is as long as the pool lives.
    const std::string* share(const std::string& text) {
        static const std::string kNone;
        return text.empty() ? &kNone : &*texts_.insert(text).first;
    }

private:
    std::unordered_set<std::string> texts_;
};

}  // namespace host::ui
