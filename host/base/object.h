#pragma once

#include "host/base/api_names.h"
#include "host/base/gate.h"
#include "host/base/misuse.h"

#include <Core/Base.h>

#include <type_traits>
#include <utility>

/// The dialect in which the host implements the public API.
///
/// `XObject` implements the interface `X`: it derives from `Object<X>`, is made with `make`, and is
/// held through `core::Ptr`. `core` and `fusion` are the API's namespaces.
///
/// Every operation first passes the gate under its name and that of the interface that declares it,
/// such as "Sketch::name". Where it only reads or sets a value, that is one line of the header:
///
///     [[nodiscard]] std::string name() const override { return get<"name">(name_); }
///     bool name(const std::string& value) override { return set<"name">(name_, value); }
///
/// Where it does more, it begins with
///
///     if (closed<"deleteMe">(*this)) return {};
///
/// The class is that of `Object<X>`. An operation that `X` inherits is named in full:
/// `get<"ToolbarControl::isVisible">` in the object of a `CommandControl`. Either kind of operation
/// returns nothing when the call is refused, or when the object was deleted, which is listed as
/// a misuse. Objects of a closed document count as deleted. `refused` is for functions that are
/// called on no object, such as `Point3D::create`.
///
/// The host itself passes no gate: it reads an object's own data through `state()` or through plain
/// accessors of the implementation, and deletes an object with `dispose()`. That cuts the object
/// off from everything it refers to, disposes of what it owns, and ends with `invalidate()`. A
/// module may keep its handle for ever; it finds an object that is not valid.
namespace host {

template <class Interface>
class Object;

/// An operation that an object implements: of `Interface`, unless `Name` says of which class.
template <class Interface, CallName Name>
const gate::Call& callOn() {
    if constexpr (Name.namesClass) {
        return gate::call<Name>;
    } else {
        return gate::callOf<Interface, Name>;
    }
}

/// Passes the gate and looks whether the object is valid. True when the operation has to return
/// nothing: the call is refused, or the object was deleted.
template <CallName Name, class Interface>
bool closed(const Object<Interface>& object) {
    const gate::Call& call = callOn<Interface, Name>();
    if (gate::refuses(call)) return true;
    return !object.Object<Interface>::isValid() &&
           misuseOfDeleted(call.name.c_str(), object.objectType());
}

/// What every class of the stand-in derives from: an interface of the public API with its counted
/// references and its validity.
///
/// The host is single-threaded, and so is the count.
template <class Interface>
class Object : public Interface {
public:
    [[nodiscard]] bool isValid() const override { return valid_; }
    [[nodiscard]] const char* objectType() const override { return Interface::classType(); }
    void addRef() const override { ++references_; }

    void release() const override {
        if (--references_ == 0) {
            delete this;
        }
    }

    /// Marks what this stands for as deleted; handles stay usable and find an invalid object.
    void invalidate() { valid_ = false; }

protected:
    Object() = default;
    ~Object() override = default;

    /// How many handles there are.
    [[nodiscard]] unsigned references() const { return references_; }

    /// Reads a value as the operation `Name`: an empty one when the call is refused or the object
    /// was deleted. A class template has to write `this->template get<...>(...)`.
    template <CallName Name, class T>
    [[nodiscard]] T get(const T& value) const {
        if (closed<Name>(*this)) return {};
        return value;
    }

    /// Sets a value as the operation `Name`; false, with nothing changed, when the call is refused
    /// or the object was deleted.
    template <CallName Name, class T>
    bool set(T& member, const std::type_identity_t<T>& value) {
        if (closed<Name>(*this)) return false;
        member = value;
        return true;
    }

private:
    mutable unsigned references_ = 0;
    bool valid_ = true;
};

/// Makes an object of the stand-in; the handle is its first reference.
template <class T, class... Arguments>
core::Ptr<T> make(Arguments&&... arguments) {
    return core::Ptr<T>(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace host
