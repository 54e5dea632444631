#pragma once

#include "host/base/object.h"

#include <Core/Selections.h>

#include <array>
#include <utility>

namespace host::ui {

/// A place in the model, in cm.
using Place = std::array<double, 3>;

struct SelectionState {
    core::Ptr<core::Base> entity;
    Place place = {};  ///< where it was picked
};

class SelectionObject final : public Object<core::Selection> {
public:
    SelectionObject(core::Ptr<core::Base> entity, const Place& place)
        : state_{.entity = std::move(entity), .place = place} {}

    [[nodiscard]] core::Ptr<core::Base> entity() const override {
        return get<"entity">(state_.entity);
    }
    [[nodiscard]] core::Ptr<core::Point3D> point() const override;

    [[nodiscard]] const SelectionState& state() const { return state_; }
    void dispose() { invalidate(); }

private:
    SelectionState state_;
};

}  // namespace host::ui
