#include "host/design/material_object.h"

#include <algorithm>

namespace host {

bool MaterialObject::name(const std::string& value) {
    if (closed<"name">(*this)) return {};
    edits_->history.remember([this, old = data_] { data_ = old; });
    data_.name = value;
    data_.nameAssumed = false;
    ++edits_->all;
    return true;
}

core::Ptr<MaterialObject> Materials::like(const MaterialData& data) {
    const auto [begin, end] = made_.equal_range(Key(data.name, data.density));
    const auto found =
        std::find_if(begin, end, [&](const auto& each) { return each.second->state() == data; });
    if (found != end) {
        return found->second;
    }
    all_.push_back(make<MaterialObject>(edits_, data));
    made_.emplace(Key(data.name, data.density), all_.back().get());
    return all_.back();
}

bool Materials::holds(const MaterialObject& material) const {
    return std::any_of(all_.begin(), all_.end(),
                       [&](const auto& each) { return each.get() == &material; });
}

void Materials::dispose() {
    for (const core::Ptr<MaterialObject>& each : all_) {
        each->dispose();
    }
    all_.clear();
    made_.clear();
}

}  // namespace host
