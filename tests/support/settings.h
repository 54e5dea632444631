#pragma once

#include <string>
#include <vector>

namespace test_support {

/// The settings of an add-in that was never used: the root element. The line ends around it are
/// the system's.
inline constexpr const char* kDefaultSettings =
    "<configuration nameOfApplication=\"Tarnix\">"
    "<category name=\"httpHelpdesk\"><www>http://helpdesk.tarnix.example/</www></category>"
    "<category name=\"iProperty\"/>"
    "<category name=\"bomItems\"/>"
    "</configuration>";

/// A settings document as the add-in writes it, with these columns in its category "bomItems": key
/// and caption of each, separated by the first semicolon.
std::string settingsDocument(const std::vector<std::string>& bomItems);

}  // namespace test_support
