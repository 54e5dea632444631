#pragma once

#include <Core/Collection.h>

#include <string>
#include <vector>

namespace adsk::core {

/// A string that a module has attached to an entity of the design, under a group and a name.
class Attribute : public Base {
public:
    static const char* classType();  ///< "adsk::core::Attribute"

    /// The group that it was added under; never empty, and fixed.
    [[nodiscard]] virtual std::string groupName() const = 0;

    /// Its name within the group; never empty, and fixed.
    [[nodiscard]] virtual std::string name() const = 0;

    /// The string as it was set; it may be empty.
    [[nodiscard]] virtual std::string value() const = 0;
    /// False, with the old value kept, for more than 2 MB.
    virtual bool value(const std::string& value) = 0;

    /// The entity that it belongs to: a component, or a product.
    [[nodiscard]] virtual Ptr<Base> parent() const = 0;

    /// Removes the attribute from its entity; this object is not valid afterwards.
    virtual bool deleteMe() = 0;
};

/// The attributes of one entity of the design, saved with it.
///
/// Group and name together identify an attribute; upper and lower case differ. They are kept in the
/// order of creation.
class Attributes : public CollectionOf<Attribute> {
public:
    static const char* classType();  ///< "adsk::core::Attributes"

    /// The attribute of this group and name, null when there is none.
    [[nodiscard]] virtual Ptr<Attribute> itemByName(const std::string& groupName,
                                                    const std::string& name) const = 0;

    /// All attributes of a group, in order of creation; empty for an unknown group.
    [[nodiscard]] virtual std::vector<Ptr<Attribute>> itemsByGroup(
        const std::string& groupName) const = 0;

    /// The names of the groups, each once, in the order of their first attributes.
    [[nodiscard]] virtual std::vector<std::string> groupNames() const = 0;

    /// Adds an attribute at the end, or sets the value of the one that already has this group and
    /// name. Null for an empty group or name and for a value of more than 2 MB.
    virtual Ptr<Attribute> add(const std::string& groupName, const std::string& name,
                               const std::string& value) = 0;
};

}  // namespace adsk::core
