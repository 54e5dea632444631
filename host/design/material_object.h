#pragma once

#include "host/base/object.h"
#include "host/design/design_data.h"
#include "host/design/edits.h"

#include <Core/Material.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace host {

/// A material of a document.
class MaterialObject final : public Object<core::Material> {
public:
    MaterialObject(Edits& edits, MaterialData data) : edits_(&edits), data_(std::move(data)) {}

    [[nodiscard]] std::string name() const override { return get<"name">(data_.name); }
    bool name(const std::string& value) override;

    [[nodiscard]] const MaterialData& state() const { return data_; }
    void dispose() { invalidate(); }

private:
    Edits* edits_;
    MaterialData data_;
};

/// The materials of a document, each once.
class Materials {
public:
    explicit Materials(Edits& edits) : edits_(edits) {}

    /// The material that is like `data`, made if there is none.
    core::Ptr<MaterialObject> like(const MaterialData& data);

    /// Whether it is one of these.
    [[nodiscard]] bool holds(const MaterialObject& material) const;

    void dispose();

private:
    using Key = std::pair<std::string, double>;

    Edits& edits_;
    std::vector<core::Ptr<MaterialObject>> all_;
    /// By name and density as they were made; a material may have been renamed since.
    std::multimap<Key, MaterialObject*> made_;
};

}  // namespace host
