#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// A parts list that was exported, and edited in another program.
struct EditedList {
    struct Line {
        std::size_t number = 0;  ///< in the file, from 1
        std::vector<std::string> fields;
    };

    std::string file;
    std::vector<std::string> captions;
    std::vector<Line> lines;  ///< without those that are empty and that of the total mass
};

/// Reads lines whose fields are separated by whichever of ";", "," and the tab is the most frequent
/// in the first one, which holds the captions. A field may be in quotes, as spreadsheets write
/// them, but need not be. Throws a `Failure` that names `file` for text that is not UTF-8, and
/// where there are no captions.
EditedList parseEditedList(std::string_view text, const std::string& file);

/// The same of a file of at most 64 MB. Throws a `Failure` for one that cannot be read.
EditedList readEditedList(const std::string& file);

}  // namespace workbench
