#pragma once

#include "host/base/object.h"
#include "host/design/attributes_object.h"
#include "host/design/design_data.h"
#include "host/design/material_object.h"
#include "host/design/measures.h"
#include "host/design/occurrence_object.h"
#include "host/design/sketch_object.h"

#include <Fusion/Component.h>
#include <Fusion/Design.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace host {

class DesignObject;
class Model;

/// A component of a document.
class ComponentObject final : public Object<fusion::Component> {
public:
    ComponentObject(Model& model, std::size_t index, ComponentData data);

    [[nodiscard]] std::string name() const override { return get<"name">(data_.name); }
    bool name(const std::string& value) override;
    [[nodiscard]] std::string partNumber() const override {
        return get<"partNumber">(data_.partNumber);
    }
    bool partNumber(const std::string& value) override;
    [[nodiscard]] std::string description() const override {
        return get<"description">(data_.description);
    }
    bool description(const std::string& value) override;
    [[nodiscard]] core::Ptr<core::Attributes> attributes() const override;
    [[nodiscard]] core::Ptr<fusion::Occurrences> occurrences() const override;
    [[nodiscard]] core::Ptr<fusion::Design> parentDesign() const override;
    [[nodiscard]] core::Ptr<fusion::PhysicalProperties> getPhysicalProperties(
        fusion::CalculationAccuracy accuracy) const override;
    [[nodiscard]] core::Ptr<fusion::PhysicalProperties> physicalProperties() const override;
    [[nodiscard]] core::Ptr<core::BoundingBox3D> boundingBox() const override;
    [[nodiscard]] core::Ptr<core::Material> material() const override {
        return get<"material">(material_);
    }
    bool material(const core::Ptr<core::Material>& value) override;
    bool transformOccurrences(const std::vector<core::Ptr<fusion::Occurrence>>& occurrences,
                              const std::vector<core::Ptr<core::Matrix3D>>& transforms,
                              bool ignoreJoints) override;

    /// Its data; attributes, material and sketches are current in `snapshot` only.
    [[nodiscard]] const ComponentData& state() const { return data_; }
    [[nodiscard]] ComponentData snapshot() const;

    [[nodiscard]] Model& model() const { return *model_; }
    [[nodiscard]] ComponentObject& childComponent(const OccurrenceData& child) const;
    OccurrenceData& place(std::size_t index) { return data_.children[index]; }

    /// Adds the first occurrence of a new component, placed in here, behind the others. False where
    /// what a preview did has to be taken back first, which is noted as the last error.
    bool addNewComponent(const Transform& transform);

    /// The density of what it is made of, in kg/cm3; 0 where it is unknown.
    [[nodiscard]] double density() const { return material_ ? material_->state().density : 0; }

    MeasureCache& measureCache();

    /// One of its sketches, null outside their list.
    core::Ptr<fusion::Sketch> sketch(std::size_t index);

    /// Takes a name that is free; what follows it goes along.
    void rename(const std::string& name);

    /// Gives the root component back what it was called before its document was renamed.
    void restoreName(const std::string& name, const std::string& partNumber) {
        data_.name = name;
        data_.partNumber = partNumber;
    }

    void setDesign(DesignObject& design) { design_ = &design; }
    [[nodiscard]] DesignObject& design() const { return *design_; }
    void dispose();

private:
    [[nodiscard]] bool isRoot() const { return index_ == 0; }

    /// The API reads through const members; what is made on demand is kept in the same object.
    [[nodiscard]] ComponentObject& self() const { return const_cast<ComponentObject&>(*this); }

    Model* model_;
    DesignObject* design_ = nullptr;
    std::size_t index_;
    ComponentData data_;
    core::Ptr<MaterialObject> material_;
    std::unique_ptr<MeasureCache> measureCache_;
    mutable core::Ptr<AttributesObject> attributes_;
    mutable core::Ptr<OccurrencesObject> occurrences_;
    std::vector<core::Ptr<SketchObject>> sketches_;
};

}  // namespace host
