#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace workbench {

/// A parts list that was exported, and edited in another program.
struct EditedList {
    struct Field {
        std::string text;
        std::string raw;  ///< the same, with the quotes in which it was written
    };

    struct Line {
        std::size_t number = 0;  ///< in the file, from 1
        std::vector<Field> fields;
        std::optional<std::size_t> known;  ///< index into the known lines; then it has no fields
    };

    std::string file;
    std::string content;
    std::vector<std::string> captions;
    std::vector<Line> lines;  ///< without those that are empty and that of the total mass
};

/// Reads lines whose fields are separated by whichever of ";", "," and the tab is the most frequent
/// in the first one, which holds the captions. A field may be in quotes, as spreadsheets write
/// them, but need not be.
///
/// An export has no quotes, so a value with a separator, a quote or a line end in it makes a line
/// that cannot be taken apart again. Such a line is recognised as a whole by `known`: the lines of
/// the export as it was, without their ends. Separators at the end of a line do not matter to that.
///
/// Throws a `Failure` that names `file` for text that is not UTF-8, and where there are no
/// captions.
EditedList parseEditedList(std::string_view text, const std::string& file,
                           const std::vector<std::string>& known = {});

/// The same of a file of at most 64 MB. Throws a `Failure` for one that cannot be read.
EditedList readEditedList(const std::string& file);

}  // namespace workbench
