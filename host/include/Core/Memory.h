#pragma once

#include <cstddef>
#include <exception>
#include <type_traits>
#include <utility>

namespace adsk::core {

/// A counted reference on an object of the host.
///
/// Any handle converts to any other: the result is null where the object is not of the asked class,
/// so a conversion is also the test for a class. A handle outlives what it refers to: a deleted
/// object stays reachable, and its `isValid` is false.
template <class T>
class Ptr {
public:
    using element_type = T;

    Ptr() noexcept = default;
    Ptr(std::nullptr_t) noexcept {}  // NOLINT(google-explicit-constructor): null is a handle

    /// Refers to `object`; with `addRef` false it takes over a reference that is counted already.
    Ptr(T* object, bool addRef = true) : object_(object) {  // NOLINT(google-explicit-constructor)
        if (object_ != nullptr && addRef) {
            object_->addRef();
        }
    }

    Ptr(const Ptr& other) : Ptr(other.object_) {}
    Ptr(Ptr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    /// Refers to the same object as a `T`, or to nothing where it is none.
    template <class U, class = std::enable_if_t<!std::is_same_v<T, U>>>
    Ptr(const Ptr<U>& other)  // NOLINT(google-explicit-constructor): a cast is a plain assignment
        : Ptr(castTo(other.get())) {}

    ~Ptr() {
        if (object_ != nullptr) {
            object_->release();
        }
    }

    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): the copy is made before the swap
    Ptr& operator=(const Ptr& other) {
        Ptr(other).swap(*this);
        return *this;
    }

    Ptr& operator=(Ptr&& other) noexcept {
        Ptr(std::move(other)).swap(*this);
        return *this;
    }

    Ptr& operator=(std::nullptr_t) {
        Ptr().swap(*this);
        return *this;
    }

    /// The object's members.
    ///
    /// Throws a plain `std::exception`, without a text, where there is no object.
    T* operator->() const { return &**this; }

    /// The object; throws as `operator->` does.
    T& operator*() const {
        if (object_ == nullptr) {
            throw std::exception();
        }
        return *object_;
    }

    explicit operator bool() const noexcept { return object_ != nullptr; }
    [[nodiscard]] T* get() const noexcept { return object_; }

    /// Gives the reference away; whoever takes it has to release it.
    [[nodiscard]] T* detach() noexcept { return std::exchange(object_, nullptr); }

    void swap(Ptr& other) noexcept { std::swap(object_, other.object_); }

private:
    template <class U>
    static T* castTo(U* object) {
        if constexpr (std::is_convertible_v<U*, T*>) {
            return object;
        } else {
            return dynamic_cast<T*>(object);
        }
    }

    T* object_ = nullptr;
};

/// Two handles are equal exactly when they refer to the same object of the host, or both to none.
template <class T, class U>
bool operator==(const Ptr<T>& left, const Ptr<U>& right) noexcept {
    return static_cast<const void*>(left.get()) == static_cast<const void*>(right.get());
}

template <class T>
bool operator==(const Ptr<T>& left, std::nullptr_t) noexcept {
    return left.get() == nullptr;
}

}  // namespace adsk::core
