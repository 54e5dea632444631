#include "host/ui/inputs/selection_filters.h"

#include "host/ui/user_interface_object.h"

#include <Fusion/Sketch.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace host::ui {
namespace {

struct Filter {
    std::string_view name;
    std::string_view type;  ///< the class that passes; empty: none that the stand-in has
};

constexpr std::array<Filter, 38> kFilters = {{
    {"Bodies", ""},
    {"SolidBodies", ""},
    {"SurfaceBodies", ""},
    {"MeshBodies", ""},
    {"Faces", ""},
    {"SolidFaces", ""},
    {"SurfaceFaces", ""},
    {"PlanarFaces", ""},
    {"CylindricalFaces", ""},
    {"ConicalFaces", ""},
    {"SphericalFaces", ""},
    {"ToroidalFaces", ""},
    {"SplineFaces", ""},
    {"Edges", ""},
    {"LinearEdges", ""},
    {"CircularEdges", ""},
    {"EllipticalEdges", ""},
    {"TangentEdges", ""},
    {"NonTangentEdges", ""},
    {"Vertices", ""},
    {"RootComponents", "adsk::fusion::Component"},
    {"Occurrences", "adsk::fusion::Occurrence"},
    {"Sketches", "adsk::fusion::Sketch"},
    {"SketchConstraints", ""},
    {"Profiles", ""},
    {"Texts", ""},
    {"SketchCurves", "adsk::fusion::SketchCurve"},
    {"SketchLines", "adsk::fusion::SketchLine"},
    {"SketchCircles", "adsk::fusion::SketchCircle"},
    {"SketchPoints", ""},
    {"ConstructionPoints", ""},
    {"ConstructionLines", ""},
    {"ConstructionPlanes", ""},
    {"Features", ""},
    {"Canvases", ""},
    {"Decals", ""},
    {"JointOrigins", ""},
    {"Joints", ""},
}};

const Filter* find(const std::string& name) {
    const auto* found = std::find_if(kFilters.begin(), kFilters.end(),
                                     [&](const Filter& each) { return each.name == name; });
    return found == kFilters.end() ? nullptr : found;
}

}  // namespace

bool isSelectionFilter(const std::string& name) { return find(name) != nullptr; }

bool passesFilter(const core::Ptr<core::Base>& entity, const std::string& filter,
                  const UserInterfaceObject& ui) {
    const Filter* known = find(filter);
    if (known == nullptr) return false;
    // Of any class: each kind of curve has its own.
    if (known->name == "SketchCurves") return core::Ptr<fusion::SketchCurve>(entity);
    if (known->type != entity->objectType()) return false;
    return known->name != "RootComponents" || ui.isRootComponent(entity);
}

}  // namespace host::ui
