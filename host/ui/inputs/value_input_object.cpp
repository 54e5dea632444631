#include "host/ui/inputs/value_input_object.h"

#include "host/base/last_error.h"

namespace host::ui {

core::ValueTypes ValueInputObject::valueType() const {
    if (closed<"valueType">(*this)) return {};
    return static_cast<core::ValueTypes>(value_.index());
}

template <class T>
T ValueInputObject::valueAs(const char* operation) const {
    if (const T* value = std::get_if<T>(&value_)) return *value;
    fail(core::BadApiCallError,
         std::string("ValueInput::") + operation + ": the value is of another type");
    return {};
}

std::string ValueInputObject::stringValue() const {
    if (closed<"stringValue">(*this)) return {};
    return valueAs<std::string>("stringValue");
}

double ValueInputObject::realValue() const {
    if (closed<"realValue">(*this)) return {};
    return valueAs<double>("realValue");
}

core::Ptr<core::Base> ValueInputObject::objectValue() const {
    if (closed<"objectValue">(*this)) return {};
    return valueAs<core::Ptr<core::Base>>("objectValue");
}

bool ValueInputObject::booleanValue() const {
    if (closed<"booleanValue">(*this)) return {};
    return valueAs<bool>("booleanValue");
}

}  // namespace host::ui

namespace adsk::core {

Ptr<ValueInput> ValueInput::createByString(const std::string& value) {
    if (host::refused<"ValueInput::createByString">()) return {};
    return host::make<host::ui::ValueInputObject>(value);
}

Ptr<ValueInput> ValueInput::createByReal(double value) {
    if (host::refused<"ValueInput::createByReal">()) return {};
    return host::make<host::ui::ValueInputObject>(value);
}

Ptr<ValueInput> ValueInput::createByObject(const Ptr<Base>& value) {
    if (host::refused<"ValueInput::createByObject">()) return {};
    if (!value) {
        host::fail(BadApiCallError, "ValueInput::createByObject: the object is null");
        return {};
    }
    return host::make<host::ui::ValueInputObject>(value);
}

Ptr<ValueInput> ValueInput::createByBoolean(bool value) {
    if (host::refused<"ValueInput::createByBoolean">()) return {};
    return host::make<host::ui::ValueInputObject>(value);
}

}  // namespace adsk::core
