#pragma once

#include "host/design/design_data.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace host {

/// One line of an outline, taken apart but not yet understood as part of a design.
struct OutlineLine {
    std::size_t number = 0;  ///< counted from 1 in the whole text
    std::size_t indent = 0;  ///< spaces before it
    std::string label;
    std::map<std::string, std::string> keys;  ///< of the component, once each
    std::vector<AttributeData> attributes;
    Transform transform;
    bool grounded = false;
    bool absent = false;
};

/// The lines of an outline that hold anything. Throws `std::invalid_argument` with line and reason.
std::vector<OutlineLine> readOutlineLines(const std::string& text);

/// Some numbers with a separator between them, as in "1x2.5x3". Throws `std::invalid_argument` with
/// line and reason where there are not exactly `count` of them.
std::vector<double> readNumbers(const std::string& text, char separator, std::size_t count,
                                std::size_t line);

/// Throws `std::invalid_argument` for a line.
[[noreturn]] void refuseLine(std::size_t line, const std::string& reason);

}  // namespace host
