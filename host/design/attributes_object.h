#pragma once

#include "host/base/object.h"
#include "host/base/string_pool.h"
#include "host/design/design_data.h"
#include "host/design/edits.h"

#include <Core/Attributes.h>

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace host {

class AttributesObject;

/// One attribute; it belongs to its collection, and is disposed of with it.
class AttributeObject final : public Object<core::Attribute> {
public:
    AttributeObject(AttributesObject& owner, AttributeData data);

    [[nodiscard]] std::string groupName() const override;
    [[nodiscard]] std::string name() const override;
    [[nodiscard]] std::string value() const override { return get<"value">(value_); }
    bool value(const std::string& value) override;
    [[nodiscard]] core::Ptr<core::Base> parent() const override;
    bool deleteMe() override;

    /// @name For the host itself, as long as it is valid
    /// @{
    [[nodiscard]] const std::string& ownGroup() const { return *group_; }
    [[nodiscard]] const std::string& ownName() const { return *name_; }
    [[nodiscard]] AttributeData snapshot() const {
        return {.group = *group_, .name = *name_, .value = value_};
    }
    /// @}

    /// Sets the value as the API does; false for one that is too long.
    bool setValue(const std::string& value);

    /// Sets the value as it was before a change.
    void restore(const std::string& value) { value_ = value; }

    /// Cuts it off from its collection.
    void dispose();

private:
    AttributesObject* owner_;
    const std::string* group_;  ///< of the document's pool: most attributes are called alike
    const std::string* name_;   ///< of the same
    std::string value_;
};

/// The attributes of a component or of a design.
class AttributesObject final : public Object<core::Attributes> {
public:
    /// `parent` is what they belong to, `edits` counts the changes, and `pool` has the names; all
    /// outlive the collection, or dispose of it.
    AttributesObject(core::Base& parent, Edits& edits, StringPool& pool,
                     std::vector<AttributeData> data);

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
    [[nodiscard]] History& history() const { return edits_->history; }
    const std::string* share(const std::string& text) { return pool_->share(text); }
    void take(AttributeObject& attribute);

    /// Makes an attribute again that was taken out of its place.
    void putBack(std::size_t place, const AttributeData& data);

    /// Sets the value of one, as before it was changed; nothing for one that is not there.
    void restore(const AttributeData& data);

    /// Takes one out again that was added.
    void takeAdded(const std::string& group, const std::string& name);

    /// Disposes of the collection and all attributes.
    void dispose();

private:
    [[nodiscard]] AttributeObject* find(const std::string& group, const std::string& name) const;
    void index(AttributeObject& attribute);

    core::Base* parent_;
    Edits* edits_;
    StringPool* pool_;
    std::vector<core::Ptr<AttributeObject>> items_;
    /// Found by group and name; made once there are too many to be looked through.
    std::unique_ptr<std::unordered_map<std::string, AttributeObject*>> byName_;
};

}  // namespace host
