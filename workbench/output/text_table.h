#pragma once

#include "workbench/cli/console.h"

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace workbench {

/// A table for the terminal or for a file: a line of captions, a rule, and the rows.
///
/// Columns are as wide as their widest cell, measured in terminal columns. A column of numbers
/// alone is right-aligned under its caption, unless it is to be read as words. No line ends in
/// spaces. Cells are made printable.
class TextTable {
public:
    static constexpr std::size_t kUnlimited = static_cast<std::size_t>(-1);

    /// The rule is drawn in what `charset` has; cells stay as they are.
    TextTable(const std::vector<std::string>& captions, console::Charset charset);

    /// Adds a row; missing cells are empty, surplus ones are dropped.
    void add(const std::vector<std::string>& cells);

    /// Has the cells of a column begin under their caption, whatever they are: those of an outline,
    /// such as 1 and 1.1, are no numbers.
    void alignLeft(std::size_t column);

    /// All lines, each with a line feed at its end and `indent` spaces before it. Where they are
    /// wider than `width` terminal columns, the widest columns of words are cut, and marked with
    /// "..."; numbers and captions stay whole.
    [[nodiscard]] std::string text(std::size_t indent = 0, std::size_t width = kUnlimited) const;

private:
    /// How the cells of one column are laid out.
    struct Column {
        std::size_t width;
        std::size_t least;  ///< that it can be narrowed to
        bool rightAligned;
    };

    [[nodiscard]] Column measure(std::size_t column) const;
    [[nodiscard]] std::string rule(std::size_t width) const;
    static void narrow(std::vector<Column>& columns, std::size_t width);
    [[nodiscard]] static std::string line(const std::vector<std::string>& cells,
                                          const std::vector<Column>& columns);

    console::Charset charset_;
    std::vector<std::string> captions_;
    std::set<std::size_t> words_;  ///< columns that are no numbers whatever they look like
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace workbench
