#include "host/import/reader/declared_bodies.h"

#include "host/import/reader/assembly.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_RepresentationRelationshipWithTransformation.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_ConnectedFaceSet.hxx>
#include <StepShape_Face.hxx>
#include <StepShape_FaceBasedSurfaceModel.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <StepShape_SolidModel.hxx>
#include <TopExp_Explorer.hxx>
#include <XSControl_WorkSession.hxx>

#include <unordered_set>

namespace step {
namespace {

using Item = Handle(StepRepr_RepresentationItem);

bool isBody(const Item& item) {
    return !item.IsNull() && (item->IsKind(STANDARD_TYPE(StepShape_SolidModel)) ||
                              item->IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel)) ||
                              item->IsKind(STANDARD_TYPE(StepShape_FaceBasedSurfaceModel)));
}

/// Whether a link places a part in an assembly. Open CASCADE derives these from the ones that say
/// that two representations are of the same shape.
bool places(const Handle(StepRepr_ShapeRepresentationRelationship) & link) {
    return link->IsKind(STANDARD_TYPE(StepRepr_RepresentationRelationshipWithTransformation));
}

/// Whether something came of a body and of each face that it leads to.
class Completeness {
public:
    explicit Completeness(const StepFile& file) : file_(file), graph_(file.reader.WS()->Graph()) {}

    [[nodiscard]] bool isComplete(const Handle(Standard_Transient) & body) const {
        const TopoDS_Shape shape = file_.shapeOf(body);
        return !shape.IsNull() && TopExp_Explorer(shape, TopAbs_FACE).More() && hasAllFaces(body);
    }

private:
    // From a body to its shells, oriented ones included, and to their faces: as deep as that.
    [[nodiscard]] bool hasAllFaces(const Handle(Standard_Transient) & entity) const {
        for (Interface_EntityIterator used = graph_.Shareds(entity); used.More(); used.Next()) {
            const Handle(Standard_Transient)& part = used.Value();
            if (part->IsKind(STANDARD_TYPE(StepShape_Face)) && file_.shapeOf(part).IsNull()) {
                return false;
            }
            if (part->IsKind(STANDARD_TYPE(StepShape_ConnectedFaceSet)) && !hasAllFaces(part)) {
                return false;
            }
        }
        return true;
    }

    const StepFile& file_;
    const Interface_Graph& graph_;
};

}  // namespace

DeclaredBodies::DeclaredBodies(const StepFile& file) {
    for (int number = 1; number <= file.model->NbEntities(); ++number) {
        const auto link =
            Handle(StepRepr_ShapeRepresentationRelationship)::DownCast(file.model->Value(number));
        if (link.IsNull() || link->Rep1().IsNull() || link->Rep2().IsNull() || places(link)) {
            continue;
        }
        same_[link->Rep1().get()].push_back(link->Rep2().get());
        same_[link->Rep2().get()].push_back(link->Rep1().get());
    }
}

std::vector<Item> DeclaredBodies::in(const Handle(StepRepr_Representation) & representation) const {
    std::vector<Item> bodies;
    std::vector<Representation> open = {representation.get()};
    std::unordered_set<Representation> seen = {nullptr};
    while (!open.empty()) {
        const Representation next = open.back();
        open.pop_back();
        if (!seen.insert(next).second) {
            continue;
        }
        for (int at = 1; !next->Items().IsNull() && at <= next->NbItems(); ++at) {
            if (const Item item = next->ItemsValue(at); isBody(item)) {
                bodies.push_back(item);
            }
        }
        if (const auto found = same_.find(next); found != same_.end()) {
            open.insert(open.end(), found->second.begin(), found->second.end());
        }
    }
    return bodies;
}

void countDeclaredBodies(Assembly& assembly) {
    for (Component& component : assembly.components) {
        component.bodyCount = component.bodies.size();
        for (auto from = component.content; from && component.bodyCount == 0;
             from = assembly.components[*from].content) {
            component.bodyCount = assembly.components[*from].bodies.size();
        }
    }
}

std::string complaintAboutBodies(const Assembly& assembly) {
    std::unordered_set<const Standard_Transient*> incomplete;
    std::string first;
    for (const Component& component : assembly.components) {
        const StepFile& file = *assembly.files[component.file];
        const Completeness completeness(file);
        for (const Item& body : component.bodies) {
            if (completeness.isComplete(body) || !incomplete.insert(body.get()).second) {
                continue;
            }
            if (first.empty()) {
                first = "#" + std::to_string(file.label(body)) + " of \"" + component.name + "\"";
            }
        }
    }
    if (incomplete.empty()) {
        return {};
    }
    return "has " + std::to_string(incomplete.size()) +
           (incomplete.size() == 1 ? " body" : " bodies") + " that cannot be built whole, first " +
           first + "; areas and masses are without them";
}

}  // namespace step
