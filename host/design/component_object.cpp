#include "host/design/component_object.h"

#include "host/base/last_error.h"
#include "host/design/design_object.h"
#include "host/design/geometry_objects.h"
#include "host/design/model.h"
#include "host/design/naming.h"
#include "host/design/physical_properties_object.h"
#include "host/design/placing.h"

#include <utility>

using adsk::core::Attributes;
using adsk::core::BoundingBox3D;
using adsk::core::Material;
using adsk::core::Matrix3D;
using adsk::core::Ptr;
using adsk::fusion::CalculationAccuracy;
using adsk::fusion::Design;
using adsk::fusion::Occurrence;
using adsk::fusion::Occurrences;
using adsk::fusion::PhysicalProperties;
using adsk::fusion::Sketch;

namespace host {

ComponentObject::ComponentObject(Model& model, std::size_t index, ComponentData data)
    : model_(&model), index_(index), data_(std::move(data)) {
    if (data_.material) {
        material_ = model.materials.like(*data_.material);
    }
}

std::string ComponentObject::name() const {
    if (closed<"Component::name">(*this)) return {};
    return data_.name;
}

bool ComponentObject::name(const std::string& value) {
    if (closed<"Component::name">(*this)) return {};
    if (isRoot()) {
        return fail(adsk::core::OperationFailed,
                    "the root component is called like its document and cannot be named");
    }
    if (value.empty()) {
        return fail(adsk::core::BadApiCallError, "a component needs a name");
    }
    if (value != data_.name) {
        // The name it gives up is free for itself: asked for "Bolt", a "Bolt (1)" may stay.
        model_->names.release(data_.name);
        rename(model_->names.claim(value));
    }
    return true;
}

void ComponentObject::rename(const std::string& name) {
    renameComponent(data_, name);
    ++model_->edits.all;
}

std::string ComponentObject::partNumber() const {
    if (closed<"Component::partNumber">(*this)) return {};
    return data_.partNumber;
}

bool ComponentObject::partNumber(const std::string& value) {
    if (closed<"Component::partNumber">(*this)) return {};
    data_.partNumber = value;
    data_.hasExplicitPartNumber = true;
    ++model_->edits.all;
    return true;
}

std::string ComponentObject::description() const {
    if (closed<"Component::description">(*this)) return {};
    return data_.description;
}

bool ComponentObject::description(const std::string& value) {
    if (closed<"Component::description">(*this)) return {};
    data_.description = value;
    ++model_->edits.all;
    return true;
}

Ptr<Attributes> ComponentObject::attributes() const {
    if (closed<"Component::attributes">(*this)) return {};
    if (!attributes_) {
        attributes_ = make<AttributesObject>(self(), model_->edits,
                                             std::exchange(self().data_.attributes, {}));
    }
    return attributes_;
}

Ptr<Occurrences> ComponentObject::occurrences() const {
    if (closed<"Component::occurrences">(*this)) return {};
    if (!occurrences_) {
        occurrences_ = make<OccurrencesObject>(self());
    }
    return occurrences_;
}

Ptr<Design> ComponentObject::parentDesign() const {
    if (closed<"Component::parentDesign">(*this)) return {};
    return design_;
}

Ptr<PhysicalProperties> ComponentObject::getPhysicalProperties(
    CalculationAccuracy /*accuracy*/) const {
    if (closed<"Component::getPhysicalProperties">(*this)) return {};
    return make<PhysicalPropertiesObject>(measure(self()));
}

Ptr<PhysicalProperties> ComponentObject::physicalProperties() const {
    if (closed<"Component::physicalProperties">(*this)) return {};
    return make<PhysicalPropertiesObject>(measure(self()));
}

Ptr<BoundingBox3D> ComponentObject::boundingBox() const {
    if (closed<"Component::boundingBox">(*this)) return {};
    return makeBoundingBox(boxOf(self()).value_or(Box()));
}

Ptr<Material> ComponentObject::material() const {
    if (closed<"Component::material">(*this)) return {};
    return material_;
}

bool ComponentObject::material(const Ptr<Material>& value) {
    if (closed<"Component::material">(*this)) return {};
    auto* material = dynamic_cast<MaterialObject*>(value.get());
    if (material == nullptr) {
        return fail(adsk::core::BadApiCallError, "a material is needed");
    }
    // A material of another document comes along as one of this document's own.
    const bool ours = model_->materials.holds(*material);
    material_ = ours ? Ptr<MaterialObject>(material) : model_->materials.like(material->data());
    ++model_->edits.all;
    ++model_->edits.materials;
    return true;
}

bool ComponentObject::transformOccurrences(const std::vector<Ptr<Occurrence>>& occurrences,
                                           const std::vector<Ptr<Matrix3D>>& transforms,
                                           bool /*ignoreJoints*/) {
    if (closed<"Component::transformOccurrences">(*this)) return {};
    if (!isRoot()) {
        return fail(adsk::core::BadApiCallError, "only the root component places occurrences");
    }
    if (!placeOccurrences(*this, occurrences, transforms)) {
        return false;
    }
    ++model_->edits.all;
    ++model_->edits.placements;
    return true;
}

ComponentData ComponentObject::snapshot() const {
    ComponentData data = data_;
    data.material = material_ ? std::optional(material_->data()) : std::nullopt;
    if (attributes_) {
        data.attributes = attributes_->data();
    }
    for (std::size_t index = 0; index < sketches_.size(); ++index) {
        if (sketches_[index]) {
            data.sketches[index] = sketches_[index]->data();
        }
    }
    return data;
}

ComponentObject& ComponentObject::childComponent(const OccurrenceData& child) const {
    return model_->component(child.component);
}

MeasureCache& ComponentObject::measureCache() {
    if (!measureCache_) {
        measureCache_ = std::make_unique<MeasureCache>();
    }
    return *measureCache_;
}

Ptr<Sketch> ComponentObject::sketch(std::size_t index) {
    if (index >= data_.sketches.size()) {
        return {};
    }
    sketches_.resize(data_.sketches.size());
    if (!sketches_[index]) {
        sketches_[index] = make<SketchObject>(model_->edits, data_.sketches[index]);
    }
    return sketches_[index];
}

void ComponentObject::end() {
    if (attributes_) {
        attributes_->end();
    }
    if (occurrences_) {
        occurrences_->end();
    }
    for (const Ptr<SketchObject>& each : sketches_) {
        if (each) {
            each->end();
        }
    }
    data_ = {};
    measureCache_.reset();
    model_ = nullptr;
    design_ = nullptr;
    invalidate();
}

}  // namespace host
