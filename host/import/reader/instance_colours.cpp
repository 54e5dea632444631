#include "host/import/reader/instance_colours.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <StepRepr_ProductDefinitionShape.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_Face.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <StepVisual_ContextDependentOverRidingStyledItem.hxx>
#include <StepVisual_PresentationStyleByContext.hxx>
#include <StepVisual_StyleContextSelect.hxx>
#include <TopoDS_Shape.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <optional>
#include <unordered_map>

namespace step {
namespace {

using Style = Handle(StepVisual_StyledItem);
using UseIndices = std::unordered_map<const Standard_Transient*, UseIndex>;

UseIndices indicesOf(const Assembly& assembly) {
    UseIndices indices;
    for (std::size_t component = 0; component < assembly.components.size(); ++component) {
        const std::vector<Use>& uses = assembly.components[component].uses;
        for (std::size_t use = 0; use < uses.size(); ++use) {
            if (!uses[use].usage.IsNull()) {
                indices[uses[use].usage.get()] = {.component = component, .use = use};
            }
        }
    }
    return indices;
}

using Usages = std::unordered_map<int, const Standard_Transient*>;

/// The usages of a file by the labels of all that refers to them in a context: the placement, and
/// the relationship of representations that it uses.
Usages usagesOf(const StepFile& file) {
    Usages usages;
    for (int number = 1; number <= file.model->NbEntities(); ++number) {
        const auto placed = Handle(StepShape_ContextDependentShapeRepresentation)::DownCast(
            file.model->Value(number));
        if (placed.IsNull() || placed->RepresentedProductRelation().IsNull()) {
            continue;
        }
        const Standard_Transient* const usage =
            placed->RepresentedProductRelation()->Definition().Value().get();
        usages[file.label(placed)] = usage;
        if (!placed->RepresentationRelation().IsNull()) {
            usages[file.label(placed->RepresentationRelation())] = usage;
        }
    }
    return usages;
}

/// The usage whose shape a representation is said to be; null where it is that of no usage.
const Standard_Transient* usageOf(const StepFile& file,
                                  const Handle(StepRepr_Representation) & representation) {
    for (Interface_EntityIterator user = file.reader.WS()->Graph().Sharings(representation);
         user.More(); user.Next()) {
        const auto link = Handle(StepShape_ShapeDefinitionRepresentation)::DownCast(user.Value());
        if (!link.IsNull() && !link->Definition().PropertyDefinition().IsNull()) {
            return link->Definition().PropertyDefinition()->Definition().Value().get();
        }
    }
    return nullptr;
}

/// Finds the uses that the styles of one file are for.
class PathFinder {
public:
    PathFinder(const Assembly& assembly, const UseIndices& indices, const StepFile& file)
        : assembly_(assembly), indices_(indices), file_(file) {}

    /// From the outermost one; empty where the style names none, or what is no way through the
    /// tree.
    [[nodiscard]] std::vector<UseIndex> pathOf(const Style& style) {
        std::vector<const Standard_Transient*> usages =
            style->IsKind(STANDARD_TYPE(StepVisual_ContextDependentOverRidingStyledItem))
                ? usagesByContext(style)
                : usageByRepresentation(style);
        std::vector<UseIndex> path;
        for (const Standard_Transient* const usage : usages) {
            const auto found = indices_.find(usage);
            if (found == indices_.end()) {
                return {};
            }
            path.push_back(found->second);
        }
        // The standard has no order for them; programs write them either way.
        if (!isWay(path)) {
            std::reverse(path.begin(), path.end());
        }
        return isWay(path) ? path : std::vector<UseIndex>();
    }

private:
    std::vector<const Standard_Transient*> usagesByContext(const Style& style) {
        if (usages_.empty()) {
            usages_ = usagesOf(file_);
        }
        std::vector<const Standard_Transient*> found;
        for (const int label : file_.texts.contextsOf(file_.label(style))) {
            const auto usage = usages_.find(label);
            found.push_back(usage == usages_.end() ? nullptr : usage->second);
        }
        return found;
    }

    [[nodiscard]] std::vector<const Standard_Transient*> usageByRepresentation(
        const Style& style) const {
        for (int number = 1; number <= style->NbStyles(); ++number) {
            const auto context =
                Handle(StepVisual_PresentationStyleByContext)::DownCast(style->StylesValue(number));
            if (!context.IsNull() && !context->StyleContext().IsNull() &&
                !context->StyleContext().Representation().IsNull()) {
                return {usageOf(file_, context->StyleContext().Representation())};
            }
        }
        return {};
    }

    [[nodiscard]] bool isWay(const std::vector<UseIndex>& path) const {
        for (std::size_t at = 1; at < path.size(); ++at) {
            const UseIndex& outer = path[at - 1];
            if (assembly_.components[outer.component].uses[outer.use].component !=
                path[at].component) {
                return false;
            }
        }
        return true;
    }

    const Assembly& assembly_;
    const UseIndices& indices_;
    const StepFile& file_;
    Usages usages_;
};

bool isOfFace(const Style& style) {
    return !style->Item().IsNull() && style->Item()->IsKind(STANDARD_TYPE(StepShape_Face));
}

/// The number of the body that a style is for; none where it is for a whole instance, as the body
/// of a part that has no other.
std::optional<std::size_t> bodyOf(const Assembly& assembly, const StepFile& file,
                                  const Style& style, const UseIndex& use, BodyNumbers& bodies) {
    const Use& last = assembly.components[use.component].uses[use.use];
    const TopoDS_Shape shape = file.shapeOf(style->Item());
    if (assembly.components[last.component].bodyCount < 2 || shape.IsNull() ||
        shape.ShapeType() == TopAbs_COMPOUND) {
        return std::nullopt;
    }
    return bodies.try_emplace(shape.TShape().get(), bodies.size()).first->second;
}

void addColours(const Assembly& assembly, const StepFile& file, PathFinder finder,
                InstanceColours& found) {
    const STEPConstruct_Styles styles(file.reader.WS());
    for (int number = 1; number <= file.model->NbEntities(); ++number) {
        const Style style = Style::DownCast(file.model->Value(number));
        if (style.IsNull() || !isOfInstance(style) || isOfFace(style)) {
            continue;
        }
        std::vector<UseIndex> path = finder.pathOf(style);
        const std::optional<host::Rgba> colour = surfaceColourOf(styles, style);
        if (!path.empty() && colour) {
            const std::optional<std::size_t> body =
                bodyOf(assembly, file, style, path.back(), found.bodies);
            found.colours.push_back({.path = std::move(path), .colour = *colour, .body = body});
        }
    }
}

}  // namespace

InstanceColours instanceColoursOf(const Assembly& assembly) {
    const UseIndices indices = indicesOf(assembly);
    InstanceColours found;
    for (const auto& file : assembly.files) {
        addColours(assembly, *file, PathFinder(assembly, indices, *file), found);
    }
    return found;
}

}  // namespace step
