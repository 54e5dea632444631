#pragma once

#include "host/design/design_data.h"
#include "host/design/json_document.h"

#include <nlohmann/json.hpp>

#include <vector>

/// The design file's content. Written down in docs/design-file.md.
namespace host {

/// A design as JSON. Bodies that come from the design's source are only referred to; others are
/// kept by their measures.
nlohmann::ordered_json toJson(const DesignData& data);

/// What a design file holds, and which of its components have their bodies in the source.
struct ReadDesign {
    DesignData data;  ///< without the bodies that are in the source
    std::vector<bool> hasSourceBodies;
};

/// Reads a design; what it holds is well-formed, but not yet checked as a design. Throws
/// `DesignError` that names the place and what is expected there.
ReadDesign fromJson(const JsonDocument& json);

}  // namespace host
