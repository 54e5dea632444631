#pragma once

#include "parts/compare.h"
#include "parts/parts_list.h"

#include <cstddef>
#include <string>
#include <vector>

namespace workbench {

/// Whether a file is a list rather than a design, by its ending.
bool isEditedPartsList(const std::string& file);

/// A list that `parts` wrote as CSV or TSV and that was edited in a spreadsheet.
///
/// Its captions say which columns it has: those of `request`, whose captions may have been chosen,
/// else a column's name and unit. Lines are matched by what the request merges by, as far as
/// a list has it: by its part numbers, where one is empty by the part name, and so too what is
/// merged by shape. Numbers of items and pictures are not compared.
class EditedPartsList {
public:
    /// Throws a `Failure` for a file that cannot be read, and for one without the columns
    /// that lines are matched by.
    EditedPartsList(const std::string& file, const parts::PartsRequest& request);

    /// What a list of a design has to be asked for to be compared with this.
    [[nodiscard]] const parts::PartsRequest& request() const { return request_; }

    [[nodiscard]] const std::vector<parts::ComparedLine>& lines() const { return lines_; }

    /// The lines of a list that was made by the request.
    [[nodiscard]] std::vector<parts::ComparedLine> linesOf(const parts::PartsList& list) const;

private:
    void findKeys(const std::string& file);
    void addColumn(const std::string& caption, const std::vector<parts::Column>& known);
    [[nodiscard]] std::string itemOf(const std::vector<parts::Cell>& cells) const;

    parts::PartsRequest request_;
    std::vector<std::size_t> fields_;  ///< for each column its place in a line
    std::vector<std::size_t> keys_;    ///< columns that lines are matched by
    std::vector<parts::ComparedLine> lines_;
};

}  // namespace workbench
