#pragma once

#include <Core/Base.h>
#include <Fusion/PhysicalProperties.h>

#include <string>
#include <vector>

namespace adsk::core {
class Attributes;
class BoundingBox3D;
class Material;
class Matrix3D;
}  // namespace adsk::core

namespace adsk::fusion {

class Design;
class Occurrence;
class Occurrences;

/// What components have in common with what else a design is made of. This host has components
/// alone.
class BaseComponent : public core::Base {
public:
    static const char* classType();  ///< "adsk::fusion::BaseComponent"
};

/// A part or an assembly: modelled once, used by any number of occurrences. It and all that belongs
/// to it are valid until its document is closed.
class Component : public BaseComponent {
public:
    static const char* classType();  ///< "adsk::fusion::Component"

    /// The name, which no other component of the design has.
    [[nodiscard]] virtual std::string name() const = 0;
    /// A name that is in use is extended by a number, such as "Bolt (1)". False for an empty name,
    /// and for the root component, which is named after its document.
    virtual bool name(const std::string& value) = 0;

    /// The part number. Until it is set it is the name, and follows it.
    [[nodiscard]] virtual std::string partNumber() const = 0;
    /// An empty part number is kept as such, and does not bring the name back.
    virtual bool partNumber(const std::string& value) = 0;

    /// The description; empty at first.
    [[nodiscard]] virtual std::string description() const = 0;
    /// Replaces the whole description.
    virtual bool description(const std::string& value) = 0;

    /// The attributes of the component, shared by all its occurrences; never null.
    [[nodiscard]] virtual core::Ptr<core::Attributes> attributes() const = 0;

    /// The occurrences directly in this component, as seen from it; never null, empty for a part.
    [[nodiscard]] virtual core::Ptr<Occurrences> occurrences() const = 0;

    /// The design of the document that this component belongs to: for a referenced component that
    /// of the other document.
    [[nodiscard]] virtual core::Ptr<Design> parentDesign() const = 0;

    /// Measures the component with everything in it; never null, all zero without bodies. Measuring
    /// may take long the first time. This host measures exactly, whatever the accuracy.
    [[nodiscard]] virtual core::Ptr<PhysicalProperties> getPhysicalProperties(
        CalculationAccuracy accuracy = LowCalculationAccuracy) const = 0;

    /// The same as `getPhysicalProperties` with low accuracy.
    [[nodiscard]] virtual core::Ptr<PhysicalProperties> physicalProperties() const = 0;

    /// The box around the component with everything in it, parallel to its own axes, in cm; never
    /// null. Without bodies, a box of size zero at its origin.
    [[nodiscard]] virtual core::Ptr<core::BoundingBox3D> boundingBox() const = 0;

    /// What the component is made of; null if that is unknown.
    [[nodiscard]] virtual core::Ptr<core::Material> material() const = 0;
    /// A material of another document is copied into this one. False for null.
    virtual bool material(const core::Ptr<core::Material>& value) = 0;

    /// Places occurrences in one step, each by the transform at the same index, in coordinates of
    /// this component. Joints are not considered.
    ///
    /// Only the root component can do this, for occurrences as seen from it. False, with nothing
    /// moved, for any other component, lists of different length, null elements and occurrences
    /// seen from another top.
    virtual bool transformOccurrences(const std::vector<core::Ptr<Occurrence>>& occurrences,
                                      const std::vector<core::Ptr<core::Matrix3D>>& transforms,
                                      bool ignoreJoints) = 0;
};

}  // namespace adsk::fusion
