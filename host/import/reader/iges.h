#pragma once

#include <TopTools_IndexedMapOfShape.hxx>

#include <nlohmann/json.hpp>

#include <filesystem>
#include <vector>

namespace step {

/// Whether a file is marked as IGES: its first line belongs to the start section.
bool looksLikeIges(const std::filesystem::path& file);

/// Reads an IGES file: what it holds, as `designOf` returns it, is one component with all bodies,
/// which are added to `shapes`, else with its curves, which are added to `curves`. Throws
/// `ReadError`.
nlohmann::json readIges(const std::filesystem::path& file, TopTools_IndexedMapOfShape& shapes,
                        std::vector<TopoDS_Shape>& curves);

}  // namespace step
