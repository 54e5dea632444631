#pragma once

#include "host/base/object.h"
#include "host/design/design_data.h"
#include "host/design/edits.h"

#include <Core/Attributes.h>

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace host {

class AttributesObject;

/// One attribute; it belongs to its collection, and is disposed of with it.
class AttributeObject final : public Object<core::Attribute> {
public:
    AttributeObject(AttributesObject& owner, AttributeData data);

    [[nodiscard]] std::string groupName() const override { return get<"groupName">(data_.group); }
    [[nodiscard]] std::string name() const override { return get<"name">(data_.name); }
    [[nodiscard]] std::string value() const override { return get<"value">(data_.value); }
    bool value(const std::string& value) override;
    [[nodiscard]] core::Ptr<core::Base> parent() const override;
    bool deleteMe() override;

    [[nodiscard]] const AttributeData& state() const { return data_; }

    /// Sets the value as the API does; false for one that is too long.
    bool setValue(const std::string& value);

    /// Cuts it off from its collection.
    void dispose();

private:
    AttributesObject* owner_;
    AttributeData data_;
};

/// The attributes of a component or of a design.
class AttributesObject final : public Object<core::Attributes> {
public:
    /// `parent` is what they belong to, and `edits` counts the changes; both outlive the
    /// collection, or dispose of it.
    AttributesObject(core::Base& parent, Edits& edits, std::vector<AttributeData> data);

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::Attribute> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::Attribute> itemByName(const std::string& groupName,
                                                        const std::string& name) const override;
    [[nodiscard]] std::vector<core::Ptr<core::Attribute>> itemsByGroup(
        const std::string& groupName) const override;
    [[nodiscard]] std::vector<std::string> groupNames() const override;
    core::Ptr<core::Attribute> add(const std::string& groupName, const std::string& name,
                                   const std::string& value) override;

    [[nodiscard]] std::vector<AttributeData> snapshot() const;
    [[nodiscard]] core::Base* parentObject() const { return parent_; }
    void countEdit() { ++edits_->all; }
    void take(AttributeObject& attribute);

    /// Disposes of the collection and all attributes.
    void dispose();

private:
    [[nodiscard]] AttributeObject* find(const std::string& group, const std::string& name) const;
    void index(AttributeObject& attribute);

    core::Base* parent_;
    Edits* edits_;
    std::vector<core::Ptr<AttributeObject>> items_;
    /// Found by group and name; filled once there are too many to be looked through.
    std::unordered_map<std::string, AttributeObject*> byName_;
};

}  // namespace host
