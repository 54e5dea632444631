#pragma once

#include <Core/Collection.h>

#include <string>
#include <vector>

namespace adsk::core {

/// A text that a module has put on a thing of the design under a group and a name.
class Attribute : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string groupName() const = 0;
    [[nodiscard]] virtual std::string name() const = 0;

    [[nodiscard]] virtual std::string value() const = 0;

    /// Sets the text; false, with the old text kept, for one of more than 2 MB.
    virtual bool value(const std::string& value) = 0;

    /// What the attribute stands on.
    [[nodiscard]] virtual Ptr<Base> parent() const = 0;

    /// Takes the attribute off; this object is not valid afterwards.
    virtual bool deleteMe() = 0;
};

/// The attributes of one thing of the design, saved with it.
///
/// Group and name together tell one from another, and upper and lower case differ. The order is the
/// order in which they were made.
class Attributes : public CollectionOf<Attribute> {
public:
    static const char* classType();

    /// The attribute of that group and name, null where there is none.
    [[nodiscard]] virtual Ptr<Attribute> itemByName(const std::string& groupName,
                                                    const std::string& name) const = 0;

    /// All attributes of a group; none for a group that is not there.
    [[nodiscard]] virtual std::vector<Ptr<Attribute>> itemsByGroup(
        const std::string& groupName) const = 0;

    /// The groups, each once.
    [[nodiscard]] virtual std::vector<std::string> groupNames() const = 0;

    /// Makes an attribute, or sets the value of the one that has this group and name already.
    ///
    /// Null, with nothing changed, for an empty group or name and for a value of more than 2 MB.
    virtual Ptr<Attribute> add(const std::string& groupName, const std::string& name,
                               const std::string& value) = 0;
};

}  // namespace adsk::core
