#pragma once

#include <string>
#include <vector>

namespace test_support {

/// A settings document as the add-in writes it, with these columns in its category "bomItems": key
/// and caption of each, parted by the first semicolon.
std::string settingsDocument(const std::vector<std::string>& bomItems);

}  // namespace test_support
