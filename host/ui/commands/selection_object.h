#pragma once

#include "host/base/object.h"

#include <Core/Selections.h>

#include <utility>

namespace host::ui {

struct SelectionState {
    core::Ptr<core::Base> entity;
};

class SelectionObject final : public Object<core::Selection> {
public:
    explicit SelectionObject(core::Ptr<core::Base> entity) : state_{std::move(entity)} {}

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
