#pragma once

#include <string>
#include <vector>

namespace workbench {

/// The candidate that was most likely meant by a mistyped word: the one that the fewest changed,
/// missing, additional or exchanged characters lead to. Upper and lower case are the same. An empty
/// string where more than a third of the word would have to change.
std::string nearestWord(const std::string& word, const std::vector<std::string>& candidates);

}  // namespace workbench
