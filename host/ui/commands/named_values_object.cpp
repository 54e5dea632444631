#include "host/base/last_error.h"
#include "host/base/object.h"

#include <Core/Values.h>

#include <map>
#include <string>

namespace host::ui {
namespace {

class NamedValuesObject final : public Object<core::NamedValues> {
public:
    bool setValue(const std::string& name, const core::Ptr<core::ValueInput>& value) override;
    [[nodiscard]] core::Ptr<core::ValueInput> value(const std::string& name) const override;

private:
    std::map<std::string, core::Ptr<core::ValueInput>> values_;
};

bool NamedValuesObject::setValue(const std::string& name,
                                 const core::Ptr<core::ValueInput>& value) {
    if (closed<"setValue">(*this)) return {};
    if (name.empty() || !value) {
        return fail(core::BadApiCallError,
                    name.empty() ? "NamedValues::setValue: the name is empty"
                                 : "NamedValues::setValue: the value of " + name + " is null");
    }
    values_[name] = value;
    return true;
}

core::Ptr<core::ValueInput> NamedValuesObject::value(const std::string& name) const {
    if (closed<"value">(*this)) return {};
    const auto found = values_.find(name);
    return found == values_.end() ? nullptr : found->second;
}

}  // namespace
}  // namespace host::ui

namespace adsk::core {

Ptr<NamedValues> NamedValues::create() {
    if (host::refused<"NamedValues::create">()) return {};
    return host::make<host::ui::NamedValuesObject>();
}

}  // namespace adsk::core
