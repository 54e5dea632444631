#include "host/import/reader/needed_entities.h"

#include <Interface_EntityIterator.hxx>
#include <StepBasic_DocumentFile.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_CharacterizedDefinition.hxx>
#include <StepRepr_MakeFromUsageOption.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_PropertyDefinition.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentedDefinition.hxx>
#include <StepRepr_ShapeRepresentationRelationship.hxx>
#include <StepShape_ContextDependentShapeRepresentation.hxx>
#include <StepShape_ShapeDefinitionRepresentation.hxx>
#include <TCollection_HAsciiString.hxx>

namespace step {
namespace {

template <class T>
bool is(const Handle(Standard_Transient) & entity) {
    return entity->IsKind(STANDARD_TYPE(T));
}

/// Whether a representation is the shape of a product. Where the file does not say whose it is, it
/// may be one.
bool isShapeOfProduct(const StepRepr_PropertyDefinitionRepresentation& link) {
    const Handle(StepRepr_PropertyDefinition) property = link.Definition().PropertyDefinition();
    if (property.IsNull()) {
        return true;
    }
    const StepRepr_CharacterizedDefinition owner = property->Definition();
    return owner.IsNull() || !owner.ProductDefinition().IsNull();
}

bool isMaterial(const StepRepr_PropertyDefinitionRepresentation& link) {
    const Handle(StepRepr_Representation) used = link.UsedRepresentation();
    return !used.IsNull() && !used->Name().IsNull() &&
           (used->Name()->String().IsEqual("material name") ||
            used->Name()->String().IsEqual("density"));
}

/// Whether the tree, a shape or a material begins here.
bool isSource(const Handle(Standard_Transient) & entity) {
    if (is<StepBasic_ProductDefinition>(entity) ||
        is<StepRepr_NextAssemblyUsageOccurrence>(entity) ||
        is<StepRepr_MakeFromUsageOption>(entity) || is<StepBasic_DocumentFile>(entity) ||
        is<StepShape_ContextDependentShapeRepresentation>(entity)) {
        return true;
    }
    const auto link = Handle(StepRepr_PropertyDefinitionRepresentation)::DownCast(entity);
    if (link.IsNull()) {
        return false;
    }
    return isMaterial(*link) ||
           (is<StepShape_ShapeDefinitionRepresentation>(entity) && isShapeOfProduct(*link));
}

}  // namespace

NeededEntities::NeededEntities(const Handle(StepData_StepModel) & model,
                               const Interface_Graph& graph)
    : graph_(graph), needed_(static_cast<std::size_t>(model->NbEntities()) + 1) {
    for (int number = 1; number <= model->NbEntities(); ++number) {
        if (const Handle(Standard_Transient) entity = model->Value(number); isSource(entity)) {
            need(entity);
        }
    }
    while (!open_.empty()) {
        const Handle(Standard_Transient) entity = graph_.Entity(open_.back());
        open_.pop_back();
        for (Interface_EntityIterator used = graph_.Shareds(entity); used.More(); used.Next()) {
            need(used.Value());
        }
        if (!is<StepRepr_Representation>(entity)) {
            continue;
        }
        // A link leads from one representation of a shape to the other; neither refers to it.
        for (Interface_EntityIterator user = graph_.Sharings(entity); user.More(); user.Next()) {
            if (is<StepRepr_ShapeRepresentationRelationship>(user.Value())) {
                need(user.Value());
            }
        }
    }
}

void NeededEntities::need(const Handle(Standard_Transient) & entity) {
    const int number = graph_.EntityNumber(entity);
    if (number > 0 && !needed_[static_cast<std::size_t>(number)]) {
        needed_[static_cast<std::size_t>(number)] = true;
        open_.push_back(number);
    }
}

}  // namespace step
