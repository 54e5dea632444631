#pragma once

#include <Core/Collection.h>

#include <string>

namespace adsk::core {
class Matrix3D;
}  // namespace adsk::core

namespace adsk::fusion {

class Component;
class OccurrenceList;
class PhysicalProperties;

/// A use of a component, as seen from a top component, normally the root.
///
/// When an assembly is used twice, its contents are seen twice: the occurrences differ and share
/// their components.
class Occurrence : public core::Base {
public:
    static const char* classType();  ///< "adsk::fusion::Occurrence"

    /// The component that is used; never null.
    [[nodiscard]] virtual core::Ptr<Component> component() const = 0;

    /// The occurrences directly in this one, seen from the same top component; never null, empty
    /// for a part.
    [[nodiscard]] virtual core::Ptr<OccurrenceList> childOccurrences() const = 0;

    /// The component's name, ":", and the number of this use, such as "Bolt:2". It follows the name
    /// of the component; the numbers may have gaps.
    [[nodiscard]] virtual std::string name() const = 0;

    /// The names from the top component, itself left out, down to this one, joined by "+".
    [[nodiscard]] virtual std::string fullPathName() const = 0;

    /// Whether it is fixed in its place.
    [[nodiscard]] virtual bool isGrounded() const = 0;
    /// Changes all occurrences of this use, in every use of its assembly.
    virtual bool isGrounded(bool value) = 0;

    /// Whether its component belongs to another document than the assembly that directly contains
    /// it.
    [[nodiscard]] virtual bool isReferencedComponent() const = 0;

    /// The same as `Component::physicalProperties` of its component; never null.
    [[nodiscard]] virtual core::Ptr<PhysicalProperties> physicalProperties() const = 0;
};

/// A list of occurrences that nothing can be added to. An item is null also where the host has no
/// occurrence to return, so a walk has to check each.
class OccurrenceList : public core::CollectionOf<Occurrence> {
public:
    static const char* classType();  ///< "adsk::fusion::OccurrenceList"

    /// The first occurrence of this name, null when there is none.
    [[nodiscard]] virtual core::Ptr<Occurrence> itemByName(const std::string& name) const = 0;
};

/// The occurrences directly in a component. An item is null also where the host has no occurrence
/// to return.
class Occurrences : public core::CollectionOf<Occurrence> {
public:
    static const char* classType();  ///< "adsk::fusion::Occurrences"

    /// The same occurrences as a list, as `Occurrence::childOccurrences` returns it; never null.
    [[nodiscard]] virtual core::Ptr<OccurrenceList> asList() const = 0;

    /// Adds a component without bodies and the first occurrence of it, placed in the owner's
    /// coordinates; the occurrence. It is named "Component" with the next number that is free,
    /// belongs to the owner's document, and is of the host's default material. All occurrences of
    /// the owner show it.
    ///
    /// Null for null, and while what a preview did waits to be taken back.
    virtual core::Ptr<Occurrence> addNewComponent(const core::Ptr<core::Matrix3D>& transform) = 0;
};

}  // namespace adsk::fusion
