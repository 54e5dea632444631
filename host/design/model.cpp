#include "host/design/model.h"

#include "host/design/component_object.h"
#include "host/design/occurrence_object.h"

#include <string>
#include <utility>

namespace host {
namespace {

constexpr const char* kNewComponent = "Component";

// As for a part of a file that names no material.
const MaterialData kDefaultMaterial = {
    .name = "Steel", .density = 0.00785, .nameAssumed = true, .densityAssumed = true};

}  // namespace

Model::Model(DesignData data)
    : opened_(data.components.size()), emptyList_(make<OccurrenceListObject>(nullptr, nullptr)) {
    components_.reserve(data.components.size());
    for (ComponentData& each : data.components) {
        // The root component is called like the document, and takes no name from the others.
        if (!components_.empty()) {
            names.claim(each.name);
        }
        components_.push_back(make<ComponentObject>(*this, components_.size(), std::move(each)));
    }
    // Not only emptied: the list of a large design takes tens of megabytes.
    std::vector<ComponentData>().swap(data.components);
    rest_ = std::move(data);
}

Model::~Model() {
    edits.history.clear();
    for (const auto& each : components_) {
        each->dispose();
    }
    emptyList_->dispose();
    materials.dispose();
}

std::size_t Model::addComponent(const ComponentObject& owner) {
    while (names.isTaken(kNewComponent + std::to_string(nextNumber_))) {
        ++nextNumber_;
    }
    ComponentData data;
    data.name = names.claim(kNewComponent + std::to_string(nextNumber_++));
    data.partNumber = data.name;
    data.material = kDefaultMaterial;
    data.document = owner.state().document;
    components_.push_back(make<ComponentObject>(*this, components_.size(), std::move(data)));
    components_.back()->setDesign(owner.design());
    usesOfAdded_.emplace_back();
    return components_.size() - 1;
}

void Model::takeBackComponent() {
    for (const core::Ptr<OccurrenceObject>& each : usesOfAdded_.back()) {
        each->dispose();
    }
    usesOfAdded_.pop_back();
    const core::Ptr<ComponentObject> last = components_.back();
    components_.pop_back();
    names.release(last->state().name);
    nextNumber_ = 1;
    last->dispose();
}

void Model::noteMade(const core::Ptr<OccurrenceObject>& occurrence, std::size_t component) {
    if (component >= opened_) {
        usesOfAdded_[component - opened_].push_back(occurrence);
    }
}

DesignData Model::snapshot() const {
    DesignData data = rest_;
    data.components.reserve(components_.size());
    for (const auto& each : components_) {
        data.components.push_back(each->snapshot());
    }
    return data;
}

}  // namespace host
