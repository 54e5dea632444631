#include "host/design/model.h"

#include "host/design/component_object.h"
#include "host/design/occurrence_object.h"

#include <utility>

namespace host {

Model::Model(DesignData data) : emptyList_(make<OccurrenceListObject>(nullptr, nullptr)) {
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

DesignData Model::snapshot() const {
    DesignData data = rest_;
    data.components.reserve(components_.size());
    for (const auto& each : components_) {
        data.components.push_back(each->snapshot());
    }
    return data;
}

}  // namespace host
