#pragma once

#include "host/design/design_data.h"

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <string>

/// A design that is open for as long as this lives.
class OpenDesign {
public:
    explicit OpenDesign(const host::DesignData& data);

    /// Opens an outline, in which `structure=` and `property=` are known.
    explicit OpenDesign(const std::string& outline);

    OpenDesign(const OpenDesign&) = delete;
    OpenDesign& operator=(const OpenDesign&) = delete;
    ~OpenDesign();

    [[nodiscard]] adsk::core::Ptr<adsk::fusion::Component> root() const;

    /// The occurrences directly under the root component.
    [[nodiscard]] adsk::core::Ptr<adsk::fusion::OccurrenceList> occurrences() const;

    /// The component of this name.
    [[nodiscard]] adsk::core::Ptr<adsk::fusion::Component> component(const std::string& name) const;

    /// Name and description of each component that has one, one a line.
    [[nodiscard]] std::string descriptions() const;

private:
    adsk::core::Ptr<adsk::core::Document> document_;
};
