#pragma once

#include <TopTools_IndexedMapOfShape.hxx>

#include <nlohmann/json.hpp>

#include <filesystem>

namespace step {

/// Whether a file is marked as IGES: its first line belongs to the start section.
bool looksLikeIges(const std::filesystem::path& file);

/// Reads an IGES file: what it holds, as `designOf` returns it, is one component with all bodies,
/// which are added to `shapes`. Throws `ReadError`.
nlohmann::json readIges(const std::filesystem::path& file, TopTools_IndexedMapOfShape& shapes);

}  // namespace step
