#pragma once

#include "parts/parts_list.h"

#include "host/design/design_data.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace parts {

/// What is added to an assembly's path to name the bodies of its own. No path of an occurrence ends
/// like that: its last is a number after ":".
inline constexpr std::string_view kOwnBodies = "#bodies";

/// The path of an occurrence, as in "Asm:1+Bolt:2", from that of its parent and its own name.
std::string pathBelow(const std::string& parent, const host::DesignData& design,
                      const host::OccurrenceData& occurrence);

/// Paths of occurrences, each once.
class PathTable {
public:
    std::size_t indexOf(const std::string& path);

    /// In the order in which they were asked for first.
    [[nodiscard]] const std::vector<std::string>& paths() const { return paths_; }

private:
    std::vector<std::string> paths_;
    std::unordered_map<std::string, std::size_t> indices_;
};

/// For each row of a list the places in the design that it stands for, as indices into `paths`, in
/// the order of the design: of a part all of them, of an assembly its own places alone. `list` is
/// made of `design`.
std::vector<std::vector<std::size_t>> placesOf(const PartsList& list,
                                               const host::DesignData& design, PathTable& paths);

}  // namespace parts
