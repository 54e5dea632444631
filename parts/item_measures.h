#pragma once

#include "parts/bom_structure.h"

#include "host/design/design_data.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace parts {

/// What bodies measure together; in the host's units.
struct Measured {
    double area = 0;
    double volume = 0;
    double mass = 0;
    std::size_t bodies = 0;
    bool hasGeometry = false;   ///< there is something that can be measured, or should be
    bool isUnmeasured = false;  ///< some could not be measured, and count as nothing
};

/// Measures the components of a design without what is Reference in them, and without the bodies
/// that Divided components have of their own: they are in no line of any view, and so in no sum.
/// Each body is measured once, and not before it is asked for.
class ItemMeasures {
public:
    /// The design outlives it.
    explicit ItemMeasures(const host::DesignData& design);

    /// The bodies that a component has of its own.
    Measured own(std::size_t component);

    /// With everything in it, each as often as it is used there.
    Measured whole(std::size_t component);

    /// The box along the component's axes around its own bodies, or with everything in it; none
    /// without any body.
    std::optional<host::Box> ownBox(std::size_t component);
    std::optional<host::Box> wholeBox(std::size_t component);

    /// Whether a material or a density of its own bodies is assumed, or of any in it. Measures
    /// nothing.
    [[nodiscard]] bool isOwnAssumed(std::size_t component) const;
    bool isAssumed(std::size_t component);

    /// A component whose bodies could not be measured, and why.
    struct Failure {
        std::size_t component = 0;
        std::string reason;
    };
    [[nodiscard]] const std::vector<Failure>& failures() const { return failures_; }

private:
    struct Known {
        std::optional<Measured> own;
        std::optional<Measured> whole;
        std::optional<std::optional<host::Box>> box;
        std::optional<bool> isAssumed;
        bool hasFailed = false;
    };

    [[nodiscard]] bool counts(const host::OccurrenceData& child) const;
    [[nodiscard]] bool hasOwnBodies(std::size_t component) const;
    Measured measureOwn(std::size_t component);
    std::optional<host::Box> boxAround(std::size_t component, const host::Transform& placement);
    std::optional<host::Box> placedBox(std::size_t component, const host::Transform& placement);
    template <class Result, class Ask>
    std::optional<Result> ask(std::size_t component, Ask question);

    const host::DesignData& design_;
    std::vector<Known> known_;
    std::vector<BomStructure> structures_;
    std::vector<Failure> failures_;
};

}  // namespace parts
