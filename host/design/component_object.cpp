#include "host/design/component_object.h"

#include "host/base/documented_points.h"
#include "host/base/last_error.h"
#include "host/design/design_object.h"
#include "host/design/geometry_objects.h"
#include "host/design/model.h"
#include "host/design/naming.h"
#include "host/design/physical_properties_object.h"
#include "host/design/placing.h"

#include <utility>

namespace host {

ComponentObject::ComponentObject(Model& model, std::size_t index, ComponentData data)
    : model_(&model), index_(index), data_(std::move(data)) {
    if (data_.material) {
        material_ = model.materials.like(*data_.material);
    }
}

bool ComponentObject::name(const std::string& value) {
    if (closed<"name">(*this)) return {};
    if (isRoot()) {
        return fail(core::OperationFailed,
                    "the root component is called like its document and cannot be named");
    }
    if (value.empty()) {
        return fail(core::BadApiCallError, "a component needs a name");
    }
    if (value != data_.name) {
        model_->edits.history.remember([this, old = data_.name, number = data_.partNumber] {
            model_->names.release(data_.name);
            data_.name = model_->names.claim(old);
            data_.partNumber = number;
        });
        // Its old name is free for itself: asked for "Bolt", a "Bolt (1)" may stay.
        model_->names.release(data_.name);
        rename(model_->names.claim(value));
    }
    return true;
}

void ComponentObject::rename(const std::string& name) {
    renameComponent(data_, name);
    ++model_->edits.all;
}

bool ComponentObject::partNumber(const std::string& value) {
    if (closed<"partNumber">(*this)) return {};
    model_->edits.history.remember(
        [this, old = data_.partNumber, isExplicit = data_.hasExplicitPartNumber] {
            data_.partNumber = old;
            data_.hasExplicitPartNumber = isExplicit;
        });
    const bool goesBack = value.empty() && documentedPoints().emptyNumberIsName;
    data_.partNumber = goesBack ? data_.name : value;
    data_.hasExplicitPartNumber = !goesBack;
    ++model_->edits.all;
    return true;
}

bool ComponentObject::description(const std::string& value) {
    if (closed<"description">(*this)) return {};
    model_->edits.history.remember([this, old = data_.description] { data_.description = old; });
    data_.description = value;
    ++model_->edits.all;
    return true;
}

core::Ptr<core::Attributes> ComponentObject::attributes() const {
    if (closed<"attributes">(*this)) return {};
    if (!attributes_) {
        attributes_ = make<AttributesObject>(self(), model_->edits, model_->texts,
                                             std::exchange(self().data_.attributes, {}));
    }
    return attributes_;
}

core::Ptr<fusion::Occurrences> ComponentObject::occurrences() const {
    if (closed<"occurrences">(*this)) return {};
    if (!occurrences_) {
        occurrences_ = make<OccurrencesObject>(self());
    }
    return occurrences_;
}

core::Ptr<fusion::Design> ComponentObject::parentDesign() const {
    return get<"parentDesign">(design_);
}

core::Ptr<fusion::PhysicalProperties> ComponentObject::getPhysicalProperties(
    fusion::CalculationAccuracy /*accuracy*/) const {
    if (closed<"getPhysicalProperties">(*this)) return {};
    return make<PhysicalPropertiesObject>(measure(self()));
}

core::Ptr<fusion::PhysicalProperties> ComponentObject::physicalProperties() const {
    if (closed<"physicalProperties">(*this)) return {};
    return make<PhysicalPropertiesObject>(measure(self()));
}

core::Ptr<core::BoundingBox3D> ComponentObject::boundingBox() const {
    if (closed<"boundingBox">(*this)) return {};
    return makeBoundingBox(boxOf(self()).value_or(Box()));
}

bool ComponentObject::material(const core::Ptr<core::Material>& value) {
    if (closed<"material">(*this)) return {};
    auto* material = dynamic_cast<MaterialObject*>(value.get());
    if (material == nullptr) {
        return fail(core::BadApiCallError, "a material is needed");
    }
    // A material of another document comes along as one of this document's own.
    model_->edits.history.remember([this, old = material_] { material_ = old; });
    const bool ours = model_->materials.holds(*material);
    material_ =
        ours ? core::Ptr<MaterialObject>(material) : model_->materials.like(material->state());
    ++model_->edits.all;
    ++model_->edits.materials;
    return true;
}

bool ComponentObject::transformOccurrences(
    const std::vector<core::Ptr<fusion::Occurrence>>& occurrences,
    const std::vector<core::Ptr<core::Matrix3D>>& transforms, bool /*ignoreJoints*/) {
    if (closed<"transformOccurrences">(*this)) return {};
    if (!isRoot()) {
        return fail(core::BadApiCallError, "only the root component places occurrences");
    }
    if (!placeOccurrences(*this, occurrences, transforms, model_->edits.history)) {
        return false;
    }
    ++model_->edits.all;
    ++model_->edits.placements;
    return true;
}

bool ComponentObject::addNewComponent(const Transform& transform) {
    if (model_->edits.history.waits()) {
        return fail(core::OperationFailed,
                    "Occurrences::addNewComponent: what the preview did is taken back first");
    }
    const std::size_t index = model_->addComponent(*this);
    data_.children.push_back({.component = index,
                              .instance = 1,
                              .transform = transform,
                              .grounded = false,
                              .absent = false});
    model_->edits.history.remember([this] {
        data_.children.pop_back();
        model_->takeBackComponent();
    });
    ++model_->edits.all;
    return true;
}

ComponentData ComponentObject::snapshot() const {
    ComponentData data = data_;
    data.material = material_ ? std::optional(material_->state()) : std::nullopt;
    if (attributes_) {
        data.attributes = attributes_->snapshot();
    }
    for (std::size_t index = 0; index < sketches_.size(); ++index) {
        if (sketches_[index]) {
            data.sketches[index] = sketches_[index]->snapshot();
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

core::Ptr<fusion::Sketch> ComponentObject::sketch(std::size_t index) {
    if (index >= data_.sketches.size()) {
        return {};
    }
    sketches_.resize(data_.sketches.size());
    if (!sketches_[index]) {
        sketches_[index] = make<SketchObject>(model_->edits, data_.sketches[index]);
    }
    return sketches_[index];
}

void ComponentObject::dispose() {
    if (attributes_) {
        attributes_->dispose();
    }
    if (occurrences_) {
        occurrences_->dispose();
    }
    for (const core::Ptr<SketchObject>& each : sketches_) {
        if (each) {
            each->dispose();
        }
    }
    data_ = {};
    measureCache_.reset();
    model_ = nullptr;
    design_ = nullptr;
    invalidate();
}

}  // namespace host
