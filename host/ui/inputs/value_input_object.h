#pragma once

#include "host/base/object.h"

#include <Core/Values.h>

#include <string>
#include <utility>
#include <variant>

namespace host::ui {

class ValueInputObject final : public Object<core::ValueInput> {
public:
    /// In the order of `core::ValueTypes`.
    using Value = std::variant<std::string, double, core::Ptr<core::Base>, bool>;

    explicit ValueInputObject(Value value) : value_(std::move(value)) {}

    [[nodiscard]] core::ValueTypes valueType() const override;
    [[nodiscard]] std::string stringValue() const override;
    [[nodiscard]] double realValue() const override;
    [[nodiscard]] core::Ptr<core::Base> objectValue() const override;
    [[nodiscard]] bool booleanValue() const override;

    [[nodiscard]] const Value& state() const { return value_; }

private:
    template <class T>
    [[nodiscard]] T valueAs(const char* operation) const;

    Value value_;
};

}  // namespace host::ui
