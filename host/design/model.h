#pragma once

#include "host/base/api_names.h"
#include "host/base/string_pool.h"
#include "host/design/design_data.h"
#include "host/design/edits.h"
#include "host/design/material_object.h"
#include "host/design/naming.h"
#include "host/design/unmeasured.h"

#include <Core/Memory.h>

#include <cstddef>
#include <vector>

namespace host {

class ComponentObject;
class OccurrenceListObject;
class OccurrenceObject;

/// What a document holds: its components, and what they have in common.
///
/// It belongs to the document. With it all its objects are disposed of,
/// whether or not a module still holds them.
class Model {
public:
    /// `data` fulfils `checkDesign`.
    explicit Model(DesignData data);
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;
    ~Model();

    [[nodiscard]] ComponentObject& component(std::size_t index) const {
        return *components_[index];
    }
    [[nodiscard]] std::size_t componentCount() const { return components_.size(); }

    /// Adds a component that a module makes: without bodies, under a name that is free. It belongs
    /// to the document of `owner`. Its index.
    std::size_t addComponent(const ComponentObject& owner);

    /// Takes back the component that was added last, with everything that belongs to it.
    void takeBackComponent();

    /// Notes an occurrence that was made. Those of components that were added are not valid any
    /// more once these are taken back.
    void noteMade(const core::Ptr<OccurrenceObject>& occurrence, std::size_t component);

    /// The occurrences of a component without children; one list serves them all.
    [[nodiscard]] const core::Ptr<OccurrenceListObject>& emptyList() const { return emptyList_; }

    /// The components and what describes the design as a whole, in their current state. The name
    /// and the attributes of the document are not the model's.
    [[nodiscard]] DesignData snapshot() const;

    Edits edits;
    StringPool texts;  ///< what attributes are called
    ComponentNames names;
    Materials materials{edits};
    std::vector<Unmeasured> unmeasured;  ///< each component once, in the order they came up

private:
    DesignData rest_;  ///< without components
    std::vector<core::Ptr<ComponentObject>> components_;
    std::size_t opened_;  ///< how many components it had when it was opened
    std::vector<std::vector<core::Ptr<OccurrenceObject>>> usesOfAdded_;  ///< of those behind these
    int nextNumber_ = 1;  ///< of a component that is added
    core::Ptr<OccurrenceListObject> emptyList_;
};

}  // namespace host
