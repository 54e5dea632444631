#pragma once

#include <Core/Memory.h>

namespace adsk::core {

/// What every object of the host is.
///
/// Objects belong to the host; a module holds counted references to them through `Ptr`. The same
/// thing of the host is always the same object, so handles can be compared.
///
/// No member throws. A call that fails changes nothing and returns null (even if its comment says
/// "never null"), false, zero or an empty value, and `Application::getLastError` says why; so do
/// all calls on a deleted object. A setter returns true unless its comment names a case. Calls are
/// made on the main thread alone. Strings are UTF-8, and may be empty unless otherwise stated.
class Base {
public:
    Base(const Base&) = delete;
    Base& operator=(const Base&) = delete;

    /// False once the host has deleted the entity that this object represents.
    [[nodiscard]] virtual bool isValid() const = 0;

    /// The full name of the class, such as "adsk::core::Application"; never null.
    static const char* classType();

    /// The full name of the most derived class of this object: the same pointer as that class's
    /// `classType`, also for a deleted object.
    [[nodiscard]] virtual const char* objectType() const = 0;

    /// This object as a `T`, or null when it is not one.
    template <class T>
    Ptr<T> cast() {
        return Ptr<T>(dynamic_cast<T*>(this));
    }

    /// Adds a reference; `Ptr` does this.
    virtual void addRef() const = 0;

    /// Drops a reference; the last one destroys the object. `Ptr` does this.
    virtual void release() const = 0;

protected:
    Base() = default;
    virtual ~Base() = default;
};

}  // namespace adsk::core
