#pragma once

#include "host/base/object.h"
#include "host/design/design_data.h"

#include <Fusion/Component.h>
#include <Fusion/Occurrence.h>

#include <cstddef>
#include <string>
#include <vector>

/// Occurrences in context. Each is made on demand and kept from then on, so that
/// one place in the assembly is always one object. Where an assembly is used often, what is in it
/// is made only where it is asked for.
namespace host {

class ComponentObject;
class OccurrenceListObject;

class OccurrenceObject final : public Object<fusion::Occurrence> {
public:
    /// The occurrence that `list` has at that index, a child of the list's owner.
    OccurrenceObject(OccurrenceListObject& list, std::size_t index);

    [[nodiscard]] core::Ptr<fusion::Component> component() const override;
    [[nodiscard]] core::Ptr<fusion::OccurrenceList> childOccurrences() const override;
    [[nodiscard]] std::string name() const override;
    [[nodiscard]] std::string fullPathName() const override;
    [[nodiscard]] bool isGrounded() const override;
    bool isGrounded(bool value) override;
    [[nodiscard]] bool isReferencedComponent() const override;
    [[nodiscard]] core::Ptr<fusion::PhysicalProperties> physicalProperties() const override;

    /// The assembly that this one is in, null directly under the top.
    [[nodiscard]] OccurrenceObject* parent() const;

    /// The component that this one is seen from, null once the document is closed.
    [[nodiscard]] const ComponentObject* top() const;

    /// How many assemblies there are above it.
    [[nodiscard]] std::size_t depth() const;

    /// Its placement as seen from the top.
    [[nodiscard]] Transform placement() const;

    /// Its placement in the component that holds it.
    Transform& localPlacement() { return place().transform; }

    [[nodiscard]] std::string currentName() const;
    void dispose();

private:
    [[nodiscard]] std::size_t nameLength() const;
    void appendName(std::string& text) const;

    /// Its place among the children of the list's owner, which moves when some are added.
    [[nodiscard]] OccurrenceData& place() const;

    ComponentObject* component_;
    std::size_t index_;
    OccurrenceListObject* list_;
    mutable core::Ptr<OccurrenceListObject> children_;
};

/// The occurrences in a component, seen from one top.
class OccurrenceListObject final : public Object<fusion::OccurrenceList> {
public:
    /// The children of `owner`, inside `parent`; no parent: seen from the owner itself. Without an
    /// owner the list is empty.
    OccurrenceListObject(ComponentObject* owner, OccurrenceObject* parent);

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<fusion::Occurrence> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<fusion::Occurrence> itemByName(const std::string& name) const override;

    [[nodiscard]] std::size_t size() const;
    [[nodiscard]] core::Ptr<fusion::Occurrence> at(std::size_t index) const;
    [[nodiscard]] ComponentObject* owner() const { return owner_; }
    [[nodiscard]] OccurrenceObject* parent() const { return parent_; }
    void dispose();

private:
    ComponentObject* owner_;
    OccurrenceObject* parent_;
    mutable std::vector<core::Ptr<OccurrenceObject>> items_;  ///< null where not made yet
};

/// The collection of the occurrences directly in a component.
class OccurrencesObject final : public Object<fusion::Occurrences> {
public:
    explicit OccurrencesObject(ComponentObject& owner);

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<fusion::Occurrence> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<fusion::OccurrenceList> asList() const override {
        return get<"asList">(list_);
    }
    core::Ptr<fusion::Occurrence> addNewComponent(
        const core::Ptr<core::Matrix3D>& transform) override;

    void dispose();

private:
    core::Ptr<OccurrenceListObject> list_;
};

}  // namespace host
