#pragma once

#include <string>
#include <string_view>

namespace test_support {

/// A raw string without its layout: the line break at its start, the margin that all its lines
/// share, and the blank line before its closing quote are removed. Lines are separated by a line
/// feed.
std::string text(std::string_view raw);

}  // namespace test_support
