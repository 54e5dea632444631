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

/// A part or an assembly: modelled once, used by any number of occurrences.
class Component : public core::Base {
public:
    static const char* classType();

    /// The name, which no other component of the design has: one that is taken gets a number behind
    /// it. The root component is called like its document and cannot be named.
    [[nodiscard]] virtual std::string name() const = 0;
    virtual bool name(const std::string& value) = 0;

    /// The part number. Until it is set it is the name, and follows it.
    [[nodiscard]] virtual std::string partNumber() const = 0;
    virtual bool partNumber(const std::string& value) = 0;

    [[nodiscard]] virtual std::string description() const = 0;
    virtual bool description(const std::string& value) = 0;

    [[nodiscard]] virtual core::Ptr<core::Attributes> attributes() const = 0;

    /// What stands directly in this component, as seen from it.
    [[nodiscard]] virtual core::Ptr<Occurrences> occurrences() const = 0;

    /// The design of the document that this component belongs to.
    [[nodiscard]] virtual core::Ptr<Design> parentDesign() const = 0;

    /// Measures the component and all that is in it.
    [[nodiscard]] virtual core::Ptr<PhysicalProperties> getPhysicalProperties(
        CalculationAccuracy accuracy = LowCalculationAccuracy) const = 0;

    /// As `getPhysicalProperties` with low accuracy.
    [[nodiscard]] virtual core::Ptr<PhysicalProperties> physicalProperties() const = 0;

    /// The box around the component and all that is in it, along its own axes; without any body a
    /// box of no size at its origin.
    [[nodiscard]] virtual core::Ptr<core::BoundingBox3D> boundingBox() const = 0;

    /// What the component is made of, null where nothing is told.
    [[nodiscard]] virtual core::Ptr<core::Material> material() const = 0;
    virtual bool material(const core::Ptr<core::Material>& value) = 0;

    /// Places occurrences, all in one step, each by the transform at its place in the second list.
    ///
    /// Only the root component can do it, for occurrences as seen from it; the transforms are in
    /// its coordinates. False, with nothing moved, for lists of different length and whatever does
    /// not fit.
    virtual bool transformOccurrences(const std::vector<core::Ptr<Occurrence>>& occurrences,
                                      const std::vector<core::Ptr<core::Matrix3D>>& transforms,
                                      bool ignoreJoints) = 0;
};

}  // namespace adsk::fusion
