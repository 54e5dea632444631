#pragma once

#include <string>
#include <string_view>

namespace test_support {

/// A raw string as it is meant: without the line break it begins with, without the margin that all
/// its lines share, and without the blank line before its closing quote. Lines end in a line feed,
/// the last one in none.
std::string text(std::string_view raw);

}  // namespace test_support
