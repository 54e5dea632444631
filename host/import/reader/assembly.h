#pragma once

#include "host/design/reading_limits.h"
#include "host/import/reader/materials.h"
#include "host/import/reader/step_file.h"

#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <gp_Trsf.hxx>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The assembly tree of a STEP file and of the files that it refers to.
///
/// It is read from the file's own entities (product definitions and their usages) and not from the
/// tree of shapes that Open CASCADE makes of them: there a part of several bodies turns into an
/// assembly, and products are distinguished by their names.
namespace step {

/// One use of a component below another.
struct Use {
    std::size_t component = 0;
    Handle(StepRepr_NextAssemblyUsageOccurrence) usage;  ///< null for a root of another file
    gp_Trsf placement;                                   ///< in mm, once shapes are built
};

/// One product definition.
struct Component {
    std::string id;
    std::string name;
    std::string description;
    std::optional<Material> material;
    std::vector<Use> uses;
    std::size_t file = 0;  ///< the file that it is in
    Handle(StepBasic_ProductDefinition) definition;
    bool described = false;  ///< whether the file gives it a shape representation
    std::vector<Handle(StepRepr_RepresentationItem)> bodies;  ///< what is declared there as bodies
    int shape = -1;                      ///< its bodies, once shapes are built; -1 without any
    std::size_t bodyCount = 0;           ///< how many these are
    int curves = -1;                     ///< index in `Assembly::curves`, where it has no bodies
    std::optional<std::size_t> content;  ///< the component of another file that fills it
};

struct Assembly {
    std::vector<Component> components;
    std::vector<std::size_t> roots;
    std::vector<std::unique_ptr<StepFile>> files;  ///< the first is the one that was asked for
    std::vector<TopoDS_Shape> curves;  ///< of components without bodies, once shapes are built
    std::vector<Warning> warnings;
};

/// Reads a file and the files it refers to, which are looked for in `folder`, without building
/// shapes. Throws `ReadError` for a file
/// that is damaged or holds no product, a product or file that contains itself, and a tree beyond
/// the limits. A referenced file that is missing or damaged is a warning; its product stays empty.
Assembly readAssembly(const std::filesystem::path& file, const std::filesystem::path& folder,
                      const host::ReadingLimits& limits);

}  // namespace step
