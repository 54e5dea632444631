#pragma once

#include "host/base/object.h"

#include <Core/Selections.h>

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

namespace host::ui {

class SelectionObject final : public Object<core::Selection> {
public:
    explicit SelectionObject(core::Ptr<core::Base> entity) : entity_(std::move(entity)) {}

    [[nodiscard]] core::Ptr<core::Base> entity() const override {
        return get<"Selection::entity">(entity_);
    }
    [[nodiscard]] core::Ptr<core::Point3D> point() const override;

    [[nodiscard]] const core::Ptr<core::Base>& selected() const { return entity_; }

private:
    core::Ptr<core::Base> entity_;
};

/// Entities in the order they were selected, each once.
class SelectionList {
public:
    [[nodiscard]] std::size_t count() const { return selections_.size(); }
    [[nodiscard]] bool holds(const core::Ptr<core::Base>& entity) const;

    /// The selection at an index, null outside the list.
    [[nodiscard]] core::Ptr<core::Selection> at(std::size_t index) const;

    /// False for an entity that is there already.
    bool add(const core::Ptr<core::Base>& entity);
    void remove(const core::Ptr<core::Base>& entity);

    /// Empties the list; the selections are no longer valid.
    void clear();

    [[nodiscard]] std::vector<core::Ptr<core::Base>> entities() const;

private:
    std::vector<core::Ptr<SelectionObject>> selections_;
    std::unordered_set<const core::Base*> held_;
};

/// What the user has selected.
class SelectionsObject final : public Object<core::Selections> {
public:
    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::Selection> item(std::size_t index) const override;
    bool add(const core::Ptr<core::Base>& entity) override;
    bool clear() override;

    SelectionList list;
};

}  // namespace host::ui
