#pragma once

#include "host/base/gate.h"

#include <Core/Base.h>

namespace host {

/// What every class of the stand-in derives from: an interface of the public API with its counted
/// references and its validity.
///
/// Objects are made with `make` and held through `adsk::core::Ptr`. The host is single-threaded,
/// and so is the count.
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

private:
    mutable unsigned references_ = 0;
    bool valid_ = true;
};

/// Makes an object of the stand-in; the handle is its first reference.
template <class T, class... Arguments>
adsk::core::Ptr<T> make(Arguments&&... arguments) {
    return adsk::core::Ptr<T>(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace host
