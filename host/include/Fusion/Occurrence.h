#pragma once

#include <Core/Collection.h>

#include <string>

namespace adsk::fusion {

class Component;
class OccurrenceList;
class PhysicalProperties;

/// A use of a component, as seen from the top of an assembly.
///
/// When an assembly is used twice, what is in it is seen twice: the occurrences differ and share
/// their components.
class Occurrence : public core::Base {
public:
    static const char* classType();

    [[nodiscard]] virtual core::Ptr<Component> component() const = 0;

    /// What stands directly in this occurrence, seen from the same top.
    [[nodiscard]] virtual core::Ptr<OccurrenceList> childOccurrences() const = 0;

    /// The component's name, ":", and the number of this use of it, such as "Bolt:2".
    [[nodiscard]] virtual std::string name() const = 0;

    /// The names from the top down to this one, joined by "+".
    [[nodiscard]] virtual std::string fullPathName() const = 0;

    /// Whether it is held in its place.
    [[nodiscard]] virtual bool isGrounded() const = 0;
    virtual bool isGrounded(bool value) = 0;

    /// Whether its component comes from another document than the assembly it stands in.
    [[nodiscard]] virtual bool isReferencedComponent() const = 0;

    /// What its component measures, with low accuracy.
    [[nodiscard]] virtual core::Ptr<PhysicalProperties> physicalProperties() const = 0;
};

/// Occurrences to read.
class OccurrenceList : public core::CollectionOf<Occurrence> {
public:
    static const char* classType();

    /// The occurrence of that name, null where there is none.
    [[nodiscard]] virtual core::Ptr<Occurrence> itemByName(const std::string& name) const = 0;
};

/// What stands directly in a component.
class Occurrences : public core::CollectionOf<Occurrence> {
public:
    static const char* classType();

    /// The same occurrences as a plain list.
    [[nodiscard]] virtual core::Ptr<OccurrenceList> asList() const = 0;
};

}  // namespace adsk::fusion
