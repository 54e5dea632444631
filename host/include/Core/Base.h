#pragma once

#include <Core/Memory.h>

namespace adsk::core {

/// What every object of the host is.
///
/// Objects belong to the host; a module holds counted references on them through `Ptr`. The same
/// thing of the host is always the same object, so handles can be compared. No member of any class
/// throws: a failing call returns null, false or an empty value, and `Application::getLastError`
/// tells why.
class Base {
public:
    Base(const Base&) = delete;
    Base& operator=(const Base&) = delete;

    /// False once the host has deleted what this object stands for.
    [[nodiscard]] virtual bool isValid() const = 0;

    /// The full name of the class, such as "adsk::core::Application".
    static const char* classType();

    /// The full name of the class that this object is of: the same pointer as that class's
    /// `classType`.
    [[nodiscard]] virtual const char* objectType() const = 0;

    /// This object as a `T`, or null where it is none.
    template <class T>
    Ptr<T> cast() {
        return Ptr<T>(dynamic_cast<T*>(this));
    }

    /// Counts one reference more; `Ptr` does this.
    virtual void addRef() const = 0;

    /// Counts one reference less; the last one destroys the object.
    virtual void release() const = 0;

protected:
    Base() = default;
    virtual ~Base() = default;
};

}  // namespace adsk::core
